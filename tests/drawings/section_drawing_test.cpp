#include "drawings/section_drawing.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "drawings/section_views.hpp"
#include "support/drawing_by_pen.hpp"

namespace korven::drawings {
namespace {

using test::polilinee;
using test::testiCon;
using Linee = std::vector<std::string>;

struct Cerchio {
    double x, y, raggio;
};

// The closed polylines of pen 4 whose points all have the same distance from their middle.
std::vector<Cerchio> cerchi() {
    std::vector<std::vector<plot::Punto>> spezzate;
    plot::statoPlot.archivio.perOgniLinea([&](const plot::Segmento& s) {
        if (test::pennaDi(s) != 4) return;
        const plot::Punto da{s.x1, s.y1}, a{s.x2, s.y2};
        if (spezzate.empty() || !(spezzate.back().back() == da)) spezzate.push_back({da});
        spezzate.back().push_back(a);
    });
    std::vector<Cerchio> trovati;
    for (const auto& punti : spezzate) {
        if (punti.size() < 10) continue;
        double x = 0, y = 0;
        for (std::size_t i = 1; i < punti.size(); ++i) x += punti[i].x, y += punti[i].y;
        x /= static_cast<double>(punti.size() - 1);
        y /= static_cast<double>(punti.size() - 1);
        const double raggio = std::hypot(punti[0].x - x, punti[0].y - y);
        for (const auto& p : punti) EXPECT_NEAR(std::hypot(p.x - x, p.y - y), raggio, 1e-9);
        trovati.push_back({x, y, raggio});
    }
    return trovati;
}

long quantiDi(double raggio) {
    const auto tutti = cerchi();
    return std::count_if(tutti.begin(), tutti.end(),
                         [&](const Cerchio& c) { return std::fabs(c.raggio - raggio) < 1e-9; });
}

class Sezione : public test::ProvaPlot {
 protected:
    Sezione() { configura(test::penneNere()); }

    void disegna() {
        dati.sezione = s;
        disegnaSezione(dati);
    }
    void diaframma() {
        s.tipoDiaframma = true;
        s.spessoreDiaframma = 80;
        s.copriferroMonte = 6, s.interasseMonte = 20, s.diametroMonte = 2.4;
        s.copriferroValle = 5, s.interasseValle = 25, s.diametroValle = 2;
    }
    void paliArmati() {
        s.tipoPaliArmati = true;
        s.armInterasse = 120, s.armDiamPalo = 100, s.armDiamLong = 2.4, s.armCopriferro = 6;
        s.armDiamStaffe = 0.8, s.armPassoStaffe = 20, s.armNumLong = 12;
    }

    project::DatiProgetto dati;
    project::Sezione s;
};

TEST_F(Sezione, HasTheHeadingsOfTheDiagramsAndItsOwnTitle) {
    dati.titoli[1] = "Muro";
    disegna();
    EXPECT_EQ(testiCon("Muro"), Linee{"\"Muro\" 10.000 26.000 h 0.50 centred"});
    EXPECT_EQ(testiCon("SEZIONE"),
              Linee{"\"SEZIONE ELEMENTO STRUTTURALE\" 10.000 22.300 h 0.40 centred"});
}

TEST_F(Sezione, NamesBothSidesWithUphillOnTheLeft) {
    disegna();
    EXPECT_EQ(testiCon("\"LATO"), (Linee{"\"LATO MONTE\" 1.800 13.000 h 0.30 angle 90 centred",
                                         "\"LATO VALLE\" 18.500 13.000 h 0.30 angle 90 centred"}));
}

TEST_F(Sezione, HasABoxOfFourCellsWithTheMaterials) {
    s.modEacciaio = 206000, s.modEcls = 31000.5, s.fyk = 430, s.fck = 25;
    disegna();
    EXPECT_EQ(testiCon("[N/mm²]"), (Linee{"\"E(acc) =206000 [N/mm²]\" 1.800 1.850 h 0.30",
                                          "\"E(cls) =31000.5 [N/mm²]\" 1.800 0.850 h 0.30",
                                          "\"Fyk =430 [N/mm²]\" 10.300 1.850 h 0.30",
                                          "\"Fck =25 [N/mm²]\" 10.300 0.850 h 0.30"}));
    EXPECT_EQ(polilinee(4), (Linee{"1.500 0.500, 18.500 0.500, 18.500 2.500, 1.500 2.500, "
                                   "1.500 0.500",
                                   "10.000 0.500, 10.000 2.500", "1.500 1.500, 18.500 1.500"}))
        << "and nothing else without a section";
}

TEST_F(Sezione, OfZerosIsAnEmptyView) {
    for (bool project::Sezione::*tipo :
         {&project::Sezione::tipoDiaframma, &project::Sezione::tipoPali,
          &project::Sezione::tipoPalancola, &project::Sezione::tipoPaliArmati}) {
        s = {};
        s.*tipo = true;
        disegna();
        EXPECT_TRUE(cerchi().empty());
        plot::statoPlot.archivio.perOgniLinea([](const plot::Segmento& linea) {
            for (const double v : {linea.x1, linea.y1, linea.x2, linea.y2})
                EXPECT_TRUE(std::isfinite(v));
        });
    }
}

TEST_F(Sezione, OfTwoTypesIsThatOfTheFirst) {
    diaframma();
    s.tipoPali = true;
    s.paliDiamEst = 50;
    disegna();
    EXPECT_TRUE(testiCon("Diametro esterno").empty());
    EXPECT_EQ(testiCon("Diametro ferri").size(), 2u);
}

TEST_F(Sezione, OfADiaphragmIsAStripOfTwoMetres) {
    diaframma();
    disegna();
    // 80 cm are 4 cm on the sheet, 2 m are 10 cm.
    EXPECT_EQ(polilinee(4)[3],
              "8.000 8.000, 12.000 8.000, 12.000 18.000, 8.000 18.000, 8.000 8.000");
    EXPECT_EQ(testiCon("\"800 [mm]\"").size(), 1u);
    EXPECT_TRUE(testiCon("\"800 [mm]\"")[0].starts_with("\"800 [mm]\" 10.000 "));
}

TEST_F(Sezione, OfADiaphragmHasABarForEachWholeSpacingAfterTheCover) {
    diaframma();
    disegna();
    EXPECT_EQ(quantiDi(0.06), 10) << "uphill, 24 mm every 20 cm";
    EXPECT_EQ(quantiDi(0.05), 8) << "downhill, 20 mm every 25 cm";
    for (const Cerchio& c : cerchi()) {
        const bool monte = c.raggio > 0.055;
        EXPECT_NEAR(c.x, monte ? 8 + 0.3 + 0.06 : 12 - 0.25 - 0.05, 1e-9);
    }
}

TEST_F(Sezione, OfADiaphragmShowsNoBarAtASpacingAboveTwoMetresOrWithoutOne) {
    diaframma();
    s.interasseMonte = 201;
    s.interasseValle = 0;
    disegna();
    EXPECT_TRUE(cerchi().empty());
    s.interasseMonte = 200;
    disegna();
    EXPECT_EQ(cerchi().size(), 1u);
}

TEST_F(Sezione, OfADiaphragmWithAnAbsurdSpacingStillEnds) {
    diaframma();
    s.interasseMonte = 1e-9;
    disegna();
    EXPECT_EQ(quantiDi(0.06), massimoFerriDisegnati);
}

TEST_F(Sezione, OfADiaphragmNamesTheSideOfItsDimensionsInMillimetres) {
    diaframma();
    disegna();
    for (const char* testo :
         {"\"Diametro ferri LATO MONTE =24 [mm]\"", "\"Diametro ferri LATO VALLE =20 [mm]\"",
          "\"Copriferro LATO MONTE =60 [mm]\"", "\"Copriferro LATO VALLE =50 [mm]\"",
          "\"Interasse monte =200 [mm]\"", "\"Interasse valle =250 [mm]\""})
        EXPECT_EQ(testiCon(testo).size(), 1u) << testo;
}

TEST_F(Sezione, OfADiaphragmKeepsItsTextsBesideTheWall) {
    diaframma();
    s.spessoreDiaframma = 150;  // from 6.25 to 13.75 on the sheet
    disegna();
    for (const plot::TestoPlot& t : plot::statoPlot.archivio.testi()) {
        if (t.testo.find("LATO") == std::string::npos || t.angolo != 0) continue;
        const double fine = t.x + plot::larghezzaTesto(t.altezza, t.testo);
        EXPECT_TRUE(fine <= 6.25 || t.x >= 13.75) << t.testo << ' ' << t.x << ' ' << fine;
    }
}

TEST_F(Sezione, OfTubesIsThreeOfThemAboveEachOtherWithACrossEach) {
    s.tipoPali = true;
    s.paliDiamEst = 60, s.paliDiamInt = 56, s.paliInterasse = 70;
    disegna();
    const auto tutti = cerchi();
    ASSERT_EQ(tutti.size(), 6u);
    for (int k = 0; k < 3; ++k) {
        const auto& esterno = tutti[static_cast<std::size_t>(2 * k)];
        EXPECT_NEAR(esterno.x, 10, 1e-9);
        EXPECT_NEAR(esterno.y, 9.5 + 3.5 * k, 1e-9);
        EXPECT_NEAR(esterno.raggio, 1.5, 1e-9);
        EXPECT_NEAR(tutti[static_cast<std::size_t>(2 * k + 1)].raggio, 1.4, 1e-9);
    }
    const auto linee = polilinee(4);
    EXPECT_EQ(std::count(linee.begin(), linee.end(), "9.900 13.000, 10.100 13.000"), 1);
    EXPECT_EQ(std::count(linee.begin(), linee.end(), "10.000 12.900, 10.000 13.100"), 1);
    for (const char* testo : {"\"Diametro esterno =600 [mm]\"", "\"Diametro interno =560 [mm]\"",
                              "\"Interasse pali =700 [mm]\""})
        EXPECT_EQ(testiCon(testo).size(), 1u) << testo;
}

TEST_F(Sezione, OfASheetPileIsOneWaveWithMitredCorners) {
    s.tipoPalancola = true;
    s.palancolaBase = 20, s.palancolaLargAla = 15, s.palancolaAltAla = 20;
    s.palancolaSpessore = 2, s.palancolaSpessAla = 1.6;  // a leg is 2 cm thick along the wall
    disegna();
    // Axis: half a flat of 10 cm, a leg of 30 by 40 cm, the middle flat of 20 cm, and back. Across
    // the wall the faces of the flats lie at 19 and 21 cm. The faces of the leg lie 1 cm beside its
    // axis, which moves 3/4 cm for each centimetre across: at 21 cm, -50 + 10 - 0.75 + 1 = -39.75.
    EXPECT_TRUE(polilinee(4, 4)[3].starts_with(
        "11.0500 10.5000, 11.0500 11.0125, 9.0500 12.5125, 9.0500 13.4875, 11.0500 14.9875, "
        "11.0500 15.5000, 10.9500 15.5000, 10.9500 15.0125, 8.9500 13.5125, 8.9500 12.4875, "
        "10.9500 10.9875, 10.9500 10.5000, 11.0500 10.5000"))
        << polilinee(4, 4)[3];
}

TEST_F(Sezione, OfASheetPileWritesBothThicknessesAndTheWidthInCentimetres) {
    s.tipoPalancola = true;
    s.palancolaBase = 20, s.palancolaLargAla = 15, s.palancolaAltAla = 20;
    s.palancolaSpessore = 1.2, s.palancolaSpessAla = 0.9;
    disegna();
    EXPECT_EQ(testiCon("\"Spessore =12 [mm]\"").size(), 1u);
    EXPECT_EQ(testiCon("\"Spessore =9 [mm]\"").size(), 1u);
    EXPECT_EQ(testiCon("\"50 cm\"").size(), 1u);
}

TEST_F(Sezione, OfReinforcedPilesHasARingOfBarsAndAStirrupInEach) {
    paliArmati();
    disegna();
    EXPECT_EQ(quantiDi(2.5), 3);
    EXPECT_EQ(quantiDi(0.06), 36);
    EXPECT_EQ(quantiDi(2.22), 3) << "(50 - 6 + 0.4) cm";
    // The first bar of the middle pile is at angle 0, on the radius 50 - 6 - 1.2 cm.
    const auto tutti = cerchi();
    EXPECT_TRUE(std::any_of(tutti.begin(), tutti.end(), [](const Cerchio& c) {
        return std::fabs(c.x - 12.14) < 1e-9 && std::fabs(c.y - 13) < 1e-9;
    }));
}

TEST_F(Sezione, OfReinforcedPilesCountsTheBarsAsStored) {
    paliArmati();
    s.armNumLong = 0.8;  // typed as 8
    disegna();
    EXPECT_EQ(quantiDi(0.06), 0);
    s.armNumLong = 1.2;
    disegna();
    EXPECT_EQ(quantiDi(0.06), 3);
}

TEST_F(Sezione, OfReinforcedPilesHasSixDimensions) {
    paliArmati();
    disegna();
    for (const char* testo : {"\"Diametro pali =1000 [mm]\"", "\"Interasse pali =1200 [mm]\"",
                              "\"Diametro correnti =24 [mm]\"", "\"Copriferro =60 [mm]\"",
                              "\"Diametro staffe =8 [mm]\"", "\"Passo staffe =200 [mm]\""})
        EXPECT_EQ(testiCon(testo).size(), 1u) << testo;
}

}  // namespace
}  // namespace korven::drawings
