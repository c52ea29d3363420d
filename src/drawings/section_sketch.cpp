#include "drawings/section_sketch.hpp"

#include <cassert>
#include <string_view>

#include "base/number_text.hpp"
#include "drawings/sketch_views.hpp"

namespace korven::drawings {

std::string_view simboloScheda(double project::Sezione::*misura) {
    return masks::campiSezione[masks::campoSezione(misura)].simbolo;
}

std::string scrittaQuota(std::size_t campo, const project::Sezione& sezione,
                         SimboloMisura simbolo) {
    const masks::CampoSezione& c = masks::campiSezione[campo];
    const project::Campo& riga = c.campo();
    std::string scritta(simbolo(c.valore));
    const double valore = sezione.*c.valore;
    if (valore == 0) return scritta;
    scritta += " = " + base::testoNumero(project::mostrato(riga, valore));
    if (c.valore == &project::Sezione::armNumLong)
        scritta += '/' + base::testoNumero(riga.unita.fattore) + " = " + base::testoNumero(valore);
    return scritta;
}

Schizzo schizzoSezione(project::Parte tipo, const project::Sezione& sezione,
                       SimboloMisura simbolo) {
    using enum project::Parte;
    assert(tipo == diaframma || tipo == pali || tipo == palancola || tipo == paliArmati);
    Schizzo schizzo = tipo == diaframma   ? schizzoDiaframma(sezione)
                      : tipo == pali      ? schizzoPali(sezione)
                      : tipo == palancola ? schizzoPalancola(sezione)
                                          : schizzoPaliArmati(sezione);
    for (QuotaSchizzo& quota : schizzo.quote)
        quota.scritta = scrittaQuota(quota.campo, sezione, simbolo);
    return schizzo;
}

}  // namespace korven::drawings
