#include <algorithm>
#include <cmath>
#include <numbers>

#include "drawings/sketch_views.hpp"
#include "structure/section_millimetres.hpp"

namespace korven::drawings {

namespace {

using plot::Punto;
using project::Sezione;

constexpr EsempioCampo esempiPali[] = {
    {&Sezione::paliDiamEst, 50}, {&Sezione::paliDiamInt, 42}, {&Sezione::paliInterasse, 65}};

constexpr EsempioCampo esempiArmati[] = {
    {&Sezione::armDiamPalo, 60},  {&Sezione::armInterasse, 75}, {&Sezione::armDiamLong, 5},
    {&Sezione::armCopriferro, 7}, {&Sezione::armDiamStaffe, 2}, {&Sezione::armPassoStaffe, 20}};

bool interasseSiDisegna(double interasse, double diametro) {
    return interasse >= diametro / 2 && interasse <= 4 * diametro;
}

bool paliSiDisegnano(const Sezione& s) {
    return s.paliDiamInt < s.paliDiamEst && interasseSiDisegna(s.paliInterasse, s.paliDiamEst);
}

bool armatiSiDisegnano(const Sezione& s) {
    const double D = s.armDiamPalo, d = s.armDiamLong;
    return interasseSiDisegna(s.armInterasse, D) && s.armCopriferro + d < D / 2 && d >= D / 100 &&
           s.armDiamStaffe <= d;
}

// Two piles above each other; how they are seen.
struct Coppia {
    double k;  ///< units of the sketch for a centimetre
    double raggio;
    double basso, alto;  ///< y of the middles
};

Coppia coppia(double diametro, double interasse) {
    const double k = std::min(larghezzaCorpo / diametro, altezzaCorpo / (interasse + diametro));
    return {k, diametro / 2 * k, ySchizzo - interasse / 2 * k, ySchizzo + interasse / 2 * k};
}

void asse(Schizzo& schizzo, const Coppia& c) {
    constexpr double oltre = 2;
    schizzo.linee.push_back(
        {{{xSchizzo, c.basso - c.raggio - oltre}, {xSchizzo, c.alto + c.raggio + oltre}},
         false,
         Segno::asse});
}

QuotaSchizzo quotaInterasse(double Sezione::*campo, const Coppia& c) {
    constexpr double distanza = 7;
    return quotaLungo(campo, c.basso, c.alto, xSchizzo + c.raggio + distanza, xSchizzo);
}

QuotaSchizzo quotaSopra(double Sezione::*campo, const Coppia& c) {
    constexpr double distanza = 5;
    return quotaTraverso(campo, xSchizzo - c.raggio, xSchizzo + c.raggio,
                         c.alto + c.raggio + distanza, c.alto);
}

constexpr double ferriEsempio = 8;
constexpr double angoloGomito = 1.25 * std::numbers::pi;  // of the bar that the count points to
constexpr int massimoFerriSchizzo = 200;                  // more of them run into one another

// Angles of the bars as the calculations set them: the first at 0, a fractional count leaves a gap.
// Where a count leaves no bar to calculate with, those of the example.
std::vector<double> angoliFerri(double numero) {
    std::vector<double> angoli;
    const double n = numero >= 1 ? numero : ferriEsempio;
    for (int i = 0; i <= n - 1 && i < massimoFerriSchizzo; ++i)
        angoli.push_back(2 * std::numbers::pi * i / n);
    return angoli;
}

void disegnaPaloArmato(Schizzo& schizzo, const Sezione& s, double numero, const Coppia& c,
                       double y) {
    const double corona = c.raggio - (s.armCopriferro + s.armDiamLong / 2) * c.k;
    // The stirrup lies about the bars, in their cover.
    const double staffa = c.raggio - (s.armCopriferro - s.armDiamStaffe / 2) * c.k;
    schizzo.cerchi.push_back({{xSchizzo, y}, c.raggio, Segno::calcestruzzo});
    schizzo.cerchi.push_back({{xSchizzo, y}, staffa, Segno::tratto});
    const Segno ferro = numero >= 1 ? Segno::acciaio : Segno::assente;
    for (const double angolo : angoliFerri(numero))
        schizzo.cerchi.push_back(
            {{xSchizzo + corona * std::cos(angolo), y + corona * std::sin(angolo)},
             s.armDiamLong / 2 * c.k,
             ferro});
}

// A piece of pile seen from its side: the spacing of the stirrups can't be seen in plan.
void fiancoConStaffe(Schizzo& schizzo, const Sezione& s) {
    constexpr double x1 = 84, x2 = 96, sotto = 4, sopra = 26;
    constexpr double passoMinimo = 3, passoMassimo = 9;
    const double passo =
        std::clamp(s.armPassoStaffe * (x2 - x1) / s.armDiamPalo, passoMinimo, passoMassimo);
    schizzo.linee.push_back(
        {{{x1, sotto}, {x2, sotto}, {x2, sopra}, {x1, sopra}}, true, Segno::calcestruzzo});
    const int n = static_cast<int>((sopra - sotto - 1) / passo) + 1;
    const auto y = [&](int i) { return (sotto + sopra) / 2 + (i - (n - 1) / 2.0) * passo; };
    constexpr double rientro = 1.2;
    for (int i = 0; i < n; ++i)
        schizzo.linee.push_back({{{x1 + rientro, y(i)}, {x2 - rientro, y(i)}}});
    const int mezzo = n / 2 - 1;
    constexpr double distanza = 3;
    schizzo.quote.push_back(
        quotaLungo(&Sezione::armPassoStaffe, y(mezzo), y(mezzo + 1), x2 + distanza, x2 - rientro));
    schizzo.quote.back().testo.x += rientro;  // clear of strokes that may be close
}

void quoteFerri(Schizzo& schizzo, const Sezione& s, double numero, const Coppia& c) {
    const double corona = c.raggio - (s.armCopriferro + s.armDiamLong / 2) * c.k;
    const double staffa = c.raggio - (s.armCopriferro - s.armDiamStaffe / 2) * c.k;
    double piuASinistra = 0;
    for (const double angolo : angoliFerri(numero))
        if (std::cos(angolo) < std::cos(piuASinistra)) piuASinistra = angolo;
    schizzo.quote.push_back(quotaRichiamo(&Sezione::armDiamLong, true,
                                          c.alto + corona * std::sin(piuASinistra),
                                          {xSchizzo + corona * std::cos(piuASinistra)}));
    const double bordo = xSchizzo - c.raggio;
    schizzo.quote.push_back(quotaRichiamo(&Sezione::armCopriferro, true, c.basso,
                                          {bordo, bordo + s.armCopriferro * c.k}));
    const double angoloStaffa = 0.77 * std::numbers::pi;  // between the leaders of the other two
    schizzo.quote.push_back(quotaRichiamo(&Sezione::armDiamStaffe, true,
                                          c.basso + staffa * std::sin(angoloStaffa),
                                          {xSchizzo + staffa * std::cos(angoloStaffa)}));
    // Below the others, where its longer text has room; to the bar nearest to that corner.
    constexpr double yNumero = 5, xGomito = 52;
    double verso = 0;
    for (const double angolo : angoliFerri(numero))
        if (std::cos(angolo - angoloGomito) > std::cos(verso - angoloGomito)) verso = angolo;
    const Punto ferro{xSchizzo + corona * std::cos(verso), c.basso + corona * std::sin(verso)};
    QuotaSchizzo conto = quotaRichiamo(&Sezione::armNumLong, true, yNumero, {xGomito});
    conto.linee.push_back({{xGomito, yNumero}, ferro});
    conto.estremi = {ferro};
    schizzo.quote.push_back(conto);
}

}  // namespace

Schizzo schizzoPali(const Sezione& sezione) {
    const auto [s, inScala] = valoriSchizzo(sezione, esempiPali, paliSiDisegnano);
    const Coppia c = coppia(s.paliDiamEst, s.paliInterasse);
    const double interno = s.paliDiamInt / 2 * c.k;
    Schizzo schizzo;
    schizzo.inScala = inScala;
    asse(schizzo, c);
    for (const double y : {c.basso, c.alto}) {
        schizzo.cerchi.push_back({{xSchizzo, y}, c.raggio, Segno::acciaio});
        schizzo.cerchi.push_back({{xSchizzo, y}, interno, Segno::calcestruzzo});
    }
    schizzo.quote.push_back(quotaSopra(&Sezione::paliDiamEst, c));
    schizzo.quote.push_back(quotaTraverso(&Sezione::paliDiamInt, xSchizzo - interno,
                                          xSchizzo + interno, c.basso - c.raggio - 5, c.basso));
    schizzo.quote.push_back(quotaInterasse(&Sezione::paliInterasse, c));
    return schizzo;
}

Schizzo schizzoPaliArmati(const Sezione& sezione) {
    const auto [s, inScala] = valoriSchizzo(sezione, esempiArmati, armatiSiDisegnano);
    const Coppia c = coppia(s.armDiamPalo, s.armInterasse);
    // Before a count is typed the ring is that of the example.
    const double numero = sezione.armNumLong > 0 ? sezione.armNumLong : ferriEsempio;
    Schizzo schizzo;
    schizzo.inScala = inScala;
    asse(schizzo, c);
    for (const double y : {c.basso, c.alto}) disegnaPaloArmato(schizzo, s, numero, c, y);
    schizzo.quote.push_back(quotaSopra(&Sezione::armDiamPalo, c));
    schizzo.quote.push_back(quotaInterasse(&Sezione::armInterasse, c));
    quoteFerri(schizzo, s, numero, c);
    fiancoConStaffe(schizzo, s);
    return schizzo;
}

}  // namespace korven::drawings
