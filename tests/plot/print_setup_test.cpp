#include "plot/print_setup.hpp"

#include <vector>

#include "base/file_error.hpp"
#include "support/failing_disk.hpp"
#include "support/plot_setup.hpp"

namespace korven::plot {
namespace {

using Impostazioni = test::ProvaPlot;

const ImpostazioniStampa complete{5, 2, 3, 66, 12, "Muro nord", "pag.", "Liberation Mono", 1.5};
constexpr const char* fileCompleto =
    "5\r\n2\r\n3\r\n66\r\n12\r\nMuro nord\r\npag.\r\nLiberation Mono\r\n1.5\r\n";

TEST_F(Impostazioni, WithoutAFileAreThoseOfAnEmptyForm) {
    const CampiStampa campi = campiStampa(leggiImpostazioni(programma / "printer.cfg"));
    EXPECT_EQ(campi, (CampiStampa{"0", "0", "0", "70", "10", "", "", "Courier New", "0"}));
}

TEST_F(Impostazioni, HaveNineLinesInTheirFile) {
    EXPECT_EQ(testoImpostazioni(complete), fileCompleto);
    test::metti(programma / "printer.cfg", fileCompleto);
    EXPECT_EQ(leggiImpostazioni(programma / "printer.cfg"), complete);
}

TEST_F(Impostazioni, OfEightLinesLoadAndAreWrittenBackWithNine) {
    const std::string otto =
        std::string(fileCompleto).substr(0, std::string(fileCompleto).size() - 5);
    test::metti(programma / "printer.cfg", otto);
    const ImpostazioniStampa lette = leggiImpostazioni(programma / "printer.cfg");
    EXPECT_EQ(lette.offsetSuperiore, 0);
    salvaImpostazioni(programma / "printer.cfg", lette);
    EXPECT_EQ(test::contenuto(programma / "printer.cfg"), otto + "0\r\n");
}

TEST_F(Impostazioni, OfAFileCutShortAreRefused) {
    test::metti(programma / "printer.cfg", "5\r\n2\r\n");
    EXPECT_THROW(static_cast<void>(leggiImpostazioni(programma / "printer.cfg")), base::ErroreFile);
    test::metti(programma / "printer.cfg", "cinque\r\n");
    EXPECT_THROW(static_cast<void>(leggiImpostazioni(programma / "printer.cfg")), base::ErroreFile);
}

TEST_F(Impostazioni, LoseTheFractionOfAWholeNumberAndWhatSixteenBitsCannotHold) {
    const ImpostazioniStampa scritte =
        impostazioniScritte({"3.9", "-2.9", "70000", "-70000", "dieci", "", "", "", " 1.25x"});
    EXPECT_EQ(scritte.margineSinistro, 3);
    EXPECT_EQ(scritte.margineSuperiore, -2);
    EXPECT_EQ(scritte.margineInferiore, 32767);
    EXPECT_EQ(scritte.lunghezzaPagina, -32768);
    EXPECT_EQ(scritte.altezzaCaratteri, 0);
    EXPECT_EQ(scritte.offsetSuperiore, 1.25);
}

TEST_F(Impostazioni, KeepTheirTextsWhole) {
    const CampiStampa campi{"0", "0", "0", "0", "0", "  Muro, \"nord\"", "à", "Arial", "0"};
    EXPECT_EQ(campiStampa(impostazioniScritte(campi)), campi);
}

TEST_F(Impostazioni, GiveTheirFontToThePenInUse) {
    salvaImpostazioni(programma / "printer.cfg", complete);
    EXPECT_EQ(statoPlot.penna.carattere, "Liberation Mono");
}

TEST_F(Impostazioni, LeaveFileAndPenAsTheyWereOnAFullDisk) {
    test::metti(programma / "printer.cfg", "prima");
    statoPlot.penna.carattere = "Arial";
    const test::DiscoPieno disco(10);
    EXPECT_THROW(salvaImpostazioni(programma / "printer.cfg", complete, disco), base::ErroreFile);
    EXPECT_EQ(test::contenuto(programma / "printer.cfg"), "prima");
    EXPECT_EQ(statoPlot.penna.carattere, "Arial");
}

TEST_F(Impostazioni, SelectTheSavedFontElseCourierNewElseTheFirst) {
    const std::vector<std::string> con = {"Arial", "Courier New", "Symbol"};
    const std::vector<std::string> senza = {"Arial", "Symbol"};
    EXPECT_EQ(carattereDaScegliere(con, "Symbol"), 2);
    EXPECT_EQ(carattereDaScegliere(con, "symbol"), 1) << "by exact name";
    EXPECT_EQ(carattereDaScegliere(con, "Manca"), 1);
    EXPECT_EQ(carattereDaScegliere(senza, "Manca"), 0);
    EXPECT_EQ(carattereDaScegliere({}, "Manca"), -1);
}

}  // namespace
}  // namespace korven::plot
