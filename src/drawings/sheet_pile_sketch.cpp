#include <algorithm>
#include <cmath>

#include "drawings/sheet_pile_profile.hpp"
#include "drawings/sketch_views.hpp"
#include "structure/section_millimetres.hpp"

namespace korven::drawings {

namespace {

using plot::Punto;
using project::Sezione;

constexpr EsempioCampo esempi[] = {{&Sezione::palancolaBase, 30},
                                   {&Sezione::palancolaLargAla, 7},
                                   {&Sezione::palancolaAltAla, 20},
                                   {&Sezione::palancolaSpessore, 3},
                                   {&Sezione::palancolaSpessAla, 2.4}};

bool siDisegna(const Sezione& s) {
    const structure::PalancolaMm p = structure::palancolaMm(s);
    const double H = structure::altezza(p), onda = structure::passoOnda(p);
    return p.spessore < p.altAla && structure::spessoreOrizzontaleAla(p) < p.base && onda < 8 * H &&
           H < 4 * onda && p.spessore >= H / 200;
}

// Points of the sheet from those of the profile in mm.
struct Scala {
    double k;
    [[nodiscard]] Punto operator()(Punto p) const {
        return {xSchizzo + p.x * k, ySchizzo + p.y * k};
    }
};

// The thickness of a web is measured across it, from where its text is clear of the profile.
QuotaSchizzo quotaAla(const structure::PalancolaMm& p, const Scala& sulFoglio) {
    const Punto mezzo = sulFoglio({0, -(p.base / 2 + p.largAla)});
    const double lunghezza = std::hypot(p.largAla, p.altAla);
    const Punto normale{p.largAla / lunghezza, p.altAla / lunghezza};
    const auto lungoNormale = [&](double distanza) {
        return Punto{mezzo.x + normale.x * distanza, mezzo.y + normale.y * distanza};
    };
    constexpr double sporgenza = 4;
    const double mezza = p.spessAla / 2 * sulFoglio.k;
    const Punto gomito = lungoNormale(mezza + sporgenza);
    QuotaSchizzo quota = quotaRichiamo(&Sezione::palancolaSpessAla, false, gomito.y, {gomito.x});
    quota.linee.push_back({lungoNormale(-mezza - sporgenza / 2), gomito});
    quota.estremi = {lungoNormale(-mezza), lungoNormale(mezza)};
    return quota;
}

void quoteOnda(Schizzo& schizzo, const structure::PalancolaMm& p, const Scala& sulFoglio) {
    constexpr double distanza = 6, distanzaTesti = corpoSchizzo + 1;
    const double sinistra = sulFoglio({-structure::altezza(p) / 2, 0}).x;
    const double y1 = sulFoglio({0, -p.base / 2}).y, y2 = sulFoglio({0, p.base / 2}).y;
    const double y3 = sulFoglio({0, p.base / 2 + p.largAla}).y;
    schizzo.quote.push_back(quotaLungo(&Sezione::palancolaBase, y1, y2, sinistra - distanza,
                                       sulFoglio({-p.altAla, 0}).x));
    QuotaSchizzo ala =
        quotaLungo(&Sezione::palancolaLargAla, y2, y3, sinistra - distanza, xSchizzo);
    ala.testo.y = std::max(ala.testo.y, schizzo.quote.back().testo.y + distanzaTesti);
    schizzo.quote.push_back(ala);
}

}  // namespace

Schizzo schizzoPalancola(const Sezione& sezione) {
    const auto [s, inScala] = valoriSchizzo(sezione, esempi, siDisegna);
    const structure::PalancolaMm p = structure::palancolaMm(s);
    const Scala sulFoglio{
        std::min(larghezzaCorpo / structure::altezza(p), altezzaCorpo / structure::passoOnda(p))};
    const double meta = structure::passoOnda(p) / 2;
    const double sopra = sulFoglio({0, meta}).y, sotto = sulFoglio({0, -meta}).y;
    Schizzo schizzo;
    schizzo.inScala = inScala;
    LineaSchizzo profilo{{}, true, Segno::acciaio};
    for (const Punto& punto : profiloPalancola(p)) profilo.punti.push_back(sulFoglio(punto));
    schizzo.linee.push_back(profilo);
    schizzo.linee.push_back({{{xSchizzo, sotto - 3}, {xSchizzo, sopra}}, false, Segno::asse});
    quoteOnda(schizzo, p, sulFoglio);
    const double asse = sulFoglio({p.altAla, 0}).x;
    schizzo.quote.push_back(
        quotaTraverso(&Sezione::palancolaAltAla, xSchizzo, asse, sopra + 4, sopra));
    const double mezzo = p.spessore / 2 * sulFoglio.k;
    schizzo.quote.push_back(
        quotaRichiamo(&Sezione::palancolaSpessore, false, sotto - 4, {asse - mezzo, asse + mezzo}));
    for (const double x : {asse - mezzo, asse + mezzo})
        schizzo.quote.back().linee.push_back({{x, sotto}, {x, sotto - 5}});
    schizzo.quote.push_back(quotaAla(p, sulFoglio));
    return schizzo;
}

}  // namespace korven::drawings
