#include "drawings/dimension_lines.hpp"

#include <algorithm>
#include <cmath>

#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "plot/plot_engine.hpp"
#include "project/field_table.hpp"

namespace korven::drawings {

namespace {

using project::Lato;

constexpr double altezzaQuote = 0.2;
constexpr double distacco = 0.2;  // of a text from its line, more than what sticks out of it
constexpr double distaccoRichiamo = 0.08;
constexpr double mezzoTratto = 0.1;  // of the strokes that end a dimension
constexpr double sporgenza = 0.08;   // of an extension line beyond its dimension

// What letters take up below the base line and, with an accent, above it.
constexpr double sottoLinea = 0.35 * altezzaQuote, sopraLinea = 1.15 * altezzaQuote;

plot::Tratto estremo(double x, double y) {
    return {{x - mezzoTratto, y - mezzoTratto}, {x + mezzoTratto, y + mezzoTratto}};
}

// One end of an upright dimension: extension line and stroke, or the arrow where it goes on beyond.
void estremoVerticale(Quota& quota, double y, double x, double xOltre, double xOggetto) {
    const double visibile = std::clamp(y, stanzaQuote.ymin, stanzaQuote.ymax);
    if (visibile == y) {
        quota.linee.push_back({{xOggetto, y}, {xOltre, y}});
        quota.linee.push_back(estremo(x, y));
        return;
    }
    const double coda = y > visibile ? visibile - 2 * mezzoTratto : visibile + 2 * mezzoTratto;
    quota.linee.push_back({{x - mezzoTratto, coda}, {x, visibile}});
    quota.linee.push_back({{x, visibile}, {x + mezzoTratto, coda}});
}

// From the point to `x`, level at `y`.
std::vector<plot::Tratto> lineaRichiamo(Lato lato, plot::Punto oggetto, double y, double x) {
    const double piega = std::fabs(y - oggetto.y);
    const plot::Punto gomito{lato == Lato::monte ? oggetto.x - piega : oggetto.x + piega, y};
    std::vector<plot::Tratto> linee{estremo(oggetto.x, oggetto.y), {gomito, {x, y}}};
    if (piega > 0) linee.push_back({oggetto, gomito});
    return linee;
}

}  // namespace

Scritta::Scritta(const std::string& scritto)
    : testo(scritto), lungo(plot::larghezzaTesto(altezzaQuote, scritto)) {}

plot::Riquadro Quota::riquadroTesto() const {
    const double lungo = scritta.lungo;
    const double da = centrato ? -lungo / 2 : 0;
    const auto [x, y] = posizione;
    if (angolo == 0) return {x + da, y - sottoLinea, x + da + lungo, y + sopraLinea};
    return {x - sopraLinea, y + da, x + sottoLinea, y + da + lungo};
}

void Quota::disegna() const {
    for (const auto& [da, a] : linee) plot::linea(da.x, da.y, a.x, a.y);
    if (centrato)
        plot::testoCentrato(posizione.x, posizione.y, altezzaQuote, scritta.testo, angolo);
    else
        plot::testoDa(posizione.x, posizione.y, altezzaQuote, scritta.testo, angolo);
}

std::string testoMisura(double centimetri) {
    constexpr project::Unita misura = project::unita::misura;
    return base::testoNumero(mostrato(misura, centimetri)) + " " + traParentesi(misura);
}

std::string testoQuota(std::string_view didascalia, double centimetri) {
    return base::traduttore(didascalia) + " =" + testoMisura(centimetri);
}

std::string testoQuota(const project::Sezione& sezione, double project::Sezione::*misura) {
    return testoQuota(project::campo(misura).didascalia, sezione.*misura);
}

Quota quotaOrizzontale(double x1, double x2, double y, double yOggetto, const Scritta& scritta) {
    const bool sopra = y > yOggetto;
    const double yOltre = y + (sopra ? sporgenza : -sporgenza);
    return {.linee = {{{x1, yOggetto}, {x1, yOltre}},
                      {{x2, yOggetto}, {x2, yOltre}},
                      {{x1, y}, {x2, y}},
                      estremo(x1, y),
                      estremo(x2, y)},
            .scritta = scritta,
            .posizione = {(x1 + x2) / 2, sopra ? y + distacco : y - distacco - altezzaQuote},
            .centrato = true};
}

Quota quotaVerticale(double y1, double y2, double x, double xOggetto, const Scritta& scritta) {
    const bool aDestra = x > xOggetto;
    const double xOltre = x + (aDestra ? sporgenza : -sporgenza);
    const double sotto = std::max(std::min(y1, y2), stanzaQuote.ymin);
    const double sopra = std::min(std::max(y1, y2), stanzaQuote.ymax);
    Quota quota{
        .linee = {{{x, sotto}, {x, sopra}}},
        .scritta = scritta,
        .posizione = {aDestra ? x + distacco + altezzaQuote : x - distacco, (sotto + sopra) / 2},
        .angolo = 90,
        .centrato = true};
    for (const double y : {y1, y2}) estremoVerticale(quota, y, x, xOltre, xOggetto);
    return quota;
}

Quota richiamo(Lato lato, plot::Punto oggetto, double y, const Scritta& scritta) {
    const bool sinistra = lato == Lato::monte;
    constexpr double rientro = 0.1;  // of the text from the edge of the room
    const double bordo = sinistra ? stanzaQuote.xmin + rientro : stanzaQuote.xmax - rientro;
    const double inizio = sinistra ? bordo : bordo - scritta.lungo;
    return {.linee = lineaRichiamo(lato, oggetto, y, bordo),
            .scritta = scritta,
            .posizione = {inizio, y + distaccoRichiamo}};
}

Quota richiamoGirato(Lato lato, plot::Punto oggetto, double y, double x, bool inAlto,
                     const Scritta& scritta) {
    constexpr double rientro = 0.1;  // of the text from the bend
    const double lungo = scritta.lungo + rientro;
    Quota quota{.linee = lineaRichiamo(lato, oggetto, y, x),
                .scritta = scritta,
                .posizione = {lato == Lato::monte ? x - distaccoRichiamo
                                                  : x + distaccoRichiamo + altezzaQuote,
                              inAlto ? y + rientro : y - lungo},
                .angolo = 90};
    quota.linee.push_back({{x, y}, {x, inAlto ? y + lungo : y - lungo}});
    return quota;
}

plot::Tratto tacca(double x, double y) { return {{x, y - mezzoTratto}, {x, y + mezzoTratto}}; }

}  // namespace korven::drawings
