#include "factors/factored_wall.hpp"

#include "factors/over_excavation.hpp"
#include "project/codes.hpp"
#include "safety/strength_reduction.hpp"

namespace korven::factors {

namespace {

using project::DatiProgetto;

void applica(const FattoriCarichi& carichi, DatiProgetto& dati) {
    dati.sovraccMonte *= carichi.monte;
    for (int k = 1; k <= dati.nFasi; ++k)
        dati.sovraccFase[k] *= carichi.scavo[static_cast<std::size_t>(k - 1)];
    dati.forzaTesta *= carichi.forza;
    dati.momentoTesta *= carichi.momento;
}

}  // namespace

bool nonDrenato(const DatiProgetto& dati, int j) {
    return dati.modoTensioni == project::ModoTensioni::totali || dati.phiStrato[j] == 0;
}

PareteFattorizzata fattorizza(const DatiProgetto& dati, const Fattori& fattori,
                              const NaturaCarichi& natura) {
    PareteFattorizzata parete{
        .dati = dati, .strati = {}, .carichi = fattoriCarichi(dati, fattori, natura), .inPiu = {}};
    applica(parete.carichi, parete.dati);
    for (int j = 1; j <= dati.nStrati; ++j) {
        parete.dati.gammaN[j] /= fattori.peso;
        parete.dati.gammaSat[j] /= fattori.peso;
    }
    for (int k = 1; k <= dati.nFasi; ++k)
        parete.inPiu.push_back(scavaDiPiu(parete.dati, k, fattori));
    parete.strati = analysis::suoloStrati(parete.dati);
    for (int j = 1; j <= dati.nStrati; ++j)
        safety::riduci(parete.dati, fattori.attrito,
                       nonDrenato(dati, j) ? fattori.nonDrenata : fattori.coesione,
                       parete.strati[j]);
    return parete;
}

}  // namespace korven::factors
