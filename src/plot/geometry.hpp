#pragma once

namespace korven::plot {

/// A point of the sheet [cm], y upward.
struct Punto {
    double x = 0;
    double y = 0;
    bool operator==(const Punto&) const = default;
};

/// An upright rectangle [cm], y upward unless told otherwise.
struct Riquadro {
    double xmin = 0;
    double ymin = 0;
    double xmax = 0;
    double ymax = 0;

    [[nodiscard]] double larghezza() const { return xmax - xmin; }
    [[nodiscard]] double altezza() const { return ymax - ymin; }
    bool operator==(const Riquadro&) const = default;
};

/// A sheet of paper [cm].
struct Foglio {
    double larghezza = 0;
    double altezza = 0;
    bool operator==(const Foglio&) const = default;
};

/// A straight stroke from `da` to `a` [cm].
struct Tratto {
    Punto da;
    Punto a;
    bool operator==(const Tratto&) const = default;
};

}  // namespace korven::plot
