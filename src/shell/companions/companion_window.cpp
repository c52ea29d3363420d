#include "shell/companions/companion_window.hpp"

#include <QCloseEvent>
#include <QScreen>
#include <QShortcut>

#include "shell/form_sizes.hpp"
#include "shell/place_beside.hpp"

namespace korven::shell {

FinestraCompagna::FinestraCompagna(QWidget& principale, const QString& nome, const QString& titolo,
                                   QSize comoda)
    : QWidget(&principale, Qt::Window), principale_(principale) {
    setObjectName(nome);
    setWindowTitle(titolo);
    addActions(principale.actions());
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
    principale.installEventFilter(this);
    if (!prendiMisura(*this, comoda)) colloca();
}

void FinestraCompagna::colloca() {
    QList<QPoint> presi;
    for (const auto* altra : principale_.findChildren<FinestraCompagna*>())
        if (altra->isVisible()) presi.append(altra->pos());
    move(postoAccanto(principale_.frameGeometry(), misuraConCornice(*this),
                      principale_.screen()->availableGeometry(), presi));
}

void FinestraCompagna::mostraDavanti() {
    if (isMinimized()) showNormal();
    show();
    raise();
    activateWindow();
}

bool FinestraCompagna::eventFilter(QObject* oggetto, QEvent* evento) {
    // Not when the desktop alone takes it from sight, as it does with a window that is minimized.
    if (oggetto == &principale_ && evento->type() == QEvent::Hide && !evento->spontaneous())
        close();
    return QWidget::eventFilter(oggetto, evento);
}

void FinestraCompagna::closeEvent(QCloseEvent* evento) {
    ricordaMisure(*this);
    QWidget::closeEvent(evento);
}

}  // namespace korven::shell
