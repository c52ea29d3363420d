#include "base/number_text.hpp"
#include "drawings/dimension_placing.hpp"
#include "drawings/section_drawing.hpp"
#include "drawings/section_views.hpp"
#include "drawings/sheet_pile_profile.hpp"
#include "plot/plot_engine.hpp"
#include "plot/sheet.hpp"
#include "project/units.hpp"
#include "structure/section_millimetres.hpp"

namespace korven::drawings {

namespace {

using project::Lato;

constexpr double perMillimetro = scalaSezione / project::millimetri;

void contorno(const structure::PalancolaMm& p, PostiQuote& posti) {
    const auto profilo = profiloPalancola(p);
    const auto sulFoglio = [](plot::Punto punto) {
        return plot::Punto{xVista + punto.x * perMillimetro, yVista + punto.y * perMillimetro};
    };
    plot::Punto da = sulFoglio(profilo.front());
    plot::plotMuovi(da.x, da.y, plot::pennaSu);
    for (std::size_t i = 1; i <= profilo.size(); ++i) {
        const plot::Punto a = sulFoglio(profilo[i % profilo.size()]);
        plot::plotMuovi(a.x, a.y, plot::pennaGiu);
        posti.occupaTratto({da, a});
        da = a;
    }
}

}  // namespace

void vistaPalancola(const project::Sezione& s) {
    const structure::PalancolaMm p = structure::palancolaMm(s);
    PostiQuote posti;
    if (p.altAla > 0) contorno(p, posti);  // without height there are no webs, nor a wave

    const double mezzaOnda = structure::passoOnda(p) / 2 * perMillimetro;
    const double sinistra = xVista - structure::altezza(p) / 2 * perMillimetro;
    const double destra = xVista + structure::altezza(p) / 2 * perMillimetro;
    const double interno = sinistra + p.spessore * perMillimetro;
    constexpr double distanza = 1;
    plot::linea(interno, yVista, destra, yVista);  // from the width's upper end to the flange
    posti.disponi(
        {quoteVerticali(yVista - mezzaOnda, yVista, destra + distanza, destra,
                        base::testoNumero(s.palancolaBase + 2 * s.palancolaLargAla) + " cm"),
         richiamiConMisura(Lato::monte, {interno, yVista}, sinistra,
                           testoQuota("Spessore", s.palancolaSpessore)),
         richiami(Lato::monte, {xVista, yVista - mezzaOnda / 2}, sinistra,
                  testoQuota("Spessore", s.palancolaSpessAla))});
}

}  // namespace korven::drawings
