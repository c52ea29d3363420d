#include "factors/load_factors.hpp"

namespace korven::factors {

namespace {

double favorevole(const Fattori& f, Natura natura) {
    return natura == Natura::permanente ? f.favorevolePermanente : f.favorevoleVariabile;
}

double diTerra(const Fattori& f, Natura natura, bool aiuta) {
    if (aiuta)
        return natura == Natura::permanente ? f.favorevolePermanente
                                            : f.favorevoleVariabile / f.effetti;
    return (natura == Natura::permanente ? f.permanente : f.variabile) / f.effetti;
}

double diTesta(const Fattori& f, Natura natura, bool aiuta) {
    if (aiuta) return favorevole(f, natura) / f.effetti;
    return (natura == Natura::permanente ? f.testaPermanente : f.testaVariabile) / f.effetti;
}

}  // namespace

FattoriCarichi fattoriCarichi(const project::DatiProgetto& dati, const Fattori& fattori,
                              const NaturaCarichi& natura) {
    FattoriCarichi carichi;
    carichi.monte = diTerra(fattori, natura.monte, dati.sovraccMonte < 0);
    for (int k = 1; k <= dati.nFasi; ++k)
        carichi.scavo.push_back(diTerra(fattori, natura.scavo, !(dati.sovraccFase[k] < 0)));
    carichi.forza = diTesta(fattori, natura.testa, dati.forzaTesta < 0);
    carichi.momento = diTesta(fattori, natura.testa, dati.momentoTesta < 0);
    return carichi;
}

}  // namespace korven::factors
