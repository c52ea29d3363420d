#pragma once

#include <vector>

#include "factors/factor_set.hpp"
#include "project/project_data.hpp"

namespace korven::factors {

/// Whether a load is there always. The project does not say it.
enum class Natura { permanente, variabile };

/// What the loads of a project are. Without a word all may be missing, which is the worse both
/// where a load presses and where it helps.
struct NaturaCarichi {
    Natura monte = Natura::variabile;  ///< `sovraccMonte`
    Natura scavo = Natura::variabile;  ///< `sovraccFase`
    Natura testa = Natura::variabile;  ///< `forzaTesta` and `momentoTesta`

    bool operator==(const NaturaCarichi&) const = default;
};

/// By what each load of the project is multiplied before the wall is computed.
struct FattoriCarichi {
    double monte = 1;           ///< `sovraccMonte`
    std::vector<double> scavo;  ///< `sovraccFase`, element 0 is stage 1
    double forza = 1;           ///< `forzaTesta`
    double momento = 1;         ///< `momentoTesta`
};

/// Each load is unfavourable or favourable by its sign. Unfavourable are a surcharge behind the
/// wall, a force towards the excavation and a moment that turns the head towards it; favourable is
/// a surcharge on the bottom of the excavation, which loads the ground that resists. The other
/// signs are the other way round.
///
///     unfavourable    factor of the load / factor on effects
///     favourable      the same; of a permanent surcharge its factor alone
///
/// so that with the factor on effects each comes to its own. A permanent surcharge that helps acts
/// through the ground in front as the weight of that does, which has no factor of its own either.
[[nodiscard]] FattoriCarichi fattoriCarichi(const project::DatiProgetto& dati,
                                            const Fattori& fattori, const NaturaCarichi& natura);

}  // namespace korven::factors
