#include "base/number_text.hpp"
#include "plot/plot_engine.hpp"
#include "plot/sheet.hpp"
#include "structure/dimension_lines.hpp"
#include "structure/section_drawing.hpp"
#include "structure/section_millimetres.hpp"
#include "structure/section_views.hpp"
#include "structure/sheet_pile_profile.hpp"

namespace korven::structure {

namespace {

constexpr double perMillimetro = scalaSezione / 10;

void contorno(const PalancolaMm& p) {
    const auto sulFoglio = [](plot::Punto punto, int penna) {
        plot::plotMuovi(xVista + punto.x * perMillimetro, yVista + punto.y * perMillimetro, penna);
    };
    const auto profilo = profiloPalancola(p);
    sulFoglio(profilo.front(), plot::pennaSu);
    for (auto punto = profilo.begin() + 1; punto != profilo.end(); ++punto)
        sulFoglio(*punto, plot::pennaGiu);
    sulFoglio(profilo.front(), plot::pennaGiu);
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
