#include "base/version.hpp"

namespace korven::base {

const std::string_view versione = KORVEN_VERSION;
const std::string_view nomeEVersione = "KORVEN 32 " KORVEN_VERSION;

}  // namespace korven::base
