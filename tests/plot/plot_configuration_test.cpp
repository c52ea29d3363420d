#include "plot/plot_configuration.hpp"

#include <gtest/gtest.h>

#include "base/file_error.hpp"
#include "support/failing_disk.hpp"
#include "support/plot_setup.hpp"
#include "support/temporary_folder.hpp"

namespace korven::plot {
namespace {

using test::configurazioneDiProva;

ConfigurazionePlot letta(std::string byte) {
    base::LettoreRighe file("prova.cfg", std::move(byte));
    return leggiConfigurazione(file);
}

// The configuration with its last `righe` lines cut off.
std::string senzaUltime(int righe) {
    std::string testo = testoConfigurazione(configurazioneDiProva());
    for (int i = 0; i < righe; ++i) testo.erase(testo.rfind("\r\n", testo.size() - 3) + 2);
    return testo;
}

std::string conRiga(int numero, const std::string& riga) {
    std::string testo = testoConfigurazione(configurazioneDiProva());
    std::size_t da = 0;
    for (int i = 1; i < numero; ++i) da = testo.find("\r\n", da) + 2;
    return testo.replace(da, testo.find("\r\n", da) - da, riga);
}

TEST(ConfigurazionePlot, HoldsPensThenColoursThenMarginsAValueALine) {
    ConfigurazionePlot c = configurazioneDiProva();
    c.penne[1] = {"Titolo, grande", 15, 0.25, "Times New Roman"};
    c.colori[15] = {"Grigio", 8421504};
    c.margineSinistro = 1.5;
    c.margineSuperiore = 0.25;
    const std::string testo = testoConfigurazione(c);
    EXPECT_TRUE(
        testo.starts_with("Titolo, grande\r\n15\r\n0.25\r\nTimes New Roman\r\nPenna 2\r\n"));
    EXPECT_TRUE(testo.ends_with("Grigio\r\n8421504\r\n1.5\r\n0.25\r\n"));
    EXPECT_EQ(std::count(testo.begin(), testo.end(), '\n'), 30 * 4 + 15 * 2 + 2);
}

TEST(ConfigurazionePlot, ComesBackAsItWasWritten) {
    ConfigurazionePlot c = configurazioneDiProva();
    c.penne[7].etichetta = "Profondità, \"quota\"";
    c.penne[8].etichetta = "";
    c.margineSinistro = -0.5;
    c.margineSuperiore = 2;
    EXPECT_EQ(letta(testoConfigurazione(c)), c);
}

TEST(ConfigurazionePlot, TextsAreInTheCodePageOfTheSystem) {
    ConfigurazionePlot c = configurazioneDiProva();
    c.penne[1].etichetta = "Profondità";
    EXPECT_TRUE(testoConfigurazione(c).starts_with("Profondit\xE0\r\n"));
}

TEST(ConfigurazionePlot, WithoutMarginsLoadsAndSavingAddsThem) {
    const ConfigurazionePlot c = letta(senzaUltime(2));
    EXPECT_EQ(c.margineSinistro, 0);
    EXPECT_EQ(c.margineSuperiore, 0);
    EXPECT_EQ(c.colori[15].nome, "Colore 15");
    EXPECT_TRUE(testoConfigurazione(c).ends_with("Colore 15\r\n15000\r\n0\r\n0\r\n"));
}

TEST(ConfigurazionePlot, WithEmptyLinesInPlaceOfTheMarginsLoadsAsWithoutThem) {
    for (const char* coda : {"\r\n\r\n", "\r\n\r\n\r\n", "\x1A"}) {
        const ConfigurazionePlot c = letta(senzaUltime(2) + coda);
        EXPECT_EQ(c.margineSinistro, 0) << coda;
        EXPECT_EQ(c.margineSuperiore, 0) << coda;
        EXPECT_EQ(c.colori[15].nome, "Colore 15") << coda;
    }
    EXPECT_THROW((void)letta(senzaUltime(2) + "\r\n1.5\r\n"), base::ErroreFile);
}

TEST(ConfigurazionePlot, OneMarginAloneIsTheLeftOne) {
    const ConfigurazionePlot c = letta(senzaUltime(2) + "1.25\r\n");
    EXPECT_EQ(c.margineSinistro, 1.25);
    EXPECT_EQ(c.margineSuperiore, 0);
}

TEST(ConfigurazionePlot, KeepsPensWithTheSameLabelApart) {
    ConfigurazionePlot c = configurazioneDiProva();
    c.penne[4].etichetta = c.penne[5].etichetta = "Curva";
    EXPECT_EQ(letta(testoConfigurazione(c)), c);
}

TEST(PennaConEtichetta, FindsTheFirstOfTwoPensWithTheSameLabel) {
    ConfigurazionePlot c = configurazioneDiProva();
    c.penne[4].etichetta = c.penne[5].etichetta = "Curva";
    EXPECT_EQ(pennaConEtichetta(c, "Curva"), 4);
    EXPECT_EQ(pennaConEtichetta(c, "Penna 30"), 30);
    EXPECT_EQ(pennaConEtichetta(c, "curva"), 0);
}

TEST(ConfigurazionePlot, CutShortIsAnErrorThatNamesTheLine) {
    // Without margins and the value of the last colour 149 lines remain.
    try {
        (void)letta(senzaUltime(3));
        FAIL() << "no error";
    } catch (const base::ErroreFile& errore) {
        EXPECT_EQ(errore.percorso(), "prova.cfg");
        EXPECT_EQ(errore.riga(), 150);
        EXPECT_NE(errore.atteso().find("valore del colore 15"), std::string::npos);
    }
    for (int righe = 3; righe <= 152; ++righe)
        EXPECT_THROW((void)letta(senzaUltime(righe)), base::ErroreFile) << righe;
}

TEST(ConfigurazionePlot, StaysAsItWasOnAFullDisk) {
    const test::CartellaProvvisoria cartella;
    test::metti(cartella / "module06ita.cfg", "prima");
    const test::DiscoPieno disco(100);
    EXPECT_THROW(scriviConfigurazione(cartella / "module06ita.cfg", {}, disco), base::ErroreFile);
    EXPECT_EQ(test::contenuto(cartella / "module06ita.cfg"), "prima");
}

TEST(ConfigurazionePlot, MissingFileIsAnError) {
    EXPECT_THROW((void)leggiConfigurazione("/nessuna/cartella/module06ita.cfg"), base::ErroreFile);
}

TEST(ConfigurazionePlot, RefusesWhatIsNoNumberOrOutsideItsRange) {
    const std::pair<int, std::string> casi[] = {
        {2, "verde"},   {2, "16"},   {2, "-1"},         {2, "1.5"},     {3, "sottile"},
        {122, "rosso"}, {122, "-1"}, {122, "16777216"}, {151, "largo"}, {2, "3xyz"},
        {3, "0,35"},    {3, "-5"},   {3, "1e300"},      {151, "2,5"},   {152, "-30"}};
    for (const auto& [riga, testo] : casi) {
        try {
            (void)letta(conRiga(riga, testo));
            ADD_FAILURE() << riga << ' ' << testo;
        } catch (const base::ErroreFile& errore) {
            EXPECT_EQ(errore.riga(), riga);
        }
    }
    EXPECT_EQ(letta(conRiga(122, "16777215")).colori[1].valore, bianco);
}

TEST(PennePlot, HaveWidthsInCentimetresAndTheValuesOfTheirColours) {
    ConfigurazionePlot c = configurazioneDiProva();
    c.penne[1].spessoreMm = 0.5;
    const TabellaPenne penne = pennePlot(c);
    EXPECT_EQ(penne[1], (PennaPlot{255, 0.05, "Arial"}));
    EXPECT_EQ(penne[2].colore, bianco);
    EXPECT_EQ(penne[30].colore, 255 * 65536);
}

TEST(PennePlot, ColourIndexZeroKeepsWidthAndFontAndDrawsNothing) {
    ConfigurazionePlot c = configurazioneDiProva();
    c.penne[9] = {"Nascosta", 0, 2, "Arial"};
    EXPECT_EQ(pennePlot(c)[9], (PennaPlot{nonDisegnato, 0.2, "Arial"}));
}

TEST(PennePlot, ChangedColourChangesAllPensThatUseIt) {
    ConfigurazionePlot c = configurazioneDiProva();
    c.colori[3].valore = 4711;
    const TabellaPenne penne = pennePlot(c);
    for (int i = 4; i <= numeroPenne; ++i) EXPECT_EQ(penne[i].colore, 4711) << i;
    EXPECT_EQ(penne[1].colore, 255);
}

TEST(FileConfigurazione, IsNamedByModuleAndLanguageWhateverItsCase) {
    const test::CartellaProvvisoria cartella;
    base::impostaCartellaProgramma(cartella.percorso());
    EXPECT_EQ(fileConfigurazione("ita"), cartella / "module06ita.cfg");
    test::metti(cartella / "MODULE06ENG.CFG", "");
    EXPECT_EQ(fileConfigurazione("eng"), cartella / "MODULE06ENG.CFG");
    EXPECT_EQ(fileConfigurazione("deu"), cartella / "MODULE06ENG.CFG");
    EXPECT_EQ(fileConfigurazione("por"), cartella / "module06ita.cfg");
    test::metti(cartella / "module06esp.cfg", "");
    EXPECT_EQ(fileConfigurazione("por"), cartella / "module06esp.cfg");
    base::impostaCartellaProgramma({});
}

}  // namespace
}  // namespace korven::plot
