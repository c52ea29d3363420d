#include "shell/forms/key_event.hpp"

#include <algorithm>
#include <iterator>
#include <utility>

namespace korven::shell {

namespace {

using masks::Tasto;

constexpr std::pair<int, Tasto> noti[] = {
    {Qt::Key_Return, Tasto::invio}, {Qt::Key_Enter, Tasto::invio},
    {Qt::Key_Escape, Tasto::esc},   {Qt::Key_Backspace, Tasto::backspace},
    {Qt::Key_Delete, Tasto::canc},  {Qt::Key_F1, Tasto::f1},
    {Qt::Key_F2, Tasto::f2},        {Qt::Key_Up, Tasto::su},
    {Qt::Key_Down, Tasto::giu},     {Qt::Key_Left, Tasto::sinistra},
    {Qt::Key_Right, Tasto::destra},
};

bool comando(Qt::KeyboardModifiers modificatori) {
    constexpr auto altGr = Qt::ControlModifier | Qt::AltModifier;  // how some systems tell of it
    const auto premuti = modificatori & (altGr | Qt::MetaModifier);
    return premuti != Qt::NoModifier && premuti != altGr;
}

}  // namespace

bool virgolaDelTastierino(const QKeyEvent& evento) {
    return evento.key() == Qt::Key_Comma && evento.modifiers().testFlag(Qt::KeypadModifier);
}

std::optional<Tasto> tastoDi(const QKeyEvent& evento) {
    if (comando(evento.modifiers())) return {};
    const auto* noto = std::find_if(std::begin(noti), std::end(noti),
                                    [&](const auto& n) { return n.first == evento.key(); });
    if (noto != std::end(noti)) return noto->second;
    const QString testo = evento.text();
    if (testo == QLatin1String(".") || virgolaDelTastierino(evento)) return Tasto::punto;
    if (!testo.isEmpty() && testo.front().isPrint()) return Tasto::carattere;
    return {};
}

}  // namespace korven::shell
