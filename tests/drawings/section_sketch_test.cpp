#include "drawings/section_sketch.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <set>

namespace korven::drawings {
namespace {

using project::Parte;
using project::Sezione;

constexpr Parte tipi[] = {Parte::diaframma, Parte::pali, Parte::palancola, Parte::paliArmati};

const QuotaSchizzo& quota(const Schizzo& schizzo, double Sezione::*campo) {
    const std::size_t cercato = masks::campoSezione(campo);
    for (const QuotaSchizzo& q : schizzo.quote)
        if (q.campo == cercato) return q;
    ADD_FAILURE() << "no dimension of field " << cercato;
    return schizzo.quote.front();
}

// Distance between the two ends of a dimension.
double misura(const QuotaSchizzo& q) {
    if (q.estremi.size() != 2) return -1;
    return std::hypot(q.estremi[0].x - q.estremi[1].x, q.estremi[0].y - q.estremi[1].y);
}

double misura(const Schizzo& schizzo, double Sezione::*campo) {
    return misura(quota(schizzo, campo));
}

long cerchi(const Schizzo& schizzo, Segno segno) {
    return std::count_if(schizzo.cerchi.begin(), schizzo.cerchi.end(),
                         [segno](const CerchioSchizzo& c) { return c.segno == segno; });
}

Sezione diaframma() {
    Sezione s;
    s.spessoreDiaframma = 80;
    s.copriferroMonte = 6;
    s.copriferroValle = 10;
    s.interasseMonte = 20;
    s.interasseValle = 30;
    s.diametroMonte = 2.4;
    s.diametroValle = 3.2;
    return s;
}

Sezione paliArmati() {
    Sezione s;
    s.armDiamPalo = 80;
    s.armInterasse = 100;
    s.armNumLong = 12;
    s.armDiamLong = 2.4;
    s.armCopriferro = 8;
    s.armDiamStaffe = 1.2;
    s.armPassoStaffe = 20;
    return s;
}

void tuttoSulFoglio(const Schizzo& schizzo) {
    const auto dentro = [](plot::Punto p) {
        return p.x >= 0 && p.x <= larghezzaSchizzo && p.y >= 0 && p.y <= altezzaSchizzo;
    };
    for (const auto& linea : schizzo.linee)
        for (const auto& p : linea.punti) EXPECT_TRUE(dentro(p)) << p.x << ' ' << p.y;
    for (const auto& c : schizzo.cerchi) {
        EXPECT_GT(c.raggio, 0);
        EXPECT_TRUE(dentro({c.centro.x - c.raggio, c.centro.y - c.raggio}));
        EXPECT_TRUE(dentro({c.centro.x + c.raggio, c.centro.y + c.raggio}));
    }
    for (const auto& q : schizzo.quote) {
        EXPECT_TRUE(dentro(q.testo)) << q.scritta << ' ' << q.testo.x << ' ' << q.testo.y;
        EXPECT_LT(q.testo.y + corpoSchizzo * 0.8, altezzaSchizzo) << q.scritta;
        for (const auto& linea : q.linee)
            EXPECT_TRUE(dentro(linea.da) && dentro(linea.a)) << q.scritta;
    }
}

TEST(SectionSketch, HasOneDimensionForEachFieldOfItsFrame) {
    for (const Parte tipo : tipi) {
        std::multiset<std::size_t> attesi, trovati;
        for (std::size_t i = 0; i < masks::numeroCampiSezione; ++i)
            if (masks::campiSezione[i].riquadro() == tipo) attesi.insert(i);
        for (const auto& q : schizzoSezione(tipo, {}).quote) trovati.insert(q.campo);
        EXPECT_EQ(trovati, attesi);
    }
}

TEST(SectionSketch, CallsEachFieldBySymbolAndTypedNumber) {
    Sezione s = diaframma();
    s.interasseValle = 0;
    s.copriferroValle = -1;
    const Schizzo schizzo = schizzoSezione(Parte::diaframma, s);
    EXPECT_EQ(quota(schizzo, &Sezione::spessoreDiaframma).scritta, "H = 800");
    EXPECT_EQ(quota(schizzo, &Sezione::diametroMonte).scritta, "d1 = 24");
    EXPECT_EQ(quota(schizzo, &Sezione::interasseValle).scritta, "i2") << "nothing typed";
    EXPECT_EQ(quota(schizzo, &Sezione::copriferroValle).scritta, "c2 = -10");
}

TEST(SectionSketch, ShowsThatTheBarCountCalculatesWithItsTenth) {
    Sezione s = paliArmati();
    s.armNumLong = 0.8;  // a typed 8
    const Schizzo schizzo = schizzoSezione(Parte::paliArmati, s);
    EXPECT_EQ(quota(schizzo, &Sezione::armNumLong).scritta, "n = 8/10 = 0.8");
    EXPECT_EQ(cerchi(schizzo, Segno::acciaio), 0) << "a count below 1 calculates with no bar";
    EXPECT_EQ(cerchi(schizzo, Segno::assente), 16) << "where bars are meant, in both piles";
}

TEST(SectionSketch, DrawsAsManyBarsAsTheCalculationHas) {
    Sezione s = paliArmati();
    EXPECT_EQ(cerchi(schizzoSezione(Parte::paliArmati, s), Segno::acciaio), 2 * 12);
    s.armNumLong = 6.7;
    EXPECT_EQ(cerchi(schizzoSezione(Parte::paliArmati, s), Segno::acciaio), 2 * 6);
    s.armNumLong = 1e9;
    EXPECT_LE(cerchi(schizzoSezione(Parte::paliArmati, s), Segno::acciaio), 400);
}

TEST(SectionSketch, DrawsTheDiaphragmToScale) {
    const Schizzo schizzo = schizzoSezione(Parte::diaframma, diaframma());
    EXPECT_TRUE(schizzo.inScala);
    const double H = misura(schizzo, &Sezione::spessoreDiaframma);
    EXPECT_NEAR(misura(schizzo, &Sezione::copriferroMonte) / H, 6.0 / 80, 1e-12);
    EXPECT_NEAR(misura(schizzo, &Sezione::copriferroValle) / H, 10.0 / 80, 1e-12);
    EXPECT_NEAR(misura(schizzo, &Sezione::interasseMonte) / H, 20.0 / 80, 1e-12);
    EXPECT_NEAR(misura(schizzo, &Sezione::interasseValle) / H, 30.0 / 80, 1e-12);
    for (const auto& c : schizzo.cerchi)
        EXPECT_NEAR(2 * c.raggio / H, (c.centro.x < larghezzaSchizzo / 2 ? 2.4 : 3.2) / 80, 1e-12);
}

TEST(SectionSketch, PutsTheUphillSideOnTheLeft) {
    const Schizzo schizzo = schizzoSezione(Parte::diaframma, diaframma());
    for (const auto campo :
         {&Sezione::copriferroMonte, &Sezione::interasseMonte, &Sezione::diametroMonte})
        EXPECT_LT(quota(schizzo, campo).estremi.front().x, larghezzaSchizzo / 2);
    for (const auto campo :
         {&Sezione::copriferroValle, &Sezione::interasseValle, &Sezione::diametroValle})
        EXPECT_GT(quota(schizzo, campo).estremi.front().x, larghezzaSchizzo / 2);
}

TEST(SectionSketch, DrawsAFaceWithoutBarsAsSuch) {
    Sezione s = diaframma();
    s.diametroValle = 0;
    const Schizzo schizzo = schizzoSezione(Parte::diaframma, s);
    EXPECT_TRUE(schizzo.inScala);
    for (const auto& c : schizzo.cerchi)
        EXPECT_EQ(c.segno, c.centro.x < larghezzaSchizzo / 2 ? Segno::acciaio : Segno::assente);
    EXPECT_EQ(cerchi(schizzoSezione(Parte::diaframma, {}), Segno::assente), 0)
        << "with nothing typed the sketch shows both faces as they are meant";
}

TEST(SectionSketch, DrawsTheTubesToScale) {
    Sezione s;
    s.paliDiamEst = 60;
    s.paliDiamInt = 45;
    s.paliInterasse = 90;
    const Schizzo schizzo = schizzoSezione(Parte::pali, s);
    EXPECT_TRUE(schizzo.inScala);
    const double D = misura(schizzo, &Sezione::paliDiamEst);
    EXPECT_NEAR(misura(schizzo, &Sezione::paliDiamInt) / D, 0.75, 1e-12);
    EXPECT_NEAR(misura(schizzo, &Sezione::paliInterasse) / D, 1.5, 1e-12);
    ASSERT_EQ(schizzo.cerchi.size(), 4U);
    EXPECT_NEAR(schizzo.cerchi[0].raggio, D / 2, 1e-12);
    EXPECT_NEAR(schizzo.cerchi[1].raggio, D * 3 / 8, 1e-12);
}

TEST(SectionSketch, DrawsTheSheetPileToScale) {
    Sezione s;
    s.palancolaBase = 30;
    s.palancolaLargAla = 10;
    s.palancolaAltAla = 20;
    s.palancolaSpessore = 2;
    s.palancolaSpessAla = 1.5;
    const Schizzo schizzo = schizzoSezione(Parte::palancola, s);
    EXPECT_TRUE(schizzo.inScala);
    const double b = misura(schizzo, &Sezione::palancolaBase);
    EXPECT_NEAR(misura(schizzo, &Sezione::palancolaLargAla) / b, 1.0 / 3, 1e-12);
    EXPECT_NEAR(misura(schizzo, &Sezione::palancolaAltAla) / b, 2.0 / 3, 1e-12);
    EXPECT_NEAR(misura(schizzo, &Sezione::palancolaSpessore) / b, 2.0 / 30, 1e-12);
    EXPECT_NEAR(misura(schizzo, &Sezione::palancolaSpessAla) / b, 1.5 / 30, 1e-12);

    // The outline is as long as a wave, 4 * 10 + 2 * 30, and as deep as 2 * 20 + 2.
    const auto& profilo = schizzo.linee.front().punti;
    const auto [x1, x2] = std::minmax_element(profilo.begin(), profilo.end(),
                                              [](auto a, auto c) { return a.x < c.x; });
    const auto [y1, y2] = std::minmax_element(profilo.begin(), profilo.end(),
                                              [](auto a, auto c) { return a.y < c.y; });
    EXPECT_NEAR((y2->y - y1->y) / b, 100.0 / 30, 1e-12);
    EXPECT_NEAR((x2->x - x1->x) / b, 42.0 / 30, 1e-12);
}

TEST(SectionSketch, DrawsTheReinforcedPilesToScale) {
    const Schizzo schizzo = schizzoSezione(Parte::paliArmati, paliArmati());
    EXPECT_TRUE(schizzo.inScala);
    const double D = misura(schizzo, &Sezione::armDiamPalo);
    EXPECT_NEAR(misura(schizzo, &Sezione::armInterasse) / D, 1.25, 1e-12);
    EXPECT_NEAR(misura(schizzo, &Sezione::armCopriferro) / D, 0.1, 1e-12);
    for (const auto& c : schizzo.cerchi) {
        if (c.segno != Segno::acciaio) continue;
        EXPECT_NEAR(2 * c.raggio / D, 2.4 / 80, 1e-12);
        const double y = c.centro.y > altezzaSchizzo / 2 ? altezzaSchizzo / 2 + D * 0.625
                                                         : altezzaSchizzo / 2 - D * 0.625;
        // The ring: 80/2 - 8 - 2.4/2 of a diameter of 80.
        EXPECT_NEAR(std::hypot(c.centro.x - larghezzaSchizzo / 2, c.centro.y - y) / D, 30.8 / 80,
                    1e-12);
    }
}

TEST(SectionSketch, FillsWhatIsMissingInProportion) {
    Sezione s;
    s.paliDiamEst = 100;
    const Schizzo schizzo = schizzoSezione(Parte::pali, s);
    EXPECT_TRUE(schizzo.inScala);
    const Schizzo vuoto = schizzoSezione(Parte::pali, {});
    EXPECT_NEAR(misura(schizzo, &Sezione::paliDiamInt), misura(vuoto, &Sezione::paliDiamInt),
                1e-12);
}

TEST(SectionSketch, FallsBackToTheExampleWhereValuesDoNotFitEachOther) {
    Sezione s = diaframma();
    s.copriferroMonte = 60;  // deeper than the middle of the wall
    const Schizzo diaframmaErrato = schizzoSezione(Parte::diaframma, s);
    EXPECT_FALSE(diaframmaErrato.inScala);
    EXPECT_EQ(quota(diaframmaErrato, &Sezione::copriferroMonte).scritta, "c1 = 600")
        << "the typed number is written all the same";

    Sezione tubo;
    tubo.paliDiamEst = 50;
    tubo.paliDiamInt = 50;
    const Schizzo senzaParete = schizzoSezione(Parte::pali, tubo);
    EXPECT_FALSE(senzaParete.inScala);
    EXPECT_LT(misura(senzaParete, &Sezione::paliDiamInt),
              misura(senzaParete, &Sezione::paliDiamEst));
}

// The place of a text; the letters of the fonts in use are narrower than this.
struct Posto {
    double x1, x2, y1, y2;
};

Posto posto(const QuotaSchizzo& q) {
    const double larghezza = 0.6 * corpoSchizzo * static_cast<double>(q.scritta.size());
    const double x = q.testo.x - (q.appoggio == Appoggio::inizio   ? 0
                                  : q.appoggio == Appoggio::centro ? larghezza / 2
                                                                   : larghezza);
    return {x, x + larghezza, q.testo.y, q.testo.y + 0.8 * corpoSchizzo};
}

TEST(SectionSketch, KeepsItsTextsApart) {
    Sezione piena = diaframma();
    piena.paliDiamEst = 50.8;
    piena.paliDiamInt = 48.8;
    piena.paliInterasse = 60;
    piena.palancolaBase = 25;
    piena.palancolaLargAla = 7.5;
    piena.palancolaAltAla = 17.5;
    piena.palancolaSpessore = 1.25;
    piena.palancolaSpessAla = 0.95;
    const Sezione armati = paliArmati();
    for (const auto& campo : masks::campiSezione)
        if (campo.riquadro() == Parte::paliArmati) piena.*campo.valore = armati.*campo.valore;
    for (const Sezione& s : {Sezione{}, piena})
        for (const Parte tipo : tipi) {
            const auto quote = schizzoSezione(tipo, s).quote;
            for (std::size_t i = 0; i < quote.size(); ++i)
                for (std::size_t j = 0; j < i; ++j) {
                    const Posto a = posto(quote[i]), b = posto(quote[j]);
                    EXPECT_FALSE(a.x1 < b.x2 && b.x1 < a.x2 && a.y1 < b.y2 && b.y1 < a.y2)
                        << quote[i].scritta << " and " << quote[j].scritta;
                }
        }
}

TEST(SectionSketch, StaysOnItsSheetWhateverIsTyped) {
    std::mt19937 caso(32);
    std::uniform_real_distribution<double> esponente(-3, 5);
    std::uniform_int_distribution<int> dado(0, 5);
    for (int i = 0; i < 3000; ++i) {
        Sezione s;
        for (const auto& campo : masks::campiSezione) {
            const int quale = dado(caso);
            s.*campo.valore =
                quale == 0 ? 0 : std::pow(10, esponente(caso)) * (quale == 1 ? -1 : 1);
        }
        for (const Parte tipo : tipi) tuttoSulFoglio(schizzoSezione(tipo, s));
        if (HasFailure()) return;
    }
}

TEST(SectionSketch, StaysOnItsSheetForUsualProportions) {
    std::mt19937 caso(7);
    std::uniform_real_distribution<double> parte(0.02, 1.2);
    int inScala = 0;
    for (int i = 0; i < 3000; ++i) {
        Sezione s;
        for (const auto& campo : masks::campiSezione) s.*campo.valore = 50 * parte(caso);
        for (const Parte tipo : tipi) {
            const Schizzo schizzo = schizzoSezione(tipo, s);
            inScala += schizzo.inScala ? 1 : 0;
            tuttoSulFoglio(schizzo);
        }
        if (HasFailure()) return;
    }
    EXPECT_GT(inScala, 1000);
}

}  // namespace
}  // namespace korven::drawings
