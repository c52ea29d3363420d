#pragma once

#include <optional>

#include "analysis/layer_soil.hpp"
#include "equilibrium/verdict.hpp"
#include "project/project_data.hpp"

namespace korven::safety {

/// The range in which the strength reduction is searched for, and how closely.
inline constexpr double minimaRiduzione = 0.1;
inline constexpr double massimaRiduzione = 10;
inline constexpr double passoRiduzione = 0.001;

/// Strength reduction below which a wall is to be looked at, and dangerous. Reason: partial factors
/// on tan phi and c of common codes are 1.25 to 1.4, global factors on the passive side 1.5 to 2.
inline constexpr double riduzioneDaVedere = 1.5;
inline constexpr double riduzionePericolosa = 1.25;

/// What the search of one stage finds.
struct Riduzione {
    /// The largest factor at which the stage is in equilibrium; nothing when there is none in the
    /// range, or when the equilibrium at `massimaRiduzione` shows that it is larger.
    std::optional<double> F;
    bool oltre = false;  ///< equilibrium at `massimaRiduzione` still
    /// Of `oltre`: it stands on ground without any strength too, so that restraints or anchors
    /// hold it.
    bool senzaTerreno = false;
    bool limitePendio = false;  ///< beyond F the friction angle is below the slope of the ground
    std::optional<equilibrium::Meccanismo> moto{};  ///< the movement that F cannot hold any more
};

/// Divides tan phi and c of a layer, as far as active and passive limits go: at-rest coefficients
/// and moduli stay those of the whole strength.
/// @param strato  of `analysis::suoloStrati(dati)`
void riduci(const project::DatiProgetto& dati, double perAttrito, double perCoesione,
            analysis::SuoloStrato& strato);

/// The layers with tan phi and c divided by F, as `riduci` does it.
[[nodiscard]] analysis::SuoloStrati stratiRidotti(const project::DatiProgetto& dati,
                                                  const analysis::SuoloStrati& interi, double F);

/// The layers without any strength: a heavy fluid, which presses both ways with the vertical
/// stress. It has no slope of the ground.
[[nodiscard]] analysis::SuoloStrati stratiSenzaResistenza(const project::DatiProgetto& dati,
                                                          const analysis::SuoloStrati& interi);

/// The strength reduction of stage k: the largest F for which the stage, with tan phi and c of all
/// layers divided by F on both sides, has an equilibrium by the exact verdict. Found by bisection
/// to `passoRiduzione`, as the factor below which the strength is known to do.
///
/// Coulomb's passive coefficient has a pole where the friction angle and the slope are 90 degrees;
/// for a wall that needs more strength than it has, the search begins above the factor that leads
/// there.
/// @param nSeg  segments of the wall
/// Source: Zienkiewicz, Humpheson & Lewis (1975); Griffiths & Lane (1999) (neither looked up).
[[nodiscard]] Riduzione riduzione(const project::DatiProgetto& dati, int nSeg, int k);

}  // namespace korven::safety
