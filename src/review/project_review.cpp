#include "review/project_review.hpp"

#include "analysis/input_checks.hpp"
#include "analysis/run_arrays.hpp"
#include "analysis/segment_count.hpp"
#include "base/translated_texts.hpp"
#include "review/remark_list.hpp"

namespace korven::review {

namespace {

using base::traduttore;
using project::DatiProgetto;

// A field with codes and what a value that is none of them comes to.
struct CampoConCodici {
    double DatiProgetto::*membro;
    std::string_view altrimenti;
};

constexpr CampoConCodici codici[] = {
    {&DatiProgetto::vincoloTesta, "codice non previsto: la testa conta come libera (1)"},
    {&DatiProgetto::vincoloPiede, "codice non previsto: il piede conta come libero (1)"},
    {&DatiProgetto::modoSpinte, "codice non previsto: le spinte sono ricalcolate ad ogni fase (1)"},
    {&DatiProgetto::modoKs, "codice non previsto: ks è ricalcolato ad ogni fase (1)"},
    {&DatiProgetto::modoTensioni, "codice non previsto: si calcola in tensioni totali (2)"},
    {&DatiProgetto::metodoSpinte,
     "codice non previsto: i coefficienti di spinta attiva e passiva restano nulli"},
    {&DatiProgetto::metodoKs, "codice non previsto: il terreno non ha rigidezza"},
};

void controlloCodici(const DatiProgetto& dati, ElencoOsservazioni& elenco) {
    for (const auto& [membro, altrimenti] : codici) {
        const double valore = dati.*membro;
        if (project::codice(project::campo(membro), valore) == nullptr)
            elenco.conParole("codice-non-previsto", campoConValore(membro, valore),
                             traduttore(altrimenti));
    }
}

void controlloIngressi(const DatiProgetto& dati, ElencoOsservazioni& elenco) {
    const auto motivi = analysis::motiviRifiuto(dati);
    for (const auto& [campo, messaggio] : motivi)
        elenco.conParole("dati-mancanti", {{}, {project::nomeStabile(project::campo(campo))}},
                         traduttore(messaggio));
    const auto nSeg = analysis::leggiNSeg(analysis::vincoli(dati).incastroPiede);
    if (!nSeg) elenco.conParole("segmenti-non-ammessi", traduttore(analysis::motivoNSeg()));
    if (!motivi.empty() || !nSeg) return;
    controlloSuolo(dati, *nSeg, elenco);
    controlloNodiTiranti(dati, *nSeg, elenco);
}

}  // namespace

Osservazioni esaminaProgetto(const DatiProgetto& dati) {
    ElencoOsservazioni elenco;
    controlloIngressi(dati, elenco);
    controlloMostrati(dati, elenco);
    controlloCodici(dati, elenco);
    controlloTerreno(dati, elenco);
    controlloAcqua(dati, elenco);
    controlloTensioni(dati, elenco);
    controlloMetodi(dati, elenco);
    controlloTiranti(dati, elenco);
    controlloPosa(dati, elenco);
    controlloFasi(dati, elenco);
    controlloSezione(dati, elenco);
    controlloTitoli(dati, elenco);
    controlloDescrizioni(dati, elenco);
    return elenco.ordinate();
}

}  // namespace korven::review
