#include <algorithm>
#include <cmath>
#include <numbers>

#include "plot/sheet.hpp"
#include "structure/dimension_lines.hpp"
#include "structure/section_drawing.hpp"
#include "structure/section_millimetres.hpp"
#include "structure/section_views.hpp"

namespace korven::structure {

namespace {

constexpr double distanzaQuote = 0.6;  // of a dimension from the piles

// Three piles above each other: -1 the lowest, 1 the uppermost.
double yPalo(int k, double interasse) { return yVista + k * interasse * scalaSezione; }

void croce(double x, double y) {
    constexpr double braccio = 0.1;
    plot::linea(x - braccio, y, x + braccio, y);
    plot::linea(x, y - braccio, x, y + braccio);
}

void quotaDiametroSopra(double diametro, double interasse, std::string_view didascalia) {
    const double raggio = diametro / 2 * scalaSezione;
    const double y = yPalo(1, interasse);
    quotaOrizzontale(xVista - raggio, xVista + raggio, y + raggio + distanzaQuote, y,
                     testoQuota(didascalia, diametro));
}

void quotaInterassePali(double diametro, double interasse) {
    const double raggio = diametro / 2 * scalaSezione;
    quotaVerticale(yPalo(0, interasse), yPalo(1, interasse), xVista + raggio + 2 * distanzaQuote,
                   xVista, testoQuota("Interasse pali", interasse));
}

}  // namespace

void vistaPali(const project::Sezione& s) {
    const double esterno = s.paliDiamEst / 2 * scalaSezione;
    const double interno = s.paliDiamInt / 2 * scalaSezione;
    for (int k = -1; k <= 1; ++k) {
        const double y = yPalo(k, s.paliInterasse);
        plot::disegnaCerchio(xVista, y, esterno);
        plot::disegnaCerchio(xVista, y, interno);
        croce(xVista, y);
    }
    quotaDiametroSopra(s.paliDiamEst, s.paliInterasse, "Diametro esterno");
    const double yBasso = yPalo(-1, s.paliInterasse);
    quotaOrizzontale(xVista - interno, xVista + interno, yBasso - esterno - distanzaQuote, yBasso,
                     testoQuota("Diametro interno", s.paliDiamInt));
    quotaInterassePali(s.paliDiamEst, s.paliInterasse);
}

void vistaPaliArmati(const project::Sezione& s) {
    const double raggio = s.armDiamPalo / 2 * scalaSezione;
    const double raggioFerro = s.armDiamLong / 2 * scalaSezione;
    const double corona = (s.armDiamPalo / 2 - s.armCopriferro - s.armDiamLong / 2) * scalaSezione;
    // The stirrup lies about the bars, in their cover.
    const double staffa =
        (s.armDiamPalo / 2 - s.armCopriferro + s.armDiamStaffe / 2) * scalaSezione;
    const double ferri = std::min(s.armNumLong, static_cast<double>(massimoFerriDisegnati));
    for (int k = -1; k <= 1; ++k) {
        const double y = yPalo(k, s.armInterasse);
        plot::disegnaCerchio(xVista, y, raggio);
        plot::disegnaCerchio(xVista, y, staffa);
        for (int j = 1; j <= ferri; ++j) {
            const double angolo = (j - 1) * 2 * std::numbers::pi / s.armNumLong;
            plot::disegnaCerchio(xVista + corona * std::cos(angolo), y + corona * std::sin(angolo),
                                 raggioFerro);
        }
        croce(xVista, y);
    }
    quotaDiametroSopra(s.armDiamPalo, s.armInterasse, "Diametro pali");
    quotaInterassePali(s.armDiamPalo, s.armInterasse);

    const double ySopra = yPalo(1, s.armInterasse), ySotto = yPalo(-1, s.armInterasse);
    const double sinistra = xVista - raggio, destra = xVista + raggio;
    richiamoASinistra(xVista - corona, sinistra, ySopra,
                      testoQuota("Diametro correnti", s.armDiamLong));
    const double bordoFerri = sinistra + s.armCopriferro * scalaSezione;
    richiamoASinistra(bordoFerri, sinistra, ySotto, testoQuota("Copriferro", s.armCopriferro));
    tacca(sinistra, ySotto);
    tacca(bordoFerri, ySotto);
    // Above and below the dimension of the spacing.
    const double yStaffa = staffa * std::numbers::sqrt2 / 2;
    richiamoADestra(xVista + yStaffa, destra, ySopra + yStaffa,
                    testoQuota("Diametro staffe", s.armDiamStaffe));
    richiamoADestra(xVista + yStaffa, destra, ySotto - yStaffa,
                    testoQuota("Passo staffe", s.armPassoStaffe));
}

}  // namespace korven::structure
