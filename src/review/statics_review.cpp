#include <algorithm>
#include <cmath>

#include "base/colon.hpp"
#include "base/translated_texts.hpp"
#include "project/shown_number.hpp"
#include "review/limits.hpp"
#include "review/result_checks.hpp"
#include "review/statics_reasons.hpp"
#include "structure/section_validity.hpp"

namespace korven::review {

namespace {

using project::DatiProgetto;
using project::numeroMostrato;
using safety::Confronto;
using safety::MargineFase;
namespace unita = project::unita;

std::string forza(double valore) { return numeroMostrato(valore, 1, unita::forza); }

void avvisa(const Confronto& c, Voce minore, Voce maggiore, const Motivo& perche,
            ElencoOsservazioni& elenco) {
    const bool meno = std::fabs(c.relazione->valore) < std::fabs(c.statica.valore);
    elenco.aggiungi(
        meno ? minore : maggiore, {{}, perche.campi},
        {forza(c.relazione->valore), std::to_string(c.relazione->fase),
         numeroMostrato(c.relazione->z, 2), forza(c.statica.valore), std::to_string(c.statica.fase),
         numeroMostrato(c.statica.z, 2),
         perche.testo.empty() ? std::string()
                              : base::puntoEVirgola() + base::traduttore(perche.testo)});
}

// The report prints, and checks, the shear of the last stage alone.
void controlloUltimoTaglio(const DatiProgetto& dati, const safety::Margine& margine,
                           ElencoOsservazioni& elenco) {
    if (!margine.sta() || !structure::staffePresenti(dati.sezione) ||
        !structure::sezioneValida(dati.sezione))
        return;
    const Confronto ultimo{margine.taglio.statica, margine.fasi.back().confronto.taglio.relazione};
    if (!lontano(ultimo) || ultimo.statica.fase == dati.nFasi) return;
    if (std::fabs(ultimo.relazione->valore) > std::fabs(ultimo.statica.valore)) return;
    elenco.aggiungi("taglio-di-altra-fase", scavo(dati, ultimo.statica.fase),
                    {forza(ultimo.relazione->valore), forza(ultimo.statica.valore),
                     numeroMostrato(ultimo.statica.z, 2)});
}

}  // namespace

bool lontano(const Confronto& c) {
    return c.scarto().value_or(0) >
           std::max(scartoStatica, staticaTrascurabile / std::fabs(c.statica.valore));
}

void controlloStatica(const DatiProgetto& dati, const safety::Margine& margine,
                      ElencoOsservazioni& elenco) {
    const Confronto& M = margine.momento;
    const Confronto& T = margine.taglio;
    if (lontano(M))
        avvisa(M, "momento-minore-della-statica", "momento-maggiore-della-statica",
               motivoMomento(dati, margine, M), elenco);
    if (lontano(T))
        avvisa(T, "taglio-minore-della-statica", "taglio-maggiore-della-statica",
               motivoTaglio(dati, margine, T), elenco);
    controlloUltimoTaglio(dati, margine, elenco);
}

}  // namespace korven::review
