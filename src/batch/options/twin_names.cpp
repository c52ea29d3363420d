#include "batch/options/twin_names.hpp"

#include "base/text_table.hpp"
#include "base/translated_texts.hpp"

namespace korven::batch {

namespace {

bool inItaliano() { return base::linguaCorrente() == base::colonnaItaliano; }

}  // namespace

const std::string& Gemelli::mostrato() const { return inItaliano() ? italiano : inglese; }
const std::string& Gemelli::taciuto() const { return inItaliano() ? inglese : italiano; }

}  // namespace korven::batch
