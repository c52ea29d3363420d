#include "studies/block_worker.hpp"

#include <algorithm>

namespace korven::studies {

LavoroBlocchi::LavoroBlocchi(const Studio& studio, const std::atomic<bool>& ferma)
    : studio_(studio),
      ferma_(ferma),
      osservatore_(ferma),
      calcolo_(studio.dati, studio.varianti.campi(), studio.domanda),
      valori_(studio.varianti.campi().size()),
      riga_(studio.righe.quanti()) {}

Righe LavoroBlocchi::calcola(Tratto tratto) {
    Righe righe;
    righe.primo = tratto.da;
    righe.valori.reserve(tratto.numero() * riga_.size());
    for (std::uint64_t i = tratto.da; i < tratto.a && !ferma_; ++i)
        if (!aggiungi(i, righe)) break;
    return righe;
}

bool LavoroBlocchi::aggiungi(std::uint64_t i, Righe& righe) {
    const std::vector<Estremita> limitati = studio_.varianti.valori(i, valori_);
    const RisultatoVariante& r = calcolo_.calcola(valori_, osservatore_);
    if (r.causa == safety::Causa::fermato) return false;
    const auto scritti = calcolo_.scritti();
    auto dove = std::copy(scritti.begin(), scritti.end(), riga_.begin());
    for (const Colonna& colonna : studio_.righe.colonne())
        *dove++ = colonna.valore(r, colonna.tirante);
    controllaSeTocca(i, righe);
    if (ferma_) return false;  // a check that was stopped says nothing
    studio_.righe.scrivi(i, riga_, righe.byte);
    righe.valori.insert(righe.valori.end(), riga_.begin(), riga_.end());
    for (const Estremita& una : limitati) ++righe.limitati[una];
    ++righe.numero;
    return true;
}

void LavoroBlocchi::controllaSeTocca(std::uint64_t i, Righe& righe) {
    if (studio_.controllo == 0 || (i + 1) % studio_.controllo != 0) return;
    if (!calcolo_.seguita()) return;
    righe.controllate.push_back(
        {i, controlla(calcolo_.dati(), studio_.domanda.nSeg, osservatore_)});
}

}  // namespace korven::studies
