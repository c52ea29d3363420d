#include <algorithm>
#include <cassert>
#include <cmath>
#include <memory>

#include "analysis/input_checks.hpp"
#include "analysis/node_vector.hpp"
#include "analysis/run_arrays.hpp"
#include "analysis/vertical_stress.hpp"
#include "base/colon.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "project/codes.hpp"
#include "project/shown_number.hpp"
#include "review/limits.hpp"
#include "review/remark_list.hpp"

namespace korven::review {

namespace {

using base::testoNumero;
using base::traduttore;
using project::DatiProgetto;
using project::massimoStrati;
using project::MetodoKs;
using project::MetodoSpinte;

struct ControlloStrato {
    base::Tabella<double, massimoStrati> DatiProgetto::*colonna;
    bool (*dubbio)(const DatiProgetto&, int);
    Voce voce;
    double limite = 0;  ///< as stored; of the voices that name it
};

using Dati = const DatiProgetto&;

const ControlloStrato controlliStrato[] = {
    {&DatiProgetto::profStrato, [](Dati d, int j) { return d.profStrato[j] < d.profStrato[j - 1]; },
     "strato-in-disordine"},
    {&DatiProgetto::profStrato,
     [](Dati d, int j) { return d.profStrato[j] == d.profStrato[j - 1]; }, "strato-nullo"},
    {&DatiProgetto::profStrato, [](Dati d, int j) { return d.profStrato[j] > profonditaInsolita; },
     "strato-profondo"},
    {&DatiProgetto::gammaN, [](Dati d, int j) { return d.gammaN[j] <= 0; }, "peso-mancante"},
    {&DatiProgetto::gammaN, [](Dati d, int j) { return d.gammaN[j] > massimoPeso; },
     "peso-in-kilonewton"},
    {&DatiProgetto::gammaSat, [](Dati d, int j) { return d.gammaSat[j] <= 0; }, "peso-mancante"},
    {&DatiProgetto::gammaSat, [](Dati d, int j) { return d.gammaSat[j] > massimoPeso; },
     "peso-in-kilonewton"},
    {&DatiProgetto::gammaSat,
     [](Dati d, int j) {
         return d.gammaSat[j] > 0 && d.gammaSat[j] < d.gammaN[j] && d.gammaN[j] <= massimoPeso;
     },
     "peso-saturo-minore"},
    {&DatiProgetto::phiStrato,
     [](Dati d, int j) {
         return d.phiStrato[j] == 0 && d.coesione[j] == 0 &&
                d.profStrato[j - 1] < d.lunghezzaParatia;
     },
     "strato-senza-resistenza"},
    {&DatiProgetto::phiStrato,
     [](Dati d, int j) { return d.phiStrato[j] < 0 || d.phiStrato[j] >= 90; },
     "angolo-non-ammissibile"},
    {&DatiProgetto::phiStrato,
     [](Dati d, int j) { return d.phiStrato[j] > angoloInsolito && d.phiStrato[j] < 90; },
     "angolo-insolito", angoloInsolito},
    // Whether a run can do with it depends on the method; `controlloSuolo` finds that out.
    {&DatiProgetto::phiStrato,
     [](Dati d, int j) { return d.phiStrato[j] < std::abs(d.inclinazioneMonte); },
     "angolo-minore-del-pendio"},
    {&DatiProgetto::phiStrato,
     [](Dati d, int j) {
         return d.metodoSpinte == MetodoSpinte::coulomb && d.phiStrato[j] < 90 &&
                d.phiStrato[j] + d.inclinazioneMonte >= 90;
     },
     "polo-passivo"},
    {&DatiProgetto::coesione, [](Dati d, int j) { return d.coesione[j] < 0; }, "coesione-negativa"},
    {&DatiProgetto::coesione, [](Dati d, int j) { return d.coesione[j] > coesioneInsolita; },
     "coesione-insolita", coesioneInsolita},
    {&DatiProgetto::ksStrato,
     [](Dati d, int j) { return d.metodoKs >= MetodoKs::costante && d.ksStrato[j] == 0; },
     "ks-mancante"},
    {&DatiProgetto::ksStrato,
     [](Dati d, int j) { return d.metodoKs >= MetodoKs::costante && d.ksStrato[j] < 0; },
     "ks-negativo"},
};

struct ControlloScalare {
    double DatiProgetto::*campo;
    bool (*dubbio)(Dati);
    Voce voce;
};

const ControlloScalare controlliScalari[] = {
    {&DatiProgetto::sovraccMonte, [](Dati d) { return d.sovraccMonte < 0; }, "valore-negativo"},
    {&DatiProgetto::inclinazioneMonte, [](Dati d) { return std::abs(d.inclinazioneMonte) >= 90; },
     "angolo-non-ammissibile"},
    {&DatiProgetto::gammaAcqua, [](Dati d) { return d.gammaAcqua <= 0; }, "peso-mancante"},
    {&DatiProgetto::gammaAcqua, [](Dati d) { return d.gammaAcqua > massimoPeso; },
     "peso-in-kilonewton"},
    {&DatiProgetto::coeffM,
     [](Dati d) { return d.metodoKs == MetodoKs::lancellotta && d.coeffM == 0; },
     "terreno-senza-rigidezza"},
    {&DatiProgetto::coeffM,
     [](Dati d) { return d.metodoKs == MetodoKs::lancellotta && d.coeffM < 0; }, "ks-negativo"},
};

void controlloPiede(const DatiProgetto& dati, ElencoOsservazioni& elenco) {
    const int n = dati.nStrati;
    if (n == 0 || dati.profStrato[n] >= dati.lunghezzaParatia) return;
    elenco.aggiungi(analysis::fondoStrato(dati, n) < dati.lunghezzaParatia ? Voce("terreno-finito")
                                                                           : "strato-prolungato",
                    rigaConValore(dati, &DatiProgetto::profStrato, n));
}

std::string luogo(int fase, double profondita) {
    return traduttore("fase") + " " + std::to_string(fase) + ", " + traduttore("profondità") + " " +
           testoNumero(profondita) + " m: ";
}

// The field of a layer that leaves a soil quantity without a value.
std::vector<std::string> campiIndefiniti(analysis::Indefinito motivo, int strato) {
    if (strato == 0) return {};
    switch (motivo) {
        case analysis::Indefinito::tensioneNegativa:
            return riga(&DatiProgetto::gammaSat, strato).campi;
        case analysis::Indefinito::spessoreNullo:
            return riga(&DatiProgetto::profStrato, strato).campi;
        default:
            return riga(&DatiProgetto::phiStrato, strato).campi;
    }
}

std::string luogo(int fase, double profondita, int strato, project::Lato lato) {
    return traduttore("fase") + " " + std::to_string(fase) + ", " + traduttore("profondità") + " " +
           testoNumero(profondita) + " m, " +
           nomeRiga(project::campo(&DatiProgetto::ksStrato), strato) + ", " +
           traduttore(lato == project::Lato::monte ? "lato monte" : "lato valle") +
           base::duePunti();
}

// A spring that pushes on instead of holding back; a run computes with it.
bool moduloNegativo(const DatiProgetto& dati, const analysis::StatoSuolo& suolo, int fase,
                    int nNodi, double passoNodi, ElencoOsservazioni& elenco) {
    for (int i = 1; i <= nNodi; ++i) {
        const bool monte = suolo.Ehm[i] > 0;
        if (!monte && !(suolo.Ehv[i] > 0)) continue;
        const double z = analysis::zNodo(i, passoNodi);
        const int strato = analysis::tensioneMonte(dati, z).strato;
        const bool prolungata =
            dati.metodoKs == MetodoKs::lineare && z > dati.profStrato[dati.nStrati];
        const project::Campo& ks = project::campo(&DatiProgetto::ksStrato);
        Soggetto soggetto;
        soggetto.testo =
            luogo(fase, z, strato, monte ? project::Lato::monte : project::Lato::valle) +
            nomeCampo(ks) + " = " +
            project::numeroMostrato(-(monte ? suolo.Ehm[i] : suolo.Ehv[i]), 1, ks.unita);
        soggetto.campi = riga(prolungata ? project::Membro(&DatiProgetto::profStrato)
                                         : project::Membro(&DatiProgetto::gammaSat),
                              strato)
                             .campi;
        elenco.aggiungi(prolungata ? Voce("modulo-lineare-negativo") : "modulo-negativo", soggetto);
        return true;
    }
    return false;
}

bool ksNegativoScritto(const DatiProgetto& dati) {
    for (int j = 1; j <= dati.nStrati; ++j)
        if (dati.metodoKs >= MetodoKs::costante && dati.ksStrato[j] < 0) return true;
    return dati.metodoKs == MetodoKs::lancellotta && dati.coeffM < 0;
}

}  // namespace

void controlloTerreno(const DatiProgetto& dati, ElencoOsservazioni& elenco) {
    for (int j = 1; j <= dati.nStrati; ++j)
        for (const auto& c : controlliStrato)
            if (c.dubbio(dati, j))
                elenco.aggiungi(
                    c.voce, rigaConValore(dati, c.colonna, j),
                    {testoNumero(project::mostrato(project::campo(c.colonna), c.limite))});
    for (const auto& c : controlliScalari)
        if (c.dubbio(dati)) elenco.aggiungi(c.voce, campoConValore(c.campo, dati.*c.campo));
    controlloPiede(dati, elenco);
}

void controlloSuolo(const DatiProgetto& scritti, int nSeg, ElencoOsservazioni& elenco) {
    assert(analysis::motivoRifiuto(scritti).empty());
    DatiProgetto dati = scritti;
    const auto suolo = std::make_unique<analysis::StatoSuolo>();
    const double passoNodi = dati.lunghezzaParatia / nSeg;
    // A negative ks that was typed is told of its layer.
    bool detto = ksNegativoScritto(dati);
    for (int k = 1; k <= dati.nFasi; ++k) {
        dati.faldaValle = dati.faldaFase[k];
        if (const auto rifiuto = analysis::calcolaSuolo(dati, k, nSeg + 1, passoNodi, *suolo)) {
            const int strato = analysis::tensioneMonte(dati, rifiuto->profondita).strato;
            const Soggetto colpa{{}, campiIndefiniti(rifiuto->motivo, strato)};
            elenco.conParole(
                "suolo-non-calcolabile", colpa,
                luogo(k, rifiuto->profondita) + traduttore(analysis::causa(rifiuto->motivo)));
            return;
        }
        detto = detto || moduloNegativo(dati, *suolo, k, nSeg + 1, passoNodi, elenco);
    }
}

}  // namespace korven::review
