#pragma once

namespace korven::structure {

/// Design stress of concrete, parabola-rectangle, compression only.
///
///     strain >= 0               0
///     -0.002 <= strain < 0      0.85 fcd (1000 strain) (1 + 250 strain)
///     strain < -0.002           -0.85 fcd
///
/// The plateau has no end here; the ultimate strain belongs to the limit search.
///
/// @param deformazione  strain [-], tension positive
/// @param fcd           design strength fck / 1.6 [N/mm2]
/// @return stress [N/mm2], never positive
/// Source: CEN, ENV 1992-1-1 (1991), 4.2.1.3.3 (not looked up)
[[nodiscard]] double tensioneCls(double deformazione, double fcd);

/// Design stress of steel, elastic and perfectly plastic, equal in tension and compression.
///
/// @param deformazione  strain [-], tension positive
/// @param fyd           design yield strength fyk / 1.15 [N/mm2]
/// @param modEacciaio   elastic modulus [N/mm2], above 0
/// @return strain x modEacciaio, held between -fyd and fyd [N/mm2]
/// Source: CEN, ENV 1992-1-1 (1991), 4.2.2.3.2 (not looked up)
[[nodiscard]] double tensioneAcciaio(double deformazione, double fyd, double modEacciaio);

}  // namespace korven::structure
