#include <array>
#include <cmath>

#include "base/number_text.hpp"
#include "plot/plot_engine.hpp"
#include "plot/sheet.hpp"
#include "structure/dimension_lines.hpp"
#include "structure/section_drawing.hpp"
#include "structure/section_millimetres.hpp"
#include "structure/section_views.hpp"

namespace korven::structure {

namespace {

using plot::Punto;

constexpr double perMillimetro = scalaSezione / 10;

// A point of the profile on the sheet, from `u` across the wall, downhill positive, and `v` along
// it, from the middle of the wave; both in mm.
Punto sulFoglio(double u, double v) {
    return {xVista + u * perMillimetro, yVista + v * perMillimetro};
}

// One face of the wave from end to end. The face lies `du` beyond the axis of the flats and `dv`
// beyond that of the leg; where the two meet is a corner, as of plates that are mitred.
std::array<Punto, 6> faccia(const PalancolaMm& p, double du, double dv) {
    const double meta = passoOnda(p) / 2;
    // The leg runs from (altAla, -meta + base/2) to (-altAla, -base/2).
    const auto ala = [&](double u) {
        return -meta + p.base / 2 + (p.altAla - u) * p.largAla / p.altAla + dv;
    };
    const double ritorno = p.altAla + du, mezzo = -p.altAla + du;
    return {sulFoglio(ritorno, -meta),         sulFoglio(ritorno, ala(ritorno)),
            sulFoglio(mezzo, ala(mezzo)),      sulFoglio(mezzo, -ala(mezzo)),
            sulFoglio(ritorno, -ala(ritorno)), sulFoglio(ritorno, meta)};
}

void contorno(const PalancolaMm& p) {
    const double mezzaAla = spessoreOrizzontaleAla(p) / 2;
    const auto valle = faccia(p, p.spessore / 2, mezzaAla);
    const auto monte = faccia(p, -p.spessore / 2, -mezzaAla);
    plot::plotMuovi(valle.front().x, valle.front().y, plot::pennaSu);
    for (auto punto = valle.begin() + 1; punto != valle.end(); ++punto)
        plot::plotMuovi(punto->x, punto->y, plot::pennaGiu);
    for (auto punto = monte.rbegin(); punto != monte.rend(); ++punto)
        plot::plotMuovi(punto->x, punto->y, plot::pennaGiu);
    plot::plotMuovi(valle.front().x, valle.front().y, plot::pennaGiu);
}

}  // namespace

void vistaPalancola(const project::Sezione& s) {
    const PalancolaMm p = palancolaMm(s);
    if (p.altAla > 0) contorno(p);  // without height there are no legs, nor a wave

    const double mezzaOnda = passoOnda(p) / 2 * perMillimetro;
    const double sinistra = xVista - altezza(p) / 2 * perMillimetro;
    const double destra = xVista + altezza(p) / 2 * perMillimetro;
    constexpr double distanza = 1;
    quotaVerticale(yVista - mezzaOnda, yVista, destra + distanza, destra,
                   base::testoNumero(s.palancolaBase + 2 * s.palancolaLargAla) + " cm");
    plot::linea(sinistra + p.spessore * perMillimetro, yVista, destra, yVista);  // to its flat

    const double interno = sinistra + p.spessore * perMillimetro;
    richiamoASinistra(interno, sinistra, yVista, testoQuota("Spessore", s.palancolaSpessore));
    tacca(sinistra, yVista);
    tacca(interno, yVista);
    const double yAla = yVista - mezzaOnda / 2;
    richiamoASinistra(xVista, sinistra, yAla, testoQuota("Spessore", s.palancolaSpessAla));
}

}  // namespace korven::structure
