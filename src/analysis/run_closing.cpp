#include "analysis/run_closing.hpp"

#include "structure/partial_factors.hpp"

namespace korven::analysis {

ChiusuraRisultati chiusura(const structure::MomentiResistenti& MRd, const EsitoCorsa& corsa) {
    return {.mrd2 = MRd[2],
            .mrd1 = MRd[1],
            .mMaxTotale = corsa.mMaxTotale,
            .mMinTotale = corsa.mMinTotale,
            .fsAzioni = structure::fsAzioniSezione};
}

}  // namespace korven::analysis
