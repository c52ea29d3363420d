#include "plot/dxf/colour.hpp"

namespace korven::plot {

namespace {

// Colours 1 to 15 of the palette: blue, green, cyan, red, magenta and yellow at half level, light
// and dark grey, the same six at full level, white.
constexpr Colore tavolozza[] = {daRgb(0, 0, 128),     daRgb(0, 128, 0),     daRgb(0, 128, 128),
                                daRgb(128, 0, 0),     daRgb(128, 0, 128),   daRgb(128, 128, 0),
                                daRgb(192, 192, 192), daRgb(128, 128, 128), daRgb(0, 0, 255),
                                daRgb(0, 255, 0),     daRgb(0, 255, 255),   daRgb(255, 0, 0),
                                daRgb(255, 0, 255),   daRgb(255, 255, 0),   daRgb(255, 255, 255)};

int ridotto(int parte) {
    if (parte < 64) return 0;
    return parte < 192 ? 128 : 255;
}

Colore coloreRidotto(Colore colore) {
    const int r = rosso(colore);
    const int g = verde(colore);
    const int b = blu(colore);
    if (r == g && g == b) return bianco;
    return daRgb(ridotto(r), ridotto(g), ridotto(b));
}

}  // namespace

std::optional<int> livelloDxf(Colore colore) {
    const Colore cercato = coloreRidotto(colore);
    int numero = 0;
    for (const Colore candidato : tavolozza) {
        ++numero;
        if (candidato == cercato) return numero;
    }
    return std::nullopt;
}

}  // namespace korven::plot
