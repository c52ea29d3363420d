#include "base/twin_names.hpp"

#include "base/text_table.hpp"
#include "base/translated_texts.hpp"

namespace korven::base {

namespace {

bool inItaliano() { return linguaCorrente() == colonnaItaliano; }

}  // namespace

std::string Gemelli::mostrato() const { return std::string(inItaliano() ? italiano : inglese); }
std::string Gemelli::taciuto() const { return std::string(inItaliano() ? inglese : italiano); }

}  // namespace korven::base
