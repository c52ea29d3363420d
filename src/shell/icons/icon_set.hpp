#pragma once

#include <QIcon>
#include <QPalette>
#include <string_view>

namespace korven::shell {

/// A drawing of the program's own set (data/icons), in the colour that texts have in a role of the
/// palette in force: it reads on light desktops and on dark ones, and follows when they change.
/// Sharp at every size and pixel ratio; a pale one shows what can't be chosen.
/// @param nome  of its file without the extension; asserted
[[nodiscard]] QIcon icona(std::string_view nome, QPalette::ColorRole ruolo = QPalette::ButtonText);

/// The same in a colour of its own.
[[nodiscard]] QIcon icona(std::string_view nome, const QColor& colore);

/// The names of the set, sorted.
[[nodiscard]] QStringList nomiIcone();

/// The name of the drawing of a menu item; empty for one that has none, as those of the menu bar.
[[nodiscard]] std::string_view iconaVoce(std::string_view voce);

}  // namespace korven::shell
