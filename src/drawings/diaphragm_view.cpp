#include <algorithm>
#include <cmath>

#include "base/translated_texts.hpp"
#include "drawings/dimension_placing.hpp"
#include "drawings/section_drawing.hpp"
#include "drawings/section_views.hpp"
#include "plot/sheet.hpp"

namespace korven::drawings {

namespace {

using project::Lato;

constexpr double striscia = 200;  // [cm]
constexpr double mezzaStriscia = striscia / 2 * scalaSezione;

// One face of the wall with its row of bars. `verso` leads from the face into the wall: 1 uphill,
// where the face is on the left, -1 downhill.
struct Faccia {
    double x;  ///< of the face on the sheet
    double verso;
    double copriferro, interasse, diametro;  ///< [cm]
    std::string_view lato, didascaliaInterasse;
};

int ferriDisegnati(double interasse) {
    if (!(interasse > 0)) return 0;
    return static_cast<int>(
        std::min(std::floor(striscia / interasse), static_cast<double>(massimoFerriDisegnati)));
}

// The row is in the middle of the strip.
double yFerro(const Faccia& faccia, int k) {
    const double primo = -(ferriDisegnati(faccia.interasse) - 1) / 2.0;
    return yVista + (primo + k) * faccia.interasse * scalaSezione;
}

Lato lato(const Faccia& faccia) { return faccia.verso > 0 ? Lato::monte : Lato::valle; }

std::string conLato(std::string_view didascalia, const Faccia& faccia, double centimetri) {
    return base::traduttore(didascalia) + ' ' + base::traduttore(faccia.lato) + " =" +
           testoMisura(centimetri);
}

Candidate quotaInterasse(const Faccia& faccia) {
    const Scritta testo = testoQuota(faccia.didascaliaInterasse, faccia.interasse);
    const int n = ferriDisegnati(faccia.interasse);
    if (n < 2) {
        Candidate quote;
        for (const double y : {yVista + 1, yVista - 1})  // the only bar lies in the middle
            aggiungi(quote, richiami(lato(faccia), {faccia.x, y}, faccia.x, testo));
        return quote;
    }
    const int k = n / 2 - 1;
    const double y1 = yFerro(faccia, k), y2 = yFerro(faccia, k + 1);
    constexpr double distanza = 0.8, vicino = 0.4;
    auto quote = quoteVerticali(y1, y2, faccia.x - faccia.verso * distanza, faccia.x, testo);
    aggiungi(quote, quoteVerticali(y1, y2, faccia.x - faccia.verso * vicino, faccia.x, testo));
    return quote;
}

// Between two bars, so that the strokes are clear of the marks, the lowest pair first.
std::vector<double> altezzeCopriferro(const Faccia& faccia) {
    const int n = ferriDisegnati(faccia.interasse);
    if (n < 2) return {yVista - 3, yVista + 3, yVista - 2, yVista + 2, yVista - 4, yVista + 4};
    const double mezzo = faccia.interasse * scalaSezione / 2;
    const double primo = yFerro(faccia, 0), ultimo = yFerro(faccia, n - 1);
    return {primo + mezzo,      ultimo - mezzo,    primo - mezzo / 2,
            ultimo + mezzo / 2, primo + mezzo / 2, ultimo - mezzo / 2};
}

Candidate quotaCopriferro(const Faccia& faccia, double bordoFerri) {
    const Scritta testo = conLato("Copriferro", faccia, faccia.copriferro);
    Candidate quote;
    for (const double y : altezzeCopriferro(faccia))
        aggiungi(quote, richiamiConMisura(lato(faccia), {bordoFerri, y}, faccia.x, testo));
    return quote;
}

void disegnaFaccia(const Faccia& faccia, PostiQuote& posti) {
    const double raggio = faccia.diametro / 2 * scalaSezione;
    const double bordoFerri = faccia.x + faccia.verso * faccia.copriferro * scalaSezione;
    const double xFerri = bordoFerri + faccia.verso * raggio;
    const int n = ferriDisegnati(faccia.interasse);
    for (int k = 0; k < n; ++k) plot::disegnaCerchio(xFerri, yFerro(faccia, k), raggio);

    const double yAlto = n > 0 ? yFerro(faccia, n - 1) : yVista + mezzaStriscia - 0.5;
    posti.disponi({quotaInterasse(faccia),
                   richiami(lato(faccia), {xFerri, yAlto}, faccia.x,
                            conLato("Diametro ferri", faccia, faccia.diametro)),
                   quotaCopriferro(faccia, bordoFerri)});
}

}  // namespace

void vistaDiaframma(const project::Sezione& s) {
    const double mezza = s.spessoreDiaframma / 2 * scalaSezione;
    const double sinistra = xVista - mezza, destra = xVista + mezza;
    constexpr double sotto = yVista - mezzaStriscia, sopra = yVista + mezzaStriscia;
    PostiQuote posti;
    if (s.spessoreDiaframma > 0) {
        plot::linea(sinistra, sotto, destra, sotto);
        plot::linea(destra, sotto, destra, sopra);
        plot::linea(destra, sopra, sinistra, sopra);
        plot::linea(sinistra, sopra, sinistra, sotto);
        posti.occupa({sinistra, sotto, destra, sopra});
    }
    posti.disponi({{quotaOrizzontale(sinistra, destra, sopra + 0.6, sopra + 0.1,
                                     testoMisura(s.spessoreDiaframma))}});
    disegnaFaccia({sinistra, 1, s.copriferroMonte, s.interasseMonte, s.diametroMonte, "LATO MONTE",
                   "Interasse monte"},
                  posti);
    disegnaFaccia({destra, -1, s.copriferroValle, s.interasseValle, s.diametroValle, "LATO VALLE",
                   "Interasse valle"},
                  posti);
}

}  // namespace korven::drawings
