#include <cmath>

#include "base/translated_texts.hpp"
#include "equilibrium/limit_parts.hpp"
#include "project/shown_number.hpp"
#include "review/limits.hpp"
#include "review/result_checks.hpp"
#include "safety/margin_words.hpp"
#include "safety/words.hpp"

namespace korven::review {

namespace {

using base::traduttore;
using project::DatiProgetto;
using project::numeroMostrato;
using safety::MargineFase;
namespace unita = project::unita;

// The stage that is worst by what `quanto` tells of it; nothing where no stage has such a number.
template <class Quanto>
const MargineFase* peggiore(const safety::Margine& margine, Quanto quanto) {
    const MargineFase* scelta = nullptr;
    double massimo = 0;
    for (const MargineFase& fase : margine.fasi) {
        if (!fase.inEquilibrio()) continue;
        const std::optional<double> valore = quanto(fase);
        if (!valore || (scelta && *valore <= massimo)) continue;
        scelta = &fase;
        massimo = *valore;
    }
    return scelta;
}

// What ends the wall at the strength reduction of a stage.
std::string fine(const safety::Riduzione& riduzione, double paratia) {
    if (riduzione.moto) return safety::parole(*riduzione.moto, paratia);
    if (riduzione.limitePendio)
        return traduttore("l'angolo di attrito ridotto è minore dell'inclinazione del terreno");
    return traduttore("i limiti del terreno non hanno più significato");
}

// What to do about it.
std::string rimedio(const safety::Riduzione& riduzione, bool pericolo) {
    if (riduzione.limitePendio)
        return traduttore("controllare pendio e angoli di attrito, non dipende dalla paratia");
    return traduttore(pericolo
                          ? "allungare la paratia, aggiungere un tirante o ridurre scavo e carichi"
                          : "controllare infissione, tiranti e carichi");
}

void controlloRiduzione(const DatiProgetto& dati, const safety::Margine& margine,
                        ElencoOsservazioni& elenco) {
    const MargineFase* fase = peggiore(margine, [](const MargineFase& f) {
        return f.riduzione.F ? std::optional(-*f.riduzione.F) : std::nullopt;
    });
    if (!fase || *fase->riduzione.F >= riduzioneDaVedere) return;
    const bool pericolo = *fase->riduzione.F < riduzionePericolosa;
    elenco.aggiungi(
        pericolo ? Voce("riduzione-insufficiente") : "riduzione-bassa", scavo(dati, fase->fase),
        {safety::testoF(*fase->riduzione.F),
         numeroMostrato(pericolo ? riduzionePericolosa : riduzioneDaVedere, 2),
         fine(fase->riduzione, dati.lunghezzaParatia), rimedio(fase->riduzione, pericolo)});
}

std::string dove(const std::vector<equilibrium::Tratto>& tratti) {
    equilibrium::PartiAlLimite parti;
    parti.vallePassivo = tratti;
    return tratti.empty() ? std::string() : ", " + safety::parole(parti);
}

void controlloPassiva(const DatiProgetto& dati, const safety::Margine& margine,
                      ElencoOsservazioni& elenco) {
    const MargineFase* fase =
        peggiore(margine, [](const MargineFase& f) { return f.passiva.quota; });
    if (!fase || *fase->passiva.quota <= passivaDaVedere) return;
    const bool pericolo = *fase->passiva.quota > passivaPericolosa;
    elenco.aggiungi(
        pericolo ? Voce("passiva-esaurita") : "passiva-molto-usata", scavo(dati, fase->fase),
        {numeroMostrato(*fase->passiva.quota, 1, unita::percento),
         numeroMostrato(pericolo ? passivaPericolosa : passivaDaVedere, 0, unita::percento),
         dove(fase->passiva.alLimite)});
}

std::optional<double> quotaSpostamento(const MargineFase& fase) {
    if (fase.scavo < scavoTrascurabile) return std::nullopt;
    return std::fabs(fase.estremi.spostamento.valore) / fase.scavo;
}

void controlloSpostamento(const DatiProgetto& dati, const safety::Margine& margine,
                          ElencoOsservazioni& elenco) {
    const MargineFase* fase = peggiore(margine, quotaSpostamento);
    if (!fase) return;
    const double quota = *quotaSpostamento(*fase);
    if (quota <= spostamentoDaVedere) return;
    const bool pericolo = quota > spostamentoPericoloso;
    elenco.aggiungi(
        pericolo ? Voce("spostamento-eccessivo") : "spostamento-grande", scavo(dati, fase->fase),
        {numeroMostrato(std::fabs(fase->estremi.spostamento.valore), 1, unita::spostamentoFine),
         numeroMostrato(fase->estremi.spostamento.z, 2), numeroMostrato(1 / quota, 0),
         numeroMostrato(1 / (pericolo ? spostamentoPericoloso : spostamentoDaVedere), 0)});
}

double quotaPiedeDi(const MargineFase& fase) {
    return fase.piede.spostamento / std::fabs(fase.estremi.spostamento.valore);
}

void controlloMotoPiede(const DatiProgetto& dati, const safety::Margine& margine,
                        ElencoOsservazioni& elenco) {
    const MargineFase* fase = peggiore(margine, [](const MargineFase& f) {
        const bool detto = f.piede.spostamento > spostamentoPiede && quotaPiedeDi(f) > quotaPiede;
        return detto ? std::optional(f.piede.spostamento) : std::nullopt;
    });
    if (!fase) return;
    elenco.aggiungi("piede-verso-lo-scavo", scavo(dati, fase->fase),
                    {numeroMostrato(fase->piede.spostamento, 1, unita::spostamentoFine),
                     numeroMostrato(quotaPiedeDi(*fase), 0, unita::percento)});
}

}  // namespace

void controlloMargine(const DatiProgetto& dati, const safety::Margine& margine,
                      ElencoOsservazioni& elenco) {
    controlloRiduzione(dati, margine, elenco);
    controlloPassiva(dati, margine, elenco);
    controlloSpostamento(dati, margine, elenco);
    controlloMotoPiede(dati, margine, elenco);
}

}  // namespace korven::review
