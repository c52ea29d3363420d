#include <utility>

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

void racconta(const RigaInsolita& insolita, ElencoOsservazioni& elenco) {
    const std::string dove = traduttore("riga") + " " + std::to_string(insolita.riga);
    const std::string letto = dove + ": " + insolita.campo + " = " + testoNumero(insolita.letto);
    switch (insolita.motivo) {
        case RigaInsolita::Motivo::resto:
            elenco.conParole("resto-della-riga", Soggetto{letto, {}},
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

Osservazioni esaminaFile(const std::string& percorso, const DatiProgetto& dati) {
    ElencoOsservazioni elenco;
    auto file = base::LettoreRighe::apri(percorso);
    for (const auto& insolita : project::righeInsolite(file, dati)) racconta(insolita, elenco);
    Osservazioni osservazioni = esaminaProgetto(dati);
    for (auto& osservazione : elenco.ordinate()) osservazioni.push_back(std::move(osservazione));
    perPeso(osservazioni);
    return osservazioni;
}

}  // namespace korven::review
