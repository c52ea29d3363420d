#pragma once

#include <QWidget>

namespace korven::shell {

/// A window beside the main form: it stays while the project is worked on, and a modal form keeps
/// the mouse and the keyboard from it without stopping what it shows. It remembers place and size
/// and goes beside the main form before there is anything to remember, never larger than its
/// screen. It closes with the main form.
///
/// Keys: Esc closes, F1 opens the page of the help that help/places.hpp has for its name; the keys
/// that the main form shares (`QWidget::actions`) work here too.
class FinestraCompagna : public QWidget {
    Q_OBJECT
 public:
    /// @param principale  the main form, whose child the window becomes
    /// @param nome        object name: of its page of the help, and of what is remembered
    /// @param titolo      as it is shown
    /// @param comoda      the size that it takes at first, as far as the screen has room
    FinestraCompagna(QWidget& principale, const QString& nome, const QString& titolo, QSize comoda);

    /// Shows the window, or brings it before all others.
    void mostraDavanti();

 protected:
    [[nodiscard]] QWidget& principale() const { return principale_; }
    bool eventFilter(QObject* oggetto, QEvent* evento) override;
    void closeEvent(QCloseEvent* evento) override;

 private:
    void colloca();

    QWidget& principale_;
};

}  // namespace korven::shell
