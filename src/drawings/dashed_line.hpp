#pragma once

namespace korven::drawings {

/// A line from (x1, y1) to (x2, y2) in dashes with the pen in use; the plotter knows none.
/// @param tratto  length of a dash; gaps are two thirds of it [cm]
void tratteggia(double x1, double y1, double x2, double y2, double tratto = 0.24);

/// Fills an upright rectangle with lines at 45 degrees, `passo` apart [cm], with the pen in use.
void rigato(double x1, double y1, double x2, double y2, double passo);

}  // namespace korven::drawings
