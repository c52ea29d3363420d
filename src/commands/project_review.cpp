#include "commands/project_review.hpp"

#include <algorithm>
#include <memory>

#include "analysis/input_checks.hpp"
#include "analysis/run_arrays.hpp"
#include "analysis/segment_count.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "commands/review_list.hpp"

namespace korven::commands {

namespace {

using base::testoNumero;
using base::traduttore;
using project::DatiProgetto;

struct Codice {
    double DatiProgetto::*campo;
    std::string_view nome;
    int ultimo;
};

constexpr Codice codici[] = {
    {&DatiProgetto::vincoloTesta, "vincolo in testa", 2},
    {&DatiProgetto::vincoloPiede, "vincolo al piede", 3},
    {&DatiProgetto::modoSpinte, "opzione delle spinte", 2},
    {&DatiProgetto::modoKs, "opzione di ks", 2},
    {&DatiProgetto::modoTensioni, "opzione delle tensioni", 2},
    {&DatiProgetto::metodoSpinte, "metodo delle spinte", 3},
    {&DatiProgetto::metodoKs, "metodo di ks", 4},
};

void controlloCodici(const DatiProgetto& dati, ElencoRilievi& elenco) {
    for (const auto& [campo, nome, ultimo] : codici) {
        const double valore = dati.*campo;
        if (valore >= 1 && valore <= ultimo && intero(valore)) continue;
        elenco.avviso(
            conValore(traduttore(nome) + ": " + traduttore("codice non previsto"), valore));
    }
    for (int j = 1; j <= dati.nTiranti; ++j)
        if (dati.tipoTirante[j] != 0 && dati.tipoTirante[j] != 1)
            elenco.avviso(
                conValore(riga("tirante", j,
                               "tipo non previsto: il calcolo lo fa agire solo a "
                               "trazione, la relazione lo dice a trazione e compressione"),
                          dati.tipoTirante[j]));
}

void controlloStrati(const DatiProgetto& dati, ElencoRilievi& elenco) {
    for (int j = 1; j <= dati.nStrati; ++j) {
        if (dati.profStrato[j] < dati.profStrato[j - 1])
            elenco.avviso(riga("strato", j, "finisce più in alto dello strato precedente"));
        else if (dati.profStrato[j] == dati.profStrato[j - 1])
            elenco.avviso(riga("strato", j, "ha spessore nullo"));
        if (dati.gammaN[j] <= 0) elenco.avviso(riga("strato", j, "peso di volume mancante"));
        if (dati.gammaSat[j] <= 0)
            elenco.avviso(riga("strato", j, "peso di volume saturo mancante"));
        if (dati.metodoKs >= 3 && dati.ksStrato[j] <= 0)
            elenco.avviso(riga("strato", j, "modulo ks mancante"));
        // Whether a run can do with it depends on the method; `controlloSuolo` finds that out.
        if (dati.phiStrato[j] < dati.inclinazioneMonte)
            elenco.avviso(
                riga("strato", j, "l'angolo di attrito è minore dell'inclinazione del terreno"));
    }
    if (dati.nStrati > 0 && dati.profStrato[dati.nStrati] < dati.lunghezzaParatia)
        elenco.avviso(traduttore(
            "gli strati finiscono sopra il piede della paratia: l'ultimo viene prolungato"));
    if (dati.metodoKs == 2 && dati.coeffM <= 0)
        elenco.avviso(traduttore("coefficiente m non positivo: il terreno non ha rigidezza"));
}

void controlloTiranti(const DatiProgetto& dati, ElencoRilievi& elenco) {
    for (int j = 1; j <= dati.nTiranti; ++j) {
        const double prof = dati.profTirante[j];
        if (dati.lunghezzaParatia > 0 && prof > dati.lunghezzaParatia)
            elenco.avviso(conValore(riga("tirante", j, "è più profondo della paratia"), prof));
        if (prof < 0)
            elenco.avviso(conValore(riga("tirante", j, "è sopra la testa della paratia"), prof));
        if (j > 1 && prof < dati.profTirante[j - 1])
            elenco.avviso(riga("tirante", j, "è più in alto del precedente"));
    }
}

void controlloTirantiFase(const DatiProgetto& dati, int k, ElencoRilievi& elenco) {
    const double inOpera = dati.tirantiFase[k];
    if (inOpera >= project::massimoTiranti + 1)
        elenco.impedimento(
            conValore(riga("fase", k, "più tiranti di quanti ne tiene la tabella (20)"), inOpera));
    else if (inOpera > dati.nTiranti)
        elenco.avviso(conValore(
            riga("fase", k, "più tiranti di quelli definiti: gli altri non hanno effetto"),
            inOpera));
    else if (inOpera < 0)
        elenco.avviso(conValore(riga("fase", k, "il numero di tiranti è negativo"), inOpera));
    if (!intero(inOpera))
        elenco.avviso(conValore(riga("fase", k, "il numero di tiranti non è intero"), inOpera));
    if (k > 1 && inOpera < dati.tirantiFase[k - 1])
        elenco.avviso(riga("fase", k, "i tiranti sono meno che nella fase precedente"));
}

void controlloFasi(const DatiProgetto& dati, ElencoRilievi& elenco) {
    for (int k = 1; k <= dati.nFasi; ++k) {
        controlloTirantiFase(dati, k, elenco);
        if (k > 1 && dati.profFase[k] < dati.profFase[k - 1])
            elenco.avviso(riga("fase", k, "lo scavo è meno profondo che nella fase precedente"));
        if (dati.lunghezzaParatia > 0 && dati.profFase[k] >= dati.lunghezzaParatia)
            elenco.avviso(riga("fase", k, "lo scavo raggiunge o supera il piede della paratia"));
    }
}

// The soil values of all stages, as a run would compute them.
void controlloSuolo(DatiProgetto dati, int nSeg, ElencoRilievi& elenco) {
    const auto suolo = std::make_unique<analysis::StatoSuolo>();
    for (int k = 1; k <= dati.nFasi; ++k) {
        dati.faldaValle = dati.faldaFase[k];
        const auto rifiuto =
            analysis::calcolaSuolo(dati, k, nSeg + 1, dati.lunghezzaParatia / nSeg, *suolo);
        if (!rifiuto) continue;
        elenco.impedimento(traduttore("fase") + " " + std::to_string(k) + ", " +
                           traduttore("profondità") + " " + testoNumero(rifiuto->profondita) +
                           " m: " + traduttore(analysis::causa(rifiuto->motivo)));
        return;
    }
}

void controlloIngressi(const DatiProgetto& dati, ElencoRilievi& elenco) {
    const auto motivi = analysis::motiviRifiuto(dati);
    for (const auto motivo : motivi) elenco.impedimento(traduttore(motivo));
    const auto nSeg = analysis::leggiNSeg(analysis::vincoli(dati).incastroPiede);
    if (!nSeg) elenco.impedimento(traduttore(analysis::messaggioNSeg));
    if (motivi.empty() && nSeg) controlloSuolo(dati, *nSeg, elenco);
}

}  // namespace

std::vector<Rilievo> esaminaProgetto(const DatiProgetto& dati) {
    ElencoRilievi elenco;
    controlloIngressi(dati, elenco);
    controlloCodici(dati, elenco);
    controlloStrati(dati, elenco);
    controlloTiranti(dati, elenco);
    controlloFasi(dati, elenco);
    controlloSezione(dati, elenco);
    return elenco.ordinato();
}

bool calcolabile(const std::vector<Rilievo>& rilievi) {
    return std::none_of(rilievi.begin(), rilievi.end(),
                        [](const Rilievo& r) { return r.impedisce; });
}

}  // namespace korven::commands
