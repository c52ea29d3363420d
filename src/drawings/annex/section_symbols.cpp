#include "drawings/annex/section_symbols.hpp"

#include "drawings/section_sketch.hpp"

namespace korven::drawings {

std::string_view simboloFormule(double project::Sezione::*misura) {
    return misura == &project::Sezione::armDiamLong ? "dl" : simboloScheda(misura);
}

}  // namespace korven::drawings
