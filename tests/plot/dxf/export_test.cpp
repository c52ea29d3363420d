#include "plot/dxf/export.hpp"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "plot/plot_engine.hpp"
#include "plot/spill_files.hpp"
#include "support/dxf_reader.hpp"
#include "support/failing_disk.hpp"
#include "support/plot_setup.hpp"

namespace korven::plot {
namespace {

using test::FileDxf;
using test::LettoreDxf;

class PlotDxf : public test::ProvaPlot {
 protected:
    const test::CartellaProvvisoria uscita;

    // The drawing of the program as a file, read back.
    FileDxf esportata() const {
        plotDxf(uscita / "prova.dxf");
        return LettoreDxf::leggi(test::contenuto(uscita / "prova.dxf"));
    }
};

TEST(NomeDxf, ReplacesTheExtensionOfTheBareFileName) {
    EXPECT_EQ(nomeDxf("/lavori/2024.11/muro.kvd"), "muro.DXF");
    EXPECT_EQ(nomeDxf("C:\\LAVORI\\MURO.KVD"), "MURO.DXF");
    EXPECT_EQ(nomeDxf("muro.prova.kvd"), "muro.prova.DXF");
}

TEST(NomeDxf, AppendsOneWhereThereIsNone) {
    EXPECT_EQ(nomeDxf("/lavori/2024.11/muro"), "muro.DXF");
    EXPECT_EQ(nomeDxf(""), ".DXF");
}

TEST_F(PlotDxf, MissingStyleFileIsMadeWithTheDefault) {
    EXPECT_EQ(leggiStileTesti(), "MONOTXT");
    EXPECT_EQ(test::contenuto(programma / "dxf.cfg"), "MONOTXT\r\n");
}

TEST_F(PlotDxf, StyleIsTheFirstLineOfItsFile) {
    test::metti(programma / "DXF.CFG", " ROMANS \r\nanything\r\n");
    EXPECT_EQ(leggiStileTesti(), "ROMANS");
    EXPECT_FALSE(std::filesystem::exists(programma / "dxf.cfg"));
}

TEST_F(PlotDxf, BlankStyleIsTheDefault) {
    test::metti(programma / "dxf.cfg", "  \r\n");
    EXPECT_EQ(leggiStileTesti(), "MONOTXT");
}

TEST_F(PlotDxf, AnEmptyStyleFileCountsAsMissing) {
    test::metti(programma / "dxf.cfg", "");
    EXPECT_EQ(leggiStileTesti(), "MONOTXT");
    EXPECT_EQ(test::contenuto(programma / "dxf.cfg"), "MONOTXT\r\n");
}

// A folder of that name lets nobody make the file, not even an administrator.
TEST_F(PlotDxf, AStyleFileThatCannotBeMadeIsNoError) {
    std::filesystem::create_directories(programma / "dxf.cfg/occupata");
    EXPECT_EQ(leggiStileTesti(), "MONOTXT");
}

TEST_F(PlotDxf, StyleIsHeldForTheRun) {
    plotApri(0, 0, 19, 27);
    plotMuovi(0, 0, fineDisegno);
    test::metti(programma / "dxf.cfg", "ROMANS\r\n");
    EXPECT_EQ(esportata().stile, "ROMANS");
    test::metti(programma / "dxf.cfg", "ITALIC\r\n");
    EXPECT_EQ(esportata().stile, "ROMANS");
}

TEST_F(PlotDxf, LinesAndTextsComeOutWhereTheyAre) {
    configura(test::penneDistinte());
    plotApri(0, 0.6, 20, 28.5);
    plotPenna(12);  // 255 0 0
    plotMuovi(1.5, 2, pennaSu);
    plotMuovi(18.5, 2.125, pennaGiu);
    plotPenna(1);
    plotSimbolo(10, 26, 0.5, "Città", 0, conteggioCentrato);
    plotSimbolo(2, 3, 0.25, "LATO MONTE", 90, 10);
    plotMuovi(0, 0, fineDisegno);

    const FileDxf dxf = esportata();
    EXPECT_EQ(dxf.xmin, 0);
    EXPECT_EQ(dxf.ymin, 0.6);
    EXPECT_EQ(dxf.xmax, 20);
    EXPECT_EQ(dxf.ymax, 28.5);
    EXPECT_EQ(dxf.stile, "MONOTXT");
    ASSERT_EQ(dxf.linee.size(), 1U);
    EXPECT_EQ(dxf.linee[0].livello, "12");
    EXPECT_EQ(dxf.linee[0].x1, 1.5);
    EXPECT_EQ(dxf.linee[0].y2, 2.125);
    ASSERT_EQ(dxf.testi.size(), 2U);
    EXPECT_EQ(dxf.testi[0].livello, "1");
    EXPECT_EQ(base::daCp1252(dxf.testi[0].testo), "Città");
    EXPECT_TRUE(dxf.testi[0].centrato);
    EXPECT_EQ(dxf.testi[0].xCentro, 10);
    EXPECT_EQ(dxf.testi[0].x, 7.5);  // five characters of 0.5 back
    EXPECT_FALSE(dxf.testi[1].centrato);
    EXPECT_EQ(dxf.testi[1].angolo, 90);
    EXPECT_EQ(dxf.testi[1].altezza, 0.25);
}

TEST_F(PlotDxf, EveryPenDrawsOnTheLayerOfItsColour) {
    configura(test::penneDistinte());
    plotApri(0, 0, 19, 27);
    for (int n = 1; n <= numeroPenne; ++n) {
        plotPenna(n);
        plotMuovi(n, 1, pennaGiu);
    }
    plotMuovi(0, 0, fineDisegno);
    const FileDxf dxf = esportata();
    ASSERT_EQ(dxf.linee.size(), 30U);
    for (int n = 1; n <= numeroPenne; ++n) {
        const int colore = (n - 1) % 15 + 1;
        const bool grigio = colore == 7 || colore == 8;
        EXPECT_EQ(dxf.linee[static_cast<std::size_t>(n - 1)].livello,
                  std::to_string(grigio ? 15 : colore))
            << n;
    }
}

TEST_F(PlotDxf, ExtentIsThatOfTheWholeDrawingWhateverTheZoom) {
    plotApri(0, 0, 19, 27);
    plotMuovi(0, 0, fineDisegno);
    plotZoom(3, 3, 5, 5);
    EXPECT_EQ(esportata().xmax, 19);
}

TEST_F(PlotDxf, DrawingWithoutTextsHasLinesAloneAndAllTables) {
    plotApri(0, 0, 19, 27);
    plotPenna(1);
    plotMuovi(1, 1, pennaGiu);
    plotMuovi(0, 0, fineDisegno);
    const FileDxf dxf = esportata();
    EXPECT_EQ(dxf.linee.size(), 1U);
    EXPECT_TRUE(dxf.testi.empty());
    EXPECT_EQ(dxf.tipiLinea.size(), 9U);
    EXPECT_EQ(dxf.coloreLivello.size(), 16U);
    EXPECT_EQ(dxf.coloreLivello.at("0"), 7);
    EXPECT_EQ(dxf.coloreLivello.at("12"), 1);  // red
    EXPECT_EQ(dxf.stili, std::set<std::string>{"MONOTXT"});
}

TEST_F(PlotDxf, LinesOfSpillFilesComeOneFileAfterTheOther) {
    plotApri(0, 0, 19, 27);
    plotPenna(1);
    for (int k = 0; k < 32005; ++k) {
        plotMuovi(k % 9000, 0, pennaSu);
        plotMuovi(k % 9000, 1, pennaGiu);
    }
    plotMuovi(0, 0, fineDisegno);
    EXPECT_EQ(statoPlot.archivio.nFileScarico(), 2);
    const FileDxf dxf = esportata();
    ASSERT_EQ(dxf.linee.size(), 32005U);
    for (int k = 0; k < 32005; ++k)
        ASSERT_EQ(dxf.linee[static_cast<std::size_t>(k)].x1, k % 9000) << k;
}

TEST_F(PlotDxf, SpillFileThatIsGoneIsAnErrorAndLeavesTheFileOfBefore) {
    plotApri(0, 0, 19, 27);
    plotPenna(1);
    test::tracciaLinee(32001);
    plotMuovi(0, 0, fineDisegno);
    std::filesystem::remove(percorsoFileScarico(2));
    test::metti(uscita / "prova.dxf", "before");
    EXPECT_THROW(plotDxf(uscita / "prova.dxf"), base::ErroreFile);
    EXPECT_EQ(test::contenuto(uscita / "prova.dxf"), "before");
}

TEST_F(PlotDxf, FileThatCannotBeWrittenIsAnError) {
    plotApri(0, 0, 19, 27);
    plotMuovi(0, 0, fineDisegno);
    EXPECT_THROW(plotDxf(uscita / "manca/prova.dxf"), base::ErroreFile);
}

TEST_F(PlotDxf, FullDiskIsAnErrorAndLeavesTheFileOfBefore) {
    plotApri(0, 0, 19, 27);
    plotMuovi(0, 0, fineDisegno);
    test::metti(uscita / "prova.dxf", "before");
    const test::DiscoPieno disco(200);
    EXPECT_THROW(plotDxf(uscita / "prova.dxf", disco), base::ErroreFile);
    EXPECT_EQ(test::contenuto(uscita / "prova.dxf"), "before");
}

TEST_F(PlotDxf, StyleFileThatFindsNoRoomIsDoneWithout) {
    const test::DiscoPieno disco(0);
    EXPECT_EQ(leggiStileTesti(disco), "MONOTXT");
    EXPECT_FALSE(std::filesystem::exists(programma / "dxf.cfg"));
}

}  // namespace
}  // namespace korven::plot
