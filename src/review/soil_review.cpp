#include <algorithm>
#include <cassert>
#include <cmath>
#include <memory>

#include "analysis/input_checks.hpp"
#include "analysis/node_vector.hpp"
#include "analysis/run_arrays.hpp"
#include "analysis/vertical_stress.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "project/codes.hpp"
#include "review/remark_list.hpp"

namespace korven::review {

namespace {

using base::testoNumero;
using base::traduttore;
using project::DatiProgetto;
using project::massimoStrati;
using project::MetodoKs;
using project::MetodoSpinte;

constexpr const char* scrittoInKilonewton =
    "sembra un peso di volume in kN/m³: il file lo tiene in t/m³, dieci volte più piccolo";

constexpr double profonditaInsolita = 200;  // no wall reaches there [m]

struct ControlloStrato {
    base::Tabella<double, massimoStrati> DatiProgetto::*colonna;
    bool (*dubbio)(const DatiProgetto&, int);
    std::string_view testo;
};

using Dati = const DatiProgetto&;

const ControlloStrato controlliStrato[] = {
    {&DatiProgetto::profStrato, [](Dati d, int j) { return d.profStrato[j] < d.profStrato[j - 1]; },
     "finisce più in alto dello strato precedente"},
    {&DatiProgetto::profStrato,
     [](Dati d, int j) { return d.profStrato[j] == d.profStrato[j - 1]; }, "ha spessore nullo"},
    {&DatiProgetto::profStrato, [](Dati d, int j) { return d.profStrato[j] > profonditaInsolita; },
     "supera i 200 m: controllare la profondità"},
    {&DatiProgetto::gammaN, [](Dati d, int j) { return d.gammaN[j] <= 0; },
     "peso di volume mancante"},
    {&DatiProgetto::gammaN, [](Dati d, int j) { return d.gammaN[j] > massimoPeso; },
     scrittoInKilonewton},
    {&DatiProgetto::gammaSat, [](Dati d, int j) { return d.gammaSat[j] <= 0; },
     "peso di volume mancante"},
    {&DatiProgetto::gammaSat, [](Dati d, int j) { return d.gammaSat[j] > massimoPeso; },
     scrittoInKilonewton},
    {&DatiProgetto::gammaSat,
     [](Dati d, int j) {
         return d.gammaSat[j] > 0 && d.gammaSat[j] < d.gammaN[j] && d.gammaN[j] <= massimoPeso;
     },
     "il peso di volume saturo è minore di quello naturale"},
    {&DatiProgetto::phiStrato,
     [](Dati d, int j) { return d.phiStrato[j] < 0 || d.phiStrato[j] >= 90; },
     "l'angolo non è ammissibile"},
    // Whether a run can do with it depends on the method; `controlloSuolo` finds that out.
    {&DatiProgetto::phiStrato,
     [](Dati d, int j) { return d.phiStrato[j] < std::abs(d.inclinazioneMonte); },
     "l'angolo di attrito è minore dell'inclinazione del terreno"},
    {&DatiProgetto::phiStrato,
     [](Dati d, int j) {
         return d.metodoSpinte == MetodoSpinte::coulomb && d.phiStrato[j] < 90 &&
                d.phiStrato[j] + d.inclinazioneMonte >= 90;
     },
     "con l'inclinazione del terreno arriva a 90°: il coefficiente passivo di Coulomb non ha "
     "significato"},
    {&DatiProgetto::coesione, [](Dati d, int j) { return d.coesione[j] < 0; }, "valore negativo"},
    {&DatiProgetto::ksStrato,
     [](Dati d, int j) { return d.metodoKs >= MetodoKs::costante && d.ksStrato[j] == 0; },
     "modulo ks mancante"},
    {&DatiProgetto::ksStrato,
     [](Dati d, int j) { return d.metodoKs >= MetodoKs::costante && d.ksStrato[j] < 0; },
     "valore negativo"},
};

struct ControlloScalare {
    double DatiProgetto::*campo;
    bool (*dubbio)(Dati);
    std::string_view testo;
};

const ControlloScalare controlliScalari[] = {
    {&DatiProgetto::sovraccMonte, [](Dati d) { return d.sovraccMonte < 0; }, "valore negativo"},
    {&DatiProgetto::inclinazioneMonte, [](Dati d) { return std::abs(d.inclinazioneMonte) >= 90; },
     "l'angolo non è ammissibile"},
    {&DatiProgetto::gammaAcqua, [](Dati d) { return d.gammaAcqua <= 0; },
     "peso di volume mancante"},
    {&DatiProgetto::gammaAcqua, [](Dati d) { return d.gammaAcqua > massimoPeso; },
     scrittoInKilonewton},
    {&DatiProgetto::coeffM,
     [](Dati d) { return d.metodoKs == MetodoKs::lancellotta && d.coeffM == 0; },
     "il terreno non ha rigidezza"},
    {&DatiProgetto::coeffM,
     [](Dati d) { return d.metodoKs == MetodoKs::lancellotta && d.coeffM < 0; }, "valore negativo"},
};

void controlloPiede(const DatiProgetto& dati, ElencoRilievi& elenco) {
    const int n = dati.nStrati;
    if (n == 0 || dati.profStrato[n] >= dati.lunghezzaParatia) return;
    elenco.avviso(rigaCampo(
        dati, &DatiProgetto::profStrato, n,
        analysis::fondoStrato(dati, n) < dati.lunghezzaParatia
            ? "la paratia scende più di 100 m sotto l'ultimo strato: là sotto non ha terreno"
            : "gli strati finiscono sopra il piede della paratia: l'ultimo viene prolungato"));
}

std::string luogo(int fase, double profondita) {
    return traduttore("fase") + " " + std::to_string(fase) + ", " + traduttore("profondità") + " " +
           testoNumero(profondita) + " m: ";
}

// A spring that pushes on instead of holding back; a run computes with it.
bool moduloNegativo(const analysis::StatoSuolo& suolo, int fase, int nNodi, double passoNodi,
                    ElencoRilievi& elenco) {
    for (int i = 1; i <= nNodi; ++i) {
        const double peggiore = std::max(suolo.Ehm[i], suolo.Ehv[i]);
        if (!(peggiore > 0)) continue;
        elenco.avviso(luogo(fase, analysis::zNodo(i, passoNodi)) +
                      campoEValore(&DatiProgetto::ksStrato, -peggiore) + ": " +
                      traduttore("il terreno spinge invece di reagire, come accade con una "
                                 "tensione efficace negativa"));
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

void controlloTerreno(const DatiProgetto& dati, ElencoRilievi& elenco) {
    for (int j = 1; j <= dati.nStrati; ++j)
        for (const auto& c : controlliStrato)
            if (c.dubbio(dati, j)) elenco.avviso(rigaCampo(dati, c.colonna, j, c.testo));
    for (const auto& c : controlliScalari)
        if (c.dubbio(dati))
            elenco.avviso(campoEValore(c.campo, dati.*c.campo) + ": " + traduttore(c.testo));
    controlloPiede(dati, elenco);
}

void controlloSuolo(const DatiProgetto& scritti, int nSeg, ElencoRilievi& elenco) {
    assert(analysis::motivoRifiuto(scritti).empty());
    DatiProgetto dati = scritti;
    const auto suolo = std::make_unique<analysis::StatoSuolo>();
    const double passoNodi = dati.lunghezzaParatia / nSeg;
    // A negative ks that was typed is told of its layer.
    bool detto = ksNegativoScritto(dati);
    for (int k = 1; k <= dati.nFasi; ++k) {
        dati.faldaValle = dati.faldaFase[k];
        if (const auto rifiuto = analysis::calcolaSuolo(dati, k, nSeg + 1, passoNodi, *suolo)) {
            elenco.impedimento(luogo(k, rifiuto->profondita) +
                               traduttore(analysis::causa(rifiuto->motivo)));
            return;
        }
        detto = detto || moduloNegativo(*suolo, k, nSeg + 1, passoNodi, elenco);
    }
}

}  // namespace korven::review
