#include "drawings/log/stratigraphic_log.hpp"

#include <gtest/gtest.h>

#include "base/file_error.hpp"
#include "base/table.hpp"
#include "plot/dxf/export.hpp"
#include "support/dialog_double.hpp"
#include "support/dxf_reader.hpp"
#include "support/log_setup.hpp"

namespace korven::drawings {
namespace {

using test::polilinee;
using test::testiCon;
using Linee = std::vector<std::string>;

using StratigrafiaPagina = test::ProvaStratigrafia;

TEST_F(StratigrafiaPagina, HasASheetThatEndsWhereThePageDoes) {
    disegna();
    EXPECT_EQ(plot::statoPlot.estensione, (plot::Riquadro{0, 0.6, 20, 28.5}));
    disegnaStratigrafia(dati, 27);
    EXPECT_NEAR(plot::statoPlot.estensione.ymin, 1.6, 1e-12);
    EXPECT_EQ(testiCon("\"20.0\""), Linee{"\"20.0\" 1.700 2.220 h 0.20"})
        << "the last foot lies at 2, its number in the limit above it";
}

TEST_F(StratigrafiaPagina, HasTheHeadingsAndItsTitleOnTop) {
    for (int i = 1; i <= 6; ++i) dati.titoli[i] = "riga " + std::to_string(i);
    disegna();
    EXPECT_EQ(
        testiCon("riga"),
        (Linee{"\"riga 1\" 10.500 27.900 h 0.40 centred", "\"riga 2\" 10.500 27.600 h 0.40 centred",
               "\"riga 3\" 10.500 27.350 h 0.40 centred", "\"riga 4\" 10.500 27.100 h 0.40 centred",
               "\"riga 5\" 10.500 26.850 h 0.40 centred",
               "\"riga 6\" 10.500 26.600 h 0.40 centred"}));
    EXPECT_EQ(testiCon("GEOTECNICA"),
              Linee{"\"DESCRIZIONE STRATIGRAFICO-GEOTECNICA\" 11.000 25.000 h 0.30 centred"});
}

TEST_F(StratigrafiaPagina, HasAHeadForEachColumnReadingUpwards) {
    disegna();
    const Linee attese{"\"Profondità [m]\" 2.225 21.500 h 0.25 angle 90",
                       "\"stratigrafia\" 3.325 21.500 h 0.25 angle 90",
                       "\"descrizione\" 5.425 21.500 h 0.25 angle 90",
                       "\"falda [m]\" 7.525 21.500 h 0.25 angle 90",
                       "\"gamma N [kN/m³]\" 9.092 21.500 h 0.25 angle 90",
                       "\"gamma S [kN/m³]\" 10.158 21.500 h 0.25 angle 90",
                       "\"angolo attrito [°]\" 12.825 21.500 h 0.25 angle 90",
                       "\"coesione [kN/m²]\" 16.025 21.500 h 0.25 angle 90",
                       "\"scala [m]\" 18.125 21.500 h 0.25 angle 90"};
    EXPECT_EQ(testiCon("angle 90"), attese);
}

TEST_F(StratigrafiaPagina, BoxesTheHeadsAndRulesTheColumns) {
    disegna();
    EXPECT_TRUE(
        tracciata(4, "1.500 21.000, 2.700 21.000, 2.700 24.500, 1.500 24.500, 1.500 21.000"));
    EXPECT_TRUE(
        tracciata(4, "17.500 21.000, 18.500 21.000, 18.500 24.500, 17.500 24.500, 17.500 21.000"));
    // The base, then the right side of each column; only the first goes up beside the heads.
    EXPECT_EQ(polilinee(1), (Linee{"1.500 1.000, 18.500 1.000", "2.700 1.000, 2.700 24.500",
                                   "3.700 1.000, 3.700 21.000", "6.900 1.000, 6.900 21.000",
                                   "7.900 1.000, 7.900 21.000", "11.100 1.000, 11.100 21.000",
                                   "14.300 1.000, 14.300 21.000", "17.500 1.000, 17.500 21.000",
                                   "18.500 1.000, 18.500 21.000"}));
}

class TestiStranieri {
 public:
    TestiStranieri() {
        auto& tabella = base::tabellaTesti;
        tabella.nTesti = 0;
        for (const auto& [it, en] : {std::pair{"Cantiere", "Site"}, std::pair{"falda [m]", "water"},
                                     std::pair{"Sabbia", "Sand"}}) {
            auto& riga = tabella.nuovaRiga();
            riga.testo[1] = it;
            riga.testo[5] = en;
        }
        base::ordinaTesti(tabella);
        base::impostaLingua(5);
    }
    TestiStranieri(const TestiStranieri&) = delete;
    TestiStranieri& operator=(const TestiStranieri&) = delete;
    ~TestiStranieri() {
        base::tabellaTesti.nTesti = 0;
        base::impostaLingua(1);
    }
};

TEST_F(StratigrafiaPagina, NeverTranslatesWhatTheUserHasTyped) {
    const TestiStranieri stranieri;
    scriviLibreria(programma, {}, "eng");
    dati.titoli[1] = "Cantiere";
    dati.descrStrato[1] = "5 Sabbia";
    disegna();
    EXPECT_EQ(testiCon("\"Cantiere\"").size(), 1u);
    EXPECT_EQ(testiCon("\"Sabbia\"").size(), 1u);
    EXPECT_EQ(testiCon("\"water\"").size(), 1u) << "the heads are translated";
}

TEST_F(StratigrafiaPagina, WithMoreTextsThanADrawingHoldsIsAnError) {
    std::vector<double> piedi;
    std::string descrizione = "5 ";
    for (int i = 0; i < 21; ++i) descrizione += "a b c d e f g h i l m n o. ";
    for (int i = 1; i <= 100; ++i) {
        piedi.push_back(i);
        dati.descrStrato[i] = descrizione;
    }
    strati(piedi);
    EXPECT_THROW(disegna(), base::ErroreIndice);
}

TEST_F(StratigrafiaPagina, WithADescriptionOfMoreThanAHundredLinesIsAnError) {
    for (int i = 0; i <= 100; ++i) dati.descrStrato[1] += "5|";
    dati.descrStrato[1].insert(0, "5 ");
    EXPECT_THROW(disegna(), base::ErroreIndice);
}

TEST_F(StratigrafiaPagina, WithMoreStrokesThanMemoryHoldsGoesWholeIntoADxfFile) {
    // 2000 strokes a tile, none across its middle. The layers hold 5 tiles, 5, and 9
    // with two halves.
    std::vector<TrattoCampitura> tratti;
    for (int i = 0; i < 2000; ++i) {
        const auto x = static_cast<std::int16_t>(i % 100 - 50);
        const auto y = static_cast<std::int16_t>(i / 100 * 4 - 39);
        tratti.push_back({x, y, x, static_cast<std::int16_t>(y + 2)});
    }
    scriviLibreria(programma, {{5, {0.005, tratti, "fitta"}}});
    for (int i = 1; i <= 3; ++i) dati.descrStrato[i] = "105 strato";
    disegna();
    EXPECT_GE(plot::statoPlot.archivio.nFileScarico(), 1);
    const auto dxf = test::LettoreDxf::leggi(base::inCp1252(plot::testoDxf("MONOTXT")));
    std::size_t linee = 0;
    plot::statoPlot.archivio.perOgniLinea([&](const plot::Segmento&) { ++linee; });
    EXPECT_EQ(polilinee(10).size(), 20u * 2000);
    EXPECT_EQ(dxf.linee.size(), linee);
    EXPECT_EQ(dxf.testi.size(), plot::statoPlot.archivio.testi().size());
}

TEST_F(StratigrafiaPagina, WithoutHatchesIsAnError) {
    std::filesystem::remove(programma / "set2.rtn");
    EXPECT_THROW(disegna(), base::ErroreFile);
}

class StratigrafiaComando : public test::ProvaStratigrafia {
 protected:
    StratigrafiaComando() {
        project::Progetto = dati;
        project::fileCorrente = "/lavori/muro.kvd";
    }
    ~StratigrafiaComando() override {
        project::Progetto = {};
        project::fileCorrente.clear();
    }

    void aspettaRifiuto(const std::string& motivo) {
        EXPECT_FALSE(disegnaStratigrafia(dialogo));
        ASSERT_EQ(dialogo.messaggi.size(), 1u);
        EXPECT_EQ(dialogo.messaggi[0],
                  (test::DialogoFinto::Detto{motivo, "ATTENZIONE!", base::Icona::stop}));
        EXPECT_TRUE(plot::statoPlot.archivio.testi().empty());
    }

    test::DialogoFinto dialogo;
};

TEST_F(StratigrafiaComando, DrawsTheProjectThatIsOpen) {
    EXPECT_TRUE(disegnaStratigrafia(dialogo));
    EXPECT_TRUE(dialogo.messaggi.empty());
    EXPECT_EQ(testiCon("GEOTECNICA").size(), 1u);
}

TEST_F(StratigrafiaComando, IsRefusedWithoutAProject) {
    project::fileCorrente.clear();
    aspettaRifiuto("Non e' possibile produrre un output grafico prima di aver aperto un file.");
}

TEST_F(StratigrafiaComando, IsRefusedWithoutLayers) {
    project::Progetto.nStrati = 0;
    aspettaRifiuto(
        "Non e' possibile produrre un output grafico prima di aver introdotto la stratigrafia.");
}

// 28.5 - 8.1 + 0.1 is a lower edge of 20.5, just under the heads of the columns.
TEST_F(StratigrafiaComando, IsRefusedOnAPageThatHasNoRoomForLayers) {
    EXPECT_FALSE(disegnaStratigrafia(dialogo, 8.1));
    ASSERT_EQ(dialogo.messaggi.size(), 1u);
    EXPECT_EQ(dialogo.messaggi[0].testo,
              "Il foglio della stampante è troppo basso per la colonna stratigrafica: sceglierne "
              "uno più alto di 8.1 cm.");
    EXPECT_TRUE(disegnaStratigrafia(dialogo, 8.2));
}

TEST_F(StratigrafiaComando, IsRefusedWhenTheLastLayerEndsAtTheGround) {
    project::Progetto.profStrato[3] = 0;
    aspettaRifiuto(
        "Non e' possibile produrre un output grafico prima di aver introdotto la stratigrafia.");
}

}  // namespace
}  // namespace korven::drawings
