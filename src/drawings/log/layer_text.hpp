#pragma once

#include <string>
#include <string_view>

namespace korven::drawings {

/// The description of a layer as the log sets it, its lines below each other, with the names of its
/// patterns in place of their code: "Limo argilloso.\nTorba.\n[campitura: 5 Argilla]". A first word
/// that is no code is a word of the text. Where the library of hatches cannot be read a pattern is
/// its number.
[[nodiscard]] std::string testoStrato(std::string_view descrStrato);

}  // namespace korven::drawings
