#pragma once

namespace korven::drawings {

/// Draws a sheet with all patterns of the hatch library: number, name and, at three size steps, a
/// field with the code that fills it.
/// @throws base::ErroreFile when the library is missing or broken
void disegnaCampionario();

}  // namespace korven::drawings
