#pragma once

#include <string_view>

namespace korven::base {

/// The version of the programs, as the build states it: "1.1.0".
extern const std::string_view versione;

/// What every program answers when it is asked for its version: "KORVEN 32 1.1.0".
extern const std::string_view nomeEVersione;

}  // namespace korven::base
