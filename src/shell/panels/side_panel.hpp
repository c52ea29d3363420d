#pragma once

#include <QWidget>

class QToolButton;

namespace korven::shell {

/// A panel beside the table of a form: a button with its title on top, which folds it away and
/// brings it back; below it what scrolls where the form has no room for it, and what is always
/// seen. Whether it is folded away is remembered with the sizes of the windows.
class PannelloLaterale : public QWidget {
    Q_OBJECT
 public:
    /// @param nome    object name, and of what is remembered
    /// @param titolo  as it is shown, translated
    PannelloLaterale(const QString& nome, const QString& titolo);

    [[nodiscard]] bool aperto() const;

 protected:
    /// Fills the panel, which becomes the owner of both.
    /// @param scorre  may be nullptr
    void riempi(QWidget* scorre, QWidget* fisso);
    /// Folds the panel away for this time: its form has no room for it.
    void piega() { apri(false); }

 private:
    void apri(bool aperto);
    void cambia(bool aperto);

    QString titolo_;
    QToolButton* mostra_;
    QWidget* parte_;  // all below the button
};

}  // namespace korven::shell
