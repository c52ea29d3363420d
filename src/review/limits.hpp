#pragma once

namespace korven::review {

// The limits at which remarks are made, each with its source or reason; lengths in m, shares of 1.

/// Largest displacement over the depth of the excavation: to be looked at, and dangerous. Source:
/// usual allowances for walls beside streets and buildings, from 1/200 with buildings to 1/50 in
/// the open field (Clough & O'Rourke, Construction induced movements of insitu walls, 1990, not
/// looked up).
inline constexpr double spostamentoDaVedere = 0.01;
inline constexpr double spostamentoPericoloso = 0.02;
/// Excavations less deep than this have no share worth telling [m].
inline constexpr double scavoTrascurabile = 1;

/// Strength reduction below which a wall is to be looked at, and dangerous. Reason: partial factors
/// on tan phi and c of common codes are 1.25 to 1.4, global factors on the passive side 1.5 to 2.
inline constexpr double riduzioneDaVedere = 1.5;
inline constexpr double riduzionePericolosa = 1.25;

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

}  // namespace korven::review
