#pragma once

namespace korven::safety {

/// Largest displacement over the depth of the excavation: to be looked at, and dangerous. Source:
/// usual allowances for walls beside streets and buildings, from 1/200 with buildings to 1/50 in
/// the open field (Clough & O'Rourke, Construction induced movements of insitu walls, 1990, not
/// looked up).
inline constexpr double spostamentoDaVedere = 0.01;
inline constexpr double spostamentoPericoloso = 0.02;
/// Excavations less deep than this have no share worth telling [m].
inline constexpr double scavoTrascurabile = 1;

}  // namespace korven::safety
