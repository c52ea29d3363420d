#include "base/colon.hpp"

#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"

namespace korven::base {

std::string duePunti() { return conDuePunti({}, {}); }

std::string puntoEVirgola() { return riempito(traduttore("%1; %2"), {"", ""}); }

std::string conDuePunti(const std::string& cosa, const std::string& detto) {
    return riempito(traduttore("%1: %2"), {cosa, detto});
}

}  // namespace korven::base
