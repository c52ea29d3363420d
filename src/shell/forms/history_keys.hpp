#pragma once

#include <QObject>
#include <functional>

class QKeyEvent;
class QLineEdit;
class QWidget;

namespace korven::shell {

/// The keys that take back and do again in a form, wherever in it the focus is: Ctrl+Z; Ctrl+Y or
/// Ctrl+Shift+Z. A form has one history: its text boxes, which keep one each, hand over these keys
/// and the two items of their menu. A panel beside it with inputs of its own asks for the keys
/// itself; from its other controls they reach the form.
class TastiStoria : public QObject {
 public:
    /// @param forma  or a panel, with all its inputs; those that come later keep their own history
    TastiStoria(QWidget& forma, std::function<void()> annulla, std::function<void()> ripeti);

 protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
    void mostraMenu(QLineEdit& casella, const QPoint& posto);

    std::function<void()> annulla_, ripeti_;
};

}  // namespace korven::shell
