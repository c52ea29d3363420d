#include "shell/accessible_roles.hpp"

#include <QAccessibleWidget>
#include <QWidget>

namespace korven::shell {

namespace {

constexpr const char* figura = "figuraAccessibile";

// Asked each time: a widget becomes a part of another after it was made.
class AccessoPezzo : public QAccessibleWidget {
 public:
    using QAccessibleWidget::QAccessibleWidget;
    [[nodiscard]] QAccessible::Role role() const override {
        if (widget()->property(figura).toBool()) return QAccessible::Graphic;
        return widget()->windowType() == Qt::Window ? QAccessible::Window
                                                    : QAccessibleWidget::role();
    }
};

// Asked for the class of an object first and then for each that it comes from; the last one is
// reached by those that Qt knows nothing more of.
QAccessibleInterface* fabbrica(const QString& classe, QObject* oggetto) {
    if (classe != QLatin1String("QWidget")) return nullptr;
    return new AccessoPezzo(qobject_cast<QWidget*>(oggetto));
}

}  // namespace

void presentaFigura(QWidget& quadro) { quadro.setProperty(figura, true); }

void insegnaRuoli() { QAccessible::installFactory(fabbrica); }

}  // namespace korven::shell
