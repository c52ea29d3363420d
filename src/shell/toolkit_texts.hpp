#pragma once

#include <QTranslator>
#include <memory>

namespace korven::shell {

/// The texts that Qt itself shows in its dialogs, in the language with that code, 1 to 6, as far as
/// the system has them. Qt's Portuguese is that of Brazil: its words are those of Portugal here, as
/// in all other texts of the program; its Spanish "Control" of the menus is "Ctrl".
/// @return nothing where there are none
[[nodiscard]] std::unique_ptr<QTranslator> testiQt(int lingua);

/// Numbers have a decimal point in every form of the program, whatever the system writes: so do
/// those of Qt's own dialogs, the margins of a page for instance.
void segnoDecimaleQt();

}  // namespace korven::shell
