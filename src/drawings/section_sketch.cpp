#include "drawings/section_sketch.hpp"

#include <cassert>

#include "base/number_text.hpp"
#include "drawings/sketch_views.hpp"

namespace korven::drawings {

std::string scrittaQuota(std::size_t campo, const project::Sezione& sezione) {
    const masks::CampoSezione& c = masks::campiSezione[campo];
    const project::Campo& riga = c.campo();
    std::string scritta(c.simbolo);
    const double valore = sezione.*c.valore;
    if (valore == 0) return scritta;
    scritta += " = " + base::testoNumero(project::mostrato(riga, valore));
    if (c.valore == &project::Sezione::armNumLong)
        scritta += '/' + base::testoNumero(riga.unita.fattore) + " = " + base::testoNumero(valore);
    return scritta;
}

Schizzo schizzoSezione(project::Parte tipo, const project::Sezione& sezione) {
    using enum project::Parte;
    assert(tipo == diaframma || tipo == pali || tipo == palancola || tipo == paliArmati);
    Schizzo schizzo = tipo == diaframma   ? schizzoDiaframma(sezione)
                      : tipo == pali      ? schizzoPali(sezione)
                      : tipo == palancola ? schizzoPalancola(sezione)
                                          : schizzoPaliArmati(sezione);
    for (QuotaSchizzo& quota : schizzo.quote) quota.scritta = scrittaQuota(quota.campo, sezione);
    return schizzo;
}

}  // namespace korven::drawings
