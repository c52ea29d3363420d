#pragma once

#include "safety/large_displacement.hpp"
#include "safety/strength_reduction.hpp"

namespace korven::review {

// The limits at which remarks are made, each with its source or reason; lengths in m, shares of 1.

using safety::riduzioneDaVedere, safety::riduzionePericolosa;
using safety::spostamentoDaVedere, safety::spostamentoPericoloso, safety::scavoTrascurabile;

/// Use of the passive side in front. Reason: the inverse of the same factors.
inline constexpr double passivaDaVedere = 0.80;
inline constexpr double passivaPericolosa = 0.90;

/// Displacement of the toe towards the excavation [m], and as a share of the largest: both must be
/// passed. Reason: below, the toe is still clamped by the ground as designs suppose.
inline constexpr double spostamentoPiede = 0.005;
inline constexpr double quotaPiede = 0.2;

/// Difference between the report's moments or shears and the statics of the same wall. Reason: less
/// than that drowns in the accuracy of soil data.
inline constexpr double scartoStatica = 0.05;
/// Smaller differences of a moment [t m] or a shear [t] are told nowhere: 1 kN m, 1 kN.
inline constexpr double staticaTrascurabile = 0.1;

/// Difference between an anchor's force in the report and the true one: share and force [t].
inline constexpr double scartoTiro = 0.01;
inline constexpr double scartoTiroForza = 0.1;
/// Smaller differences of a force [t] are told nowhere, whatever their share: a tenth of a kN.
inline constexpr double tiroTrascurabile = 0.01;
/// A report's force that is too small by more than this share is dangerous. Reason: the partial
/// factors on the resistance of anchors of common codes are 1.1 and more.
inline constexpr double scartoTiroGrave = 0.1;

/// Share of its prestress that a prop must have lost in all stages. Reason: less is lost where it
/// is stressed.
inline constexpr double sgravioPuntone = 0.1;

/// The last digit of a displacement in the result file [m], of which the report makes the force of
/// an anchor; and what two of them, rounded and left by an iteration that ends at 1E-8 m, may be
/// off by.
inline constexpr double cifraSpostamento = 1e-7;
inline constexpr double incertezzaSpostamento = 1.5e-7;

/// What the nodes move an excavation, a water level, a layer or an anchor by [m], and the mesh
/// error of the envelopes from which the first three are told. Reason: a hand's breadth of
/// excavation is what a site can keep to.
inline constexpr double spostatoDaiNodi = 0.1;
inline constexpr double erroreMagliaDetto = 0.05;

/// Rotation of a fixed toe as a share of the wall's largest. Reason: what gives less is fixed as
/// far as any drawing of the wall shows.
inline constexpr double cedimentoIncastro = 0.01;

/// Weights above this can't be t/m3 [t/m3]: they were meant as kN/m3. Reason: steel weighs 7.85,
/// the heaviest soil half of 5.
inline constexpr double massimoPeso = 5;

/// Friction angle above which a layer is to be looked at [°]. Reason: gravels have 35 to 42, dense
/// ones seldom 45; beyond, the passive coefficient grows faster than any test is accurate.
inline constexpr double angoloInsolito = 45;

/// Cohesion above which a layer is to be looked at [t/m2]. Reason: 100 kN/m2 is the undrained
/// strength of a very stiff clay, five times the effective cohesion of soils; 10 kPa, typed in kPa
/// into a file that keeps t/m2, are as many.
inline constexpr double coesioneInsolita = 10;

/// Depth of a layer [m] that no wall reaches: the deepest diaphragm walls have 150 m.
inline constexpr double profonditaInsolita = 200;

/// A typed stiffness this many times the section's own, or less than that part of it, is a slip.
/// Reason: cracks and creep halve it.
inline constexpr double scartoRigidezza = 3;

/// What a number of the section may be without a word.
struct Intervallo {
    double minimo;
    double massimo;
};

/// Strengths [N/mm2]. Sources: EN 1992-1-1, table 3.1, concrete C12 to C90; common bar steels from
/// FeB 22 k to 700; EN 10248-1, sheet piles S240 GP to S430 GP, with S235 and S500 about them (none
/// looked up).
inline constexpr Intervallo fckUsuale{12, 90};
inline constexpr Intervallo fykUsuale{220, 700};
inline constexpr Intervallo fykPalancole{235, 500};

/// Modulus of steel [N/mm2], and how many times larger or smaller than usual a modulus may be.
/// Reason: no steel is off by that much; halving the modulus of concrete for cracks is a choice
/// that is worth a word.
inline constexpr double moduloUsualeAcciaio = 210000;
inline constexpr double scartoModulo = 1.5;

/// Lengths that can be built [cm], wide enough for the largest and the smallest walls. Reason: what
/// lies beyond was typed in another unit. Bars of 5 to 60 mm, a cover of 10 to 200 mm, walls of 20
/// cm to 3 m, piles of 5 cm to 4 m, sheets of 3 to 50 mm.
inline constexpr Intervallo copriferroCostruibile{1, 20};
inline constexpr Intervallo ferroCostruibile{0.5, 6};
inline constexpr Intervallo staffaCostruibile{0.4, 3};
inline constexpr Intervallo interasseFerriCostruibile{3, 100};
inline constexpr Intervallo diaframmaCostruibile{20, 300};
inline constexpr Intervallo paloCostruibile{5, 400};
inline constexpr Intervallo lamieraCostruibile{0.3, 5};
inline constexpr Intervallo ondaCostruibile{2, 100};

/// Room between two bars [cm]. Source: EN 1992-1-1, 8.2, 20 mm (not looked up).
inline constexpr double luceTraFerri = 2;

/// Bars of a pile. Source: EN 1536, four longitudinal bars (not looked up).
inline constexpr int ferriPerPalo = 4;
/// Few piles have so many bars, but any report of ten bars or more shows such a number.
inline constexpr double ferriDaRelazione = 100;

/// Bending resistance below which a section carries nothing [kN m per metre]. Reason: a wall of 1 m
/// of height already takes more.
inline constexpr double resistenzaNulla = 1;

}  // namespace korven::review
