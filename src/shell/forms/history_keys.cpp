#include "shell/forms/history_keys.hpp"

#include <QAction>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <memory>
#include <utility>

namespace korven::shell {

namespace {

enum class Verso { nessuno, indietro, avanti };

Verso verso(const QKeyEvent& evento) {
    const auto premuti = evento.modifiers() & ~Qt::KeypadModifier;
    const bool z = evento.key() == Qt::Key_Z;
    if (evento.matches(QKeySequence::Undo) || (z && premuti == Qt::ControlModifier))
        return Verso::indietro;
    if (evento.matches(QKeySequence::Redo) ||
        (z && premuti == (Qt::ControlModifier | Qt::ShiftModifier)) ||
        (evento.key() == Qt::Key_Y && premuti == Qt::ControlModifier))
        return Verso::avanti;
    return Verso::nessuno;
}

}  // namespace

TastiStoria::TastiStoria(QWidget& forma, std::function<void()> annulla,
                         std::function<void()> ripeti)
    : QObject(&forma), annulla_(std::move(annulla)), ripeti_(std::move(ripeti)) {
    forma.installEventFilter(this);
    // A choice takes every key for the beginning of an item, and so never hands it to the form.
    for (auto* controllo : forma.findChildren<QWidget*>()) controllo->installEventFilter(this);
}

// The items of the toolkit have no names: they are known by their captions.
void TastiStoria::mostraMenu(QLineEdit& casella, const QPoint& posto) {
    const std::unique_ptr<QMenu> menu(casella.createStandardContextMenu());
    const std::pair<QString, std::function<void()>> nostre[] = {{QLineEdit::tr("&Undo"), annulla_},
                                                                {QLineEdit::tr("&Redo"), ripeti_}};
    for (auto* voce : menu->actions())
        for (const auto& [testo, fa] : nostre) {
            if (voce->text().section(QLatin1Char('\t'), 0, 0) != testo) continue;
            disconnect(voce, nullptr, &casella, nullptr);
            voce->setEnabled(!casella.isReadOnly());
            connect(voce, &QAction::triggered, this, fa);
        }
    menu->exec(posto);
}

bool TastiStoria::eventFilter(QObject* oggetto, QEvent* evento) {
    if (evento->type() == QEvent::ContextMenu)
        if (auto* casella = qobject_cast<QLineEdit*>(oggetto)) {
            mostraMenu(*casella, static_cast<QContextMenuEvent*>(evento)->globalPos());
            return true;
        }
    if (evento->type() != QEvent::KeyPress) return false;
    const Verso dove = verso(*static_cast<QKeyEvent*>(evento));
    if (dove == Verso::nessuno) return false;
    dove == Verso::indietro ? annulla_() : ripeti_();
    return true;
}

}  // namespace korven::shell
