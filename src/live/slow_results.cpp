#include "live/slow_results.hpp"

#include <exception>
#include <utility>

#include "review/result_review.hpp"
#include "safety/short_margin.hpp"

namespace korven::live {

RisultatiLenti calcolaLenti(const DomandaLenta& domanda) {
    try {
        auto breve = safety::margineBreve(domanda.dati, domanda.nSeg);
        if (!breve) return {};
        auto osservazioni = review::esaminaRisultati(breve->dati, breve->margine);
        return {std::move(breve->margine), std::move(osservazioni)};
    } catch (const std::exception&) {
        return {};
    }
}

}  // namespace korven::live
