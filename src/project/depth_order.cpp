#include "project/depth_order.hpp"

#include <algorithm>

namespace korven::project {

namespace {

constexpr Membro profondita[] = {&DatiProgetto::profStrato, &DatiProgetto::profTirante,
                                 &DatiProgetto::profFase};

bool stessaCoppia(const DatiProgetto& prima, const DatiProgetto& dopo, const Disordine& d) {
    if (d.riga > righe(prima, d.campo->parte)) return false;
    const auto uguale = [&](int riga) {
        return numeroConservato(prima, *d.campo, riga) == numeroConservato(dopo, *d.campo, riga);
    };
    return uguale(d.riga - 1) && uguale(d.riga);
}

}  // namespace

std::vector<Disordine> disordini(const DatiProgetto& dati) {
    std::vector<Disordine> trovati;
    for (const Membro& membro : profondita) {
        const Campo& colonna = campo(membro);
        for (int i = 2; i <= righe(dati, colonna.parte); ++i)
            if (numeroConservato(dati, colonna, i) < numeroConservato(dati, colonna, i - 1))
                trovati.push_back({&colonna, i});
    }
    return trovati;
}

std::vector<Disordine> nuoviDisordini(const DatiProgetto& prima, const DatiProgetto& dopo) {
    std::vector<Disordine> trovati = disordini(dopo);
    std::erase_if(trovati, [&](const Disordine& d) { return stessaCoppia(prima, dopo, d); });
    return trovati;
}

}  // namespace korven::project
