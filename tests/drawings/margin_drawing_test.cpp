#include "drawings/margin_drawing.hpp"

#include <algorithm>

#include "base/value_error.hpp"
#include "plot/sheet.hpp"
#include "project/codes.hpp"
#include "support/drawing_by_pen.hpp"
#include "support/wall_builder.hpp"

namespace korven::drawings {
namespace {

using equilibrium::EsitoFase;
using test::testiCon;
using Testi = std::vector<std::string>;

constexpr SegniMargine segni{
    .riduzioneModesta = 1.5, .riduzioneScarsa = 1.25, .passivaAlta = 0.8, .passivaMoltoAlta = 0.9};

// A wall of 10 m, three stages; F 2, 1.2 and beyond 10; 40, 85 and 95 % used.
class DisegnoMargine : public test::ProvaPlot {
 protected:
    DisegnoMargine() {
        configura(test::penneNere());
        dati = test::muro().lungo(10).strato({}).dati();
        dati.nFasi = 0;
        for (const double scavo : {2.0, 4.0, 4.0}) test::aggiungiFase(dati, {.scavo = scavo});
        test::aggiungiTirante(dati, 1, 500, 5);
        margine.nSeg = 50;
        margine.paratia = 10;
        margine.lunghezza = {safety::EsitoLunghezza::trovata, 7.5};
        margine.fasi.resize(3);
        const double F[] = {2, 1.2, 0}, uso[] = {0.4, 0.85, 0.95};
        for (std::size_t i = 0; i < 3; ++i) {
            safety::MargineFase& fase = margine.fasi[i];
            fase.fase = static_cast<int>(i) + 1;
            fase.scavo = dati.profFase[fase.fase];
            fase.esito = EsitoFase::equilibrio;
            fase.passiva.quota = uso[i];
            if (F[i] > 0) fase.riduzione.F = F[i];
        }
        margine.fasi[2].riduzione.oltre = true;
        margine.fasi[1].riduzione.moto = equilibrium::Meccanismo{false, 2, 1, 0};
    }

    void disegna() { disegnaSicurezza(dati, margine, segni); }

    // Lines of the stage's pen to the right of the section that are neither level nor upright.
    [[nodiscard]] static long inclinate(int penna) {
        long quante = 0;
        plot::statoPlot.archivio.perOgniLinea([&](const plot::Segmento& s) {
            if (test::pennaDi(s) == penna && s.x1 > 10 && s.x1 != s.x2 && s.y1 != s.y2) ++quante;
        });
        return quante;
    }

    project::DatiProgetto dati;
    safety::Margine margine;
};

TEST_F(DisegnoMargine, HasANumberForEachStageAndTheMarksOfBothDiagrams) {
    disegna();
    for (const char* testo :
         {"\"2.00\"", "\"1.20\"", "\"> 10\"", "\"40\"", "\"85\"", "\"95\"", "\"1.25\"", "\"90\"",
          "RIDUZIONE DELLA RESISTENZA F [-]", "PASSIVA USATA [%]", "SICUREZZA DELLA PARATIA"})
        EXPECT_FALSE(testiCon(testo).empty()) << testo;
    EXPECT_EQ(testiCon("\"1.5\"").size(), 2u);  // the mark, and a number of the axis
    EXPECT_EQ(plot::statoPlot.nome, "sicurezza");
    margine.fasi[2].riduzione.senzaTerreno = true;
    disegna();
    EXPECT_EQ(testiCon("\"> 10, fase 3: vincoli, tiranti o puntoni tengono").size(), 1u);
}

TEST_F(DisegnoMargine, HatchesBarsBeyondTheMarksAndTheWorseOnesMoreDensely) {
    disegna();
    EXPECT_EQ(inclinate(15), 0);  // F 2, 40 %
    EXPECT_GT(inclinate(16), 0);  // F 1.2 densely, 85 % sparsely
    margine.fasi[1].riduzione.F = 1.3;
    const long fitte = inclinate(16);
    disegna();
    EXPECT_LT(inclinate(16), fitte);
}

TEST_F(DisegnoMargine, NamesTheStagesOfOneDepthTogether) {
    disegna();
    EXPECT_EQ(testiCon("fase 1: 2.00 m").size(), 1u);
    EXPECT_EQ(testiCon("fase 2, 3: 4.00 m").size(), 1u);
    EXPECT_EQ(testiCon("\"T1\"").size(), 1u);
    EXPECT_EQ(testiCon("\"10.00 m\"").size(), 1u);
}

TEST_F(DisegnoMargine, SaysBelowWhatTheWallComesTo) {
    disegna();
    EXPECT_EQ(testiCon("F più piccolo: 1.20, fase 2: ruota attorno").size(), 1u);
    EXPECT_EQ(testiCon("Lunghezza minima").size(), 1u);
    EXPECT_EQ(testiCon("non del file dei risultati; segmenti: 50").size(), 1u);
}

// About 2 m of 10 m the toe moves most: 1 cm towards the excavation, the head a quarter of it back.
TEST_F(DisegnoMargine, ShowsTheWallAsItWouldMove) {
    const auto mosso = [] {
        double sinistra = 99, destra = 0;
        plot::statoPlot.archivio.perOgniLinea([&](const plot::Segmento& s) {
            const double dx = s.x2 - s.x1, dy = s.y2 - s.y1;
            if (test::pennaDi(s) != 4 || s.x1 > 9 || !(dx * dy < 0) || -dy < 4 * dx) return;
            sinistra = std::min(sinistra, s.x1);
            destra = std::max(destra, s.x2);
        });
        return destra - sinistra;
    };
    disegna();
    EXPECT_NEAR(mosso(), 1.25, 0.05);
}

TEST_F(DisegnoMargine, OfAWallWithoutEquilibriumSaysSoAndDrawsNoNumbers) {
    margine.fasi[1].esito = EsitoFase::meccanismo;
    margine.fasi[1].riduzione.F = 0.974;
    margine.fasi[1].passiva = {};
    margine.fasi[2] = {};
    margine.fasi[2].fase = 3;
    disegna();
    EXPECT_EQ(testiCon("\"Nessun equilibrio nella fase 2").size(), 1u);
    EXPECT_EQ(testiCon("\"0.97\"").size(), 1u);
    EXPECT_EQ(testiCon("\"-\"").size(), 3u);  // F of stage 3, the passive side of 2 and 3
}

TEST_F(DisegnoMargine, BreaksLongSentencesInTheFrameInsteadOfShrinkingThem) {
    margine.fasi[0].esito = EsitoFase::meccanismo;
    margine.fasi[0].perche = safety::Diagnosi{
        .causa = safety::Causa::meccanismo,
        .fase = 1,
        .paratia = 10,
        .moto = equilibrium::Meccanismo{
            .traslazione = false, .profondita = 8.93, .verso = -1, .mancante = 257000}};
    margine.sostegni = true;
    margine.lunghezza = {safety::EsitoLunghezza::sempre, 4.0};
    disegna();
    EXPECT_EQ(testiCon("\"La paratia è un meccanismo nella fase 1: ruota").size(), 1u);
    long righe = 0;
    for (const plot::TestoPlot& t : plot::statoPlot.archivio.testi()) {
        if (t.y > 4.6) continue;
        ++righe;
        EXPECT_DOUBLE_EQ(t.altezza, 0.25) << t.testo;
        EXPECT_LE(t.x + plot::larghezzaTesto(t.altezza, t.testo), 18.5 + 1e-9) << t.testo;
        EXPECT_GT(t.y, 0.5) << t.testo;
    }
    EXPECT_GE(righe, 6);
}

TEST_F(DisegnoMargine, LeavesRoomBetweenTheWaterLevelAndTheNameOfAnAnchor) {
    dati.faldaMonte = 1.5;  // at the height of the name
    disegna();
    double fine = 0;
    plot::statoPlot.archivio.perOgniLinea([&](const plot::Segmento& s) {
        if (test::pennaDi(s) == 6 && s.x1 == plot::x0 && s.y1 == s.y2 && s.y1 > 6)
            fine = std::max(fine, s.x2);
    });
    const auto& testi = plot::statoPlot.archivio.testi();
    const auto nome =
        std::find_if(testi.begin(), testi.end(), [](const auto& t) { return t.testo == "T1"; });
    ASSERT_NE(nome, testi.end());
    EXPECT_NEAR(fine, 2.2, 1e-6);
    EXPECT_GT(nome->x, fine + 0.15);
}

TEST_F(DisegnoMargine, RefusesAWallThatNoSheetHolds) {
    dati.lunghezzaParatia = 1e5;
    EXPECT_THROW(disegna(), base::ErroreValore);
}

TEST_F(DisegnoMargine, FitsAsManyStagesAsAProjectCanHave) {
    dati.nFasi = 0;
    margine.fasi.clear();
    for (int k = 1; k <= project::massimoFasi; ++k) {
        test::aggiungiFase(dati, {.scavo = 2 + 0.1 * k});
        safety::MargineFase& fase = margine.fasi.emplace_back();
        fase.fase = k;
        fase.esito = EsitoFase::equilibrio;
        fase.riduzione.F = 2;
    }
    disegna();
    for (const plot::TestoPlot& t : plot::statoPlot.archivio.testi()) {
        EXPECT_GT(t.y, 0) << t.testo;
        EXPECT_LT(t.x, plot::larghFoglio) << t.testo;
    }
    EXPECT_EQ(testiCon("\"2.00\"").size(), 20u);
}

// A hinge, a block under the toe, a toe that is held in the ground: each is drawn.
TEST_F(DisegnoMargine, ShowsTheRestraintsOfTheWall) {
    const auto tratti = [&] {
        disegna();
        long quanti = 0;
        plot::statoPlot.archivio.perOgniLinea([&](const plot::Segmento& s) {
            if (s.x1 <= 10) ++quanti;  // of the section
        });
        return quanti;
    };
    const long libera = tratti();
    dati.vincoloTesta = valore(project::VincoloTesta::cerniera);
    const long cerniera = tratti();
    EXPECT_GT(cerniera, libera);
    dati.vincoloPiede = valore(project::VincoloPiede::cerniera);
    const long fermo = tratti();
    EXPECT_GT(fermo, cerniera);
    dati.vincoloPiede = valore(project::VincoloPiede::incastro);
    const long incastro = tratti();
    EXPECT_GT(incastro, cerniera);
    EXPECT_NE(incastro, fermo);
}

TEST_F(DisegnoMargine, HatchesWhereTheGroundInFrontCanGiveNoMore) {
    const auto tratti = [&] {
        disegna();
        long quanti = 0;
        plot::statoPlot.archivio.perOgniLinea([&](const plot::Segmento&) { ++quanti; });
        return quanti;
    };
    const long senza = tratti();
    margine.fasi[1].passiva.alLimite = {{4, 5}};
    const long uno = tratti();
    margine.fasi[1].passiva.alLimite = {{4, 6}};
    const long due = tratti();
    EXPECT_GT(uno, senza);
    EXPECT_GT(due, uno) << "a longer stretch has more strokes";
}

}  // namespace
}  // namespace korven::drawings
