#include "analysis/staged_run.hpp"

#include <algorithm>
#include <memory>

namespace korven::analysis {

EsitoCorsa calcolaFasi(project::DatiProgetto dati, int nSeg, OsservatoreCorsa& osservatore,
                       ArraysCorsa& arrays) {
    preparaCorsa(dati, nSeg, arrays);
    EsitoCorsa corsa;
    corsa.fasi.reserve(static_cast<std::size_t>(std::clamp(dati.nFasi, 0, project::massimoFasi)));
    for (int k = 1; k <= dati.nFasi; ++k) {
        osservatore.inizio(k);
        const FaseCalcolata& fase =
            corsa.fasi.emplace_back(risolviFase(k, dati, arrays, osservatore));
        if (fase.esito != EsitoFase::convergente) {
            osservatore.caduta(fase);
            break;
        }
        corsa.mMaxTotale = std::max(corsa.mMaxTotale, fase.estremi.mMaxFase);
        corsa.mMinTotale = std::min(corsa.mMinTotale, fase.estremi.mMinFase);
        osservatore.fine(fase);
    }
    return corsa;
}

EsitoCorsa calcolaFasi(const project::DatiProgetto& dati, int nSeg, OsservatoreCorsa& osservatore) {
    const auto arrays = std::make_unique<ArraysCorsa>();
    return calcolaFasi(dati, nSeg, osservatore, *arrays);
}

}  // namespace korven::analysis
