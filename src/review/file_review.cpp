#include <utility>

#include "base/colon.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "project/odd_lines.hpp"
#include "review/project_review.hpp"
#include "review/remark_list.hpp"

namespace korven::review {

namespace {

using base::testoNumero;
using base::traduttore;
using project::DatiProgetto;
using project::RigaInsolita;

// The field that a line of the file is called by; none for one after the last value.
std::vector<std::string> campiDetti(const std::string& detto, const DatiProgetto& dati) {
    for (const project::Campo& campo : project::campi()) {
        const std::string cosa = traduttore(campo.cosa);
        if (detto == cosa) return {nomeStabile(campo)};
        if (!project::colonna(campo) || !detto.starts_with(cosa)) continue;
        for (int i = 1; i <= project::righe(dati, campo.parte); ++i)
            if (detto == cosa + ' ' + std::to_string(i)) return {nomeStabile(campo, i)};
    }
    return {};
}

void racconta(const RigaInsolita& insolita, const DatiProgetto& dati, ElencoOsservazioni& elenco) {
    const std::string dove = traduttore("riga") + " " + std::to_string(insolita.riga);
    const std::string letto =
        dove + base::duePunti() + insolita.campo + " = " + testoNumero(insolita.letto);
    switch (insolita.motivo) {
        case RigaInsolita::Motivo::resto:
            elenco.conParole("resto-della-riga", Soggetto{letto, campiDetti(insolita.campo, dati)},
                             testo("resto-della-riga") + " (" + insolita.testo + ")");
            break;
        case RigaInsolita::Motivo::metodoSpinte:
            elenco.aggiungi(
                "metodo-riaperto",
                Soggetto{letto, {nomeStabile(project::campo(&DatiProgetto::metodoSpinte))}});
            break;
        case RigaInsolita::Motivo::oltreLultima:
            elenco.aggiungi("righe-in-piu", Soggetto{dove, {}});
            break;
    }
}

}  // namespace

Osservazioni esaminaRighe(const std::string& percorso, const DatiProgetto& dati) {
    ElencoOsservazioni elenco;
    auto file = base::LettoreRighe::apri(percorso);
    for (const auto& insolita : project::righeInsolite(file, dati))
        racconta(insolita, dati, elenco);
    return elenco.ordinate();
}

Osservazioni esaminaFile(const std::string& percorso, const DatiProgetto& dati) {
    const Osservazioni righe = esaminaRighe(percorso, dati);
    Osservazioni osservazioni = esaminaProgetto(dati);
    osservazioni.insert(osservazioni.end(), righe.begin(), righe.end());
    perPeso(osservazioni);
    return osservazioni;
}

}  // namespace korven::review
