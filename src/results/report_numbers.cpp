#include "results/report_numbers.hpp"

#include <algorithm>
#include <cassert>
#include <cmath>

#include "analysis/wall_mesh.hpp"

namespace korven::results {

namespace {

void perGrandezza(const NumeroRelazione& nuovo, NumeroRelazione& massimo) {
    if (massimo.fase == 0 || std::fabs(nuovo.valore) > std::fabs(massimo.valore)) massimo = nuovo;
}

void momenti(const DatiRelazione& dati, int s, NumeriFase& numeri) {
    const analysis::VettoreNodi& M = dati.fasi[static_cast<std::size_t>(s - 1)].momentoNodo;
    numeri.momentoMassimo = numeri.momentoMinimo = {M[1], 0, s};
    for (int i = 2; i <= dati.nNodi; ++i) {
        const NumeroRelazione numero{M[i], analysis::zNodo(i, dati.passo), s};
        if (M[i] > numeri.momentoMassimo.valore) numeri.momentoMassimo = numero;
        if (M[i] < numeri.momentoMinimo.valore) numeri.momentoMinimo = numero;
    }
}

TiroRelazione tiro(const DatiRelazione& dati, int s, int j) {
    const AzioniFase& azioni = dati.azioni[static_cast<std::size_t>(s - 1)];
    const int i = analysis::nodoTirante(dati.progetto.profTirante[j], dati.passo);
    const bool inParete = i >= 1 && i <= dati.nNodi;
    const double y =
        inParete ? dati.fasi[static_cast<std::size_t>(s - 1)].yNodo[i] : azioni.yTirante[j];
    return {tiroNelTaglio(dati.progetto, j, y, azioni.yTirante[j]),
            inParete && gradinoNelTaglio(dati.progetto, j, i, dati.passo)};
}

NumeriFase numeriFase(const DatiRelazione& dati, int s) {
    NumeriFase numeri;
    momenti(dati, s, numeri);
    const AzioniFase& azioni = dati.azioni[static_cast<std::size_t>(s - 1)];
    numeri.momentoPiede = dati.fasi[static_cast<std::size_t>(s - 1)].momentoNodo[dati.nNodi];
    numeri.taglioPiede = azioni.taglioNodo[dati.nNodi];
    numeri.taglio = {azioni.estremi.vMin, azioni.estremi.zMin, s};
    perGrandezza({azioni.estremi.vMax, azioni.estremi.zMax, s}, numeri.taglio);
    for (int j = 1; j <= azioni.nTiranti; ++j) numeri.tiri.push_back(tiro(dati, s, j));
    return numeri;
}

}  // namespace

const NumeroRelazione& NumeriFase::momento() const {
    return momentoMassimo.valore >= -momentoMinimo.valore ? momentoMassimo : momentoMinimo;
}

const NumeroRelazione& NumeriRelazione::momentoMassimo() const {
    assert(!fasi.empty());
    return std::max_element(fasi.begin(), fasi.end(),
                            [](const auto& una, const auto& altra) {
                                return una.momentoMassimo.valore < altra.momentoMassimo.valore;
                            })
        ->momentoMassimo;
}

const NumeroRelazione& NumeriRelazione::momentoMinimo() const {
    assert(!fasi.empty());
    return std::min_element(fasi.begin(), fasi.end(),
                            [](const auto& una, const auto& altra) {
                                return una.momentoMinimo.valore < altra.momentoMinimo.valore;
                            })
        ->momentoMinimo;
}

NumeriRelazione numeriRelazione(const DatiRelazione& dati) {
    NumeriRelazione numeri;
    for (int s = 1; s <= static_cast<int>(dati.fasi.size()); ++s) {
        const NumeriFase& fase = numeri.fasi.emplace_back(numeriFase(dati, s));
        perGrandezza(fase.momento(), numeri.momento);
        perGrandezza(fase.taglio, numeri.taglio);
    }
    if (!dati.azioni.empty())
        for (int j = 1; j <= dati.azioni.back().nTiranti; ++j)
            numeri.tiriMassimi.push_back(dati.tiroTirante[j]);
    numeri.flessione = verificaMomenti(dati);
    numeri.taglioSezione = verificaAlTaglio(dati);
    return numeri;
}

}  // namespace korven::results
