#include "structure/section_type.hpp"

#include <iterator>

namespace korven::structure {

TipoSezione tipoSezione(const project::Sezione& sezione) {
    static constexpr TipoSezione ordine[] = {TipoSezione::diaframma, TipoSezione::pali,
                                             TipoSezione::palancola, TipoSezione::paliArmati};
    static_assert(std::size(ordine) == std::size(project::tipiSezione));
    for (std::size_t i = 0; i < std::size(ordine); ++i)
        if (sezione.*project::tipiSezione[i]) return ordine[i];
    return TipoSezione::nessuno;
}

}  // namespace korven::structure
