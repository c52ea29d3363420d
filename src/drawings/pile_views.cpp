#include <algorithm>
#include <cmath>
#include <numbers>

#include "drawings/dimension_placing.hpp"
#include "drawings/section_drawing.hpp"
#include "drawings/section_views.hpp"
#include "plot/sheet.hpp"
#include "structure/section_millimetres.hpp"

namespace korven::drawings {

namespace {

using project::Lato;
using project::Sezione;

constexpr double distanzaQuote = 0.6;  // of a dimension from the piles

// Three piles above each other: -1 the lowest, 1 the uppermost.
double yPalo(int k, double interasse) { return yVista + k * interasse * scalaSezione; }

void croce(double x, double y) {
    constexpr double braccio = 0.1;
    plot::linea(x - braccio, y, x + braccio, y);
    plot::linea(x, y - braccio, x, y + braccio);
}

// The piles of a view, on the sheet.
struct Pali {
    double raggio, interasse;

    [[nodiscard]] double sinistra() const { return xVista - raggio; }
    [[nodiscard]] double destra() const { return xVista + raggio; }
    [[nodiscard]] double y(int k) const { return yPalo(k, interasse); }
};

PostiQuote attorno(const Pali& pali) {
    PostiQuote posti;
    for (int k = -1; k <= 1; ++k) posti.occupaDisco({xVista, pali.y(k)}, pali.raggio);
    return posti;
}

// Level beyond the last pile or, where the sheet ends before it, beside the middle one; upright
// beside the middle pile where neither has room.
Candidate quotaDiametro(const Pali& pali, double raggio, bool sopra, const Scritta& testo) {
    const int verso = sopra ? 1 : -1;
    Candidate quote;
    for (const int k : {verso, 0}) {
        const double y = pali.y(k) + verso * (pali.raggio + distanzaQuote);
        quote.push_back(quotaOrizzontale(xVista - raggio, xVista + raggio, y, pali.y(k), testo));
    }
    for (const double x : {pali.sinistra() - distanzaQuote, pali.destra() + distanzaQuote})
        aggiungi(quote, quoteVerticali(yVista - raggio, yVista + raggio, x, xVista, testo));
    return quote;
}

Candidate quotaInterasse(const Pali& pali, const Scritta& testo) {
    Candidate quote;
    for (const double x : {pali.destra() + 2 * distanzaQuote, pali.destra() + distanzaQuote,
                           pali.sinistra() - distanzaQuote})
        aggiungi(quote, quoteVerticali(pali.y(0), pali.y(1), x, xVista, testo));
    return quote;
}

}  // namespace

void vistaPali(const project::Sezione& s) {
    const Pali pali{s.paliDiamEst / 2 * scalaSezione, s.paliInterasse};
    const double interno = s.paliDiamInt / 2 * scalaSezione;
    for (int k = -1; k <= 1; ++k) {
        plot::disegnaCerchio(xVista, pali.y(k), pali.raggio);
        plot::disegnaCerchio(xVista, pali.y(k), interno);
        croce(xVista, pali.y(k));
    }
    PostiQuote posti = attorno(pali);
    posti.disponi({quotaDiametro(pali, pali.raggio, true, testoQuota(s, &Sezione::paliDiamEst)),
                   quotaDiametro(pali, interno, false, testoQuota(s, &Sezione::paliDiamInt)),
                   quotaInterasse(pali, testoQuota(s, &Sezione::paliInterasse))});
}

namespace {

// A bar of each pile: the one that lies nearest to a direction from the centre. Without bars the
// place on the ring where one would lie.
plot::Punto ferroVerso(double direzione, double corona, double numero) {
    double migliore = direzione, distacco = 2 * std::numbers::pi;
    const double ferri = std::min(numero, static_cast<double>(massimoFerriDisegnati));
    for (int j = 1; j <= ferri; ++j) {
        const double angolo = (j - 1) * 2 * std::numbers::pi / numero;
        const double differenza =
            std::fabs(std::remainder(angolo - direzione, 2 * std::numbers::pi));
        if (differenza < distacco - 1e-9) distacco = differenza, migliore = angolo;
    }
    return {corona * std::cos(migliore), corona * std::sin(migliore)};
}

Candidate quotaFerri(const Pali& pali, double corona, const project::Sezione& s) {
    const Scritta testo = testoQuota("Diametro correnti", s.armDiamLong);
    Candidate quote;
    for (const int k : {1, 0, -1})
        for (const double direzione : {1.0, 0.75, 1.25}) {
            const auto [x, y] = ferroVerso(direzione * std::numbers::pi, corona, s.armNumLong);
            const bool sinistra = x < corona / 2;
            aggiungi(quote,
                     richiami(sinistra ? Lato::monte : Lato::valle, {xVista + x, pali.y(k) + y},
                              sinistra ? pali.sinistra() : pali.destra(), testo));
        }
    return quote;
}

Candidate quotaCopriferro(const Pali& pali, const project::Sezione& s) {
    const Scritta testo = testoQuota("Copriferro", s.armCopriferro);
    const double copriferro = s.armCopriferro * scalaSezione;
    const double bordoFerri = pali.sinistra() + copriferro;
    Candidate quote;
    for (const int k : {-1, 0, 1})
        aggiungi(quote,
                 richiamiConMisura(Lato::monte, {bordoFerri, pali.y(k)}, pali.sinistra(), testo));
    // At the foot of the middle pile, where its sides are taken.
    const double fondo = yVista - pali.raggio;
    aggiungi(quote, quoteVerticali(fondo, fondo + copriferro, pali.sinistra() - distanzaQuote,
                                   xVista, testo));
    return quote;
}

// On the right, half way up or down a pile: clear of the dimension of the spacing.
Candidate quotaStaffe(const Pali& pali, double staffa, bool inAlto, const Scritta& testo) {
    const int verso = inAlto ? 1 : -1;
    const double lungo = staffa * std::numbers::sqrt2 / 2;
    Candidate quote;
    for (const int k : {verso, 0, -verso})
        aggiungi(quote, richiami(Lato::valle, {xVista + lungo, pali.y(k) + verso * lungo},
                                 pali.destra(), testo));
    return quote;
}

}  // namespace

void vistaPaliArmati(const project::Sezione& s) {
    const Pali pali{s.armDiamPalo / 2 * scalaSezione, s.armInterasse};
    const double raggioFerro = s.armDiamLong / 2 * scalaSezione;
    const double corona = (s.armDiamPalo / 2 - s.armCopriferro - s.armDiamLong / 2) * scalaSezione;
    // The stirrup lies about the bars, in their cover.
    const double staffa =
        (s.armDiamPalo / 2 - s.armCopriferro + s.armDiamStaffe / 2) * scalaSezione;
    const double ferri = std::min(s.armNumLong, static_cast<double>(massimoFerriDisegnati));
    for (int k = -1; k <= 1; ++k) {
        const double y = pali.y(k);
        plot::disegnaCerchio(xVista, y, pali.raggio);
        plot::disegnaCerchio(xVista, y, staffa);
        for (int j = 1; j <= ferri; ++j) {
            const double angolo = (j - 1) * 2 * std::numbers::pi / s.armNumLong;
            plot::disegnaCerchio(xVista + corona * std::cos(angolo), y + corona * std::sin(angolo),
                                 raggioFerro);
        }
        croce(xVista, y);
    }
    PostiQuote posti = attorno(pali);
    posti.disponi({quotaInterasse(pali, testoQuota(s, &Sezione::armInterasse)),
                   quotaDiametro(pali, pali.raggio, true, testoQuota(s, &Sezione::armDiamPalo)),
                   quotaFerri(pali, corona, s), quotaCopriferro(pali, s),
                   quotaStaffe(pali, staffa, true, testoQuota(s, &Sezione::armDiamStaffe)),
                   quotaStaffe(pali, staffa, false, testoQuota(s, &Sezione::armPassoStaffe))});
}

}  // namespace korven::drawings
