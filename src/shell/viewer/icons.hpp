#pragma once

#include <QIcon>
#include <string_view>

namespace korven::shell {

/// Picture of a button of the viewer, drawn as lines in the text colour of the buttons, sharp at
/// every size and pixel ratio. A pale one shows a disabled button.
/// @param nome  one of the names in the table of icons.cpp; asserted
[[nodiscard]] QIcon iconaGrafica(std::string_view nome);

}  // namespace korven::shell
