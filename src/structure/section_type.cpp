#include "structure/section_type.hpp"

namespace korven::structure {

using project::Sezione;

TipoSezione tipoSezione(const Sezione& sezione) {
    static constexpr struct {
        bool Sezione::*flag;
        TipoSezione tipo;
    } ordine[] = {
        {&Sezione::tipoDiaframma, TipoSezione::diaframma},
        {&Sezione::tipoPali, TipoSezione::pali},
        {&Sezione::tipoPalancola, TipoSezione::palancola},
        {&Sezione::tipoPaliArmati, TipoSezione::paliArmati},
    };
    for (const auto& riga : ordine)
        if (sezione.*riga.flag) return riga.tipo;
    return TipoSezione::nessuno;
}

}  // namespace korven::structure
