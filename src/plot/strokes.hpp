#pragma once

#include <array>
#include <cmath>
#include <string>

#include "plot/colour.hpp"
#include "plot/geometry.hpp"

namespace korven::plot {

/// A drawn line. Origin and offsets are already in its ends [cm].
struct Segmento {
    double x1 = 0;
    double y1 = 0;
    double x2 = 0;
    double y2 = 0;
    Colore colore = nero;  ///< as drawn: white has become black
    double spessore = 0;   ///< [cm]
    bool operator==(const Segmento&) const = default;
};

/// Values of the last argument of `plotSimbolo` that say what its text is.
inline constexpr int conteggioSimbolo = -1;   ///< the text is the code of a marker
inline constexpr int conteggioCentrato = -2;  ///< the text is centred on its point

/// A written text. Origin and offsets are already in its point [cm].
struct TestoPlot {
    double x = 0;
    double y = 0;           ///< of the base line
    double altezza = 0;     ///< height of the characters [cm]
    double angolo = 0;      ///< degrees, counter-clockwise
    int conteggio = 0;      ///< conteggioCentrato, or anything else: it starts at its point
    std::string testo;      ///< UTF-8
    Colore colore = nero;   ///< as drawn: white has become black
    std::string carattere;  ///< typeface
    bool operator==(const TestoPlot&) const = default;
};

/// True for a stroke or text that a device can show: a place or size that is no finite number has
/// no pixel. One that is not shown does not keep the others from being shown.
[[nodiscard]] inline bool disegnabile(const Segmento& s) {
    return std::isfinite(s.x1) && std::isfinite(s.y1) && std::isfinite(s.x2) &&
           std::isfinite(s.y2) && std::isfinite(s.spessore);
}
[[nodiscard]] inline bool disegnabile(const TestoPlot& t) {
    return std::isfinite(t.x) && std::isfinite(t.y) && std::isfinite(t.altezza) &&
           std::isfinite(t.angolo);
}

/// A filled polygon of up to five vertices [cm], its outline closed.
struct PoligonoPlot {
    static constexpr int massimoVertici = 5;
    int nVertici = 0;
    std::array<Punto, massimoVertici> vertici{};
    Colore colore = nero;
    bool operator==(const PoligonoPlot&) const = default;
};

}  // namespace korven::plot
