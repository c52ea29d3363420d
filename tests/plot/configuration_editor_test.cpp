#include "plot/configuration_editor.hpp"

#include "base/file_error.hpp"
#include "support/failing_disk.hpp"
#include "support/plot_setup.hpp"

namespace korven::plot {
namespace {

class Penne : public test::ProvaPlot {
 protected:
    static void nulla(const PennaConfigurata&) {}
    [[nodiscard]] ConfigurazionePlot scritta() const { return leggiConfigurazione(file); }
    const std::string file = programma / "module06ita.cfg";
};

TEST_F(Penne, AreShownWhenTheyAreChosenByTheirLabel) {
    ModelloPenne modello(file);
    PennaConfigurata mostrata;
    modello.scegliPenna("Penna 4", [&](const PennaConfigurata& p) { mostrata = p; });
    EXPECT_EQ(mostrata, (PennaConfigurata{"Penna 4", 3, 0.4, "Courier New"}));
    bool chiamata = false;
    modello.scegliPenna("manca", [&](const PennaConfigurata&) { chiamata = true; });
    EXPECT_FALSE(chiamata);
}

TEST_F(Penne, TakeColourWidthAndFontFromTheUser) {
    ModelloPenne modello(file);
    modello.scegliPenna("Penna 4", nulla);
    modello.cambiaColore(7);
    modello.cambiaSpessore(" 0.35 mm");
    modello.cambiaCarattere("Times New Roman");
    modello.conferma("0", "0");
    ConfigurazionePlot attesa = test::configurazioneDiProva();
    attesa.penne[4] = {"Penna 4", 7, 0.35, "Times New Roman"};
    EXPECT_EQ(scritta(), attesa);
}

TEST_F(Penne, TakeATextThatIsNoNumberForAWidthOfZero) {
    ModelloPenne modello(file);
    modello.scegliPenna("Penna 4", nulla);
    modello.cambiaSpessore("larga");
    EXPECT_EQ(modello.configurazione().penne[4].spessoreMm, 0);
}

TEST_F(Penne, AreNotChangedByTheControlsThatShowThem) {
    ModelloPenne modello(file);
    modello.scegliPenna("Penna 4", nulla);
    modello.scegliPenna("Penna 5", [&](const PennaConfigurata&) {
        modello.cambiaColore(9);
        modello.cambiaSpessore("3");
        modello.cambiaCarattere("Altro");
        EXPECT_FALSE(modello.siPuoCambiareValore(9));
    });
    EXPECT_EQ(modello.configurazione(), test::configurazioneDiProva());
    EXPECT_TRUE(modello.siPuoCambiareValore(9));
    EXPECT_FALSE(modello.siPuoCambiareValore(0)) << "not drawn: no colour to choose";
}

TEST_F(Penne, AreNotChangedBeforeOneIsChosen) {
    ModelloPenne modello(file);
    modello.cambiaColore(9);
    modello.cambiaSpessore("3");
    modello.cambiaCarattere("Altro");
    EXPECT_EQ(modello.configurazione(), test::configurazioneDiProva());
}

TEST_F(Penne, OfTheSameLabelAreOneAndTheFirstTakesAllEdits) {
    ConfigurazionePlot doppia = test::configurazioneDiProva();
    doppia.penne[9].etichetta = "Penna 4";
    configura(doppia);
    ModelloPenne modello(file);
    modello.scegliPenna("Penna 4", nulla);
    modello.cambiaColore(7);
    EXPECT_EQ(modello.configurazione().penne[4].colore, 7);
    EXPECT_EQ(modello.configurazione().penne[9], doppia.penne[9]);
}

TEST_F(Penne, AllChangeWithTheColourThatTheyUse) {
    ModelloPenne modello(file);
    EXPECT_FALSE(modello.cambiaValore(3, 255 * 65536)) << "the value that it has";
    EXPECT_TRUE(modello.cambiaValore(3, 4711));
    modello.cambiaNome(3, "Quercia");
    modello.conferma("", "");
    EXPECT_EQ(scritta().colori[3], (ColoreConfigurato{"Quercia", 4711}));
    plotApri(0, 0, 10, 10);
    for (int i = 4; i <= numeroPenne; ++i) EXPECT_EQ(statoPlot.penne[i].colore, 4711) << i;
}

TEST_F(Penne, OfIndexZeroKeepWidthAndFontAndDrawNothing) {
    ModelloPenne modello(file);
    modello.scegliPenna("Penna 4", nulla);
    modello.cambiaColore(0);
    modello.conferma("0", "0");
    plotApri(0, 0, 10, 10);
    EXPECT_EQ(statoPlot.penne[4], (PennaPlot{nonDisegnato, 0.04, "Courier New"}));
    plotPenna(4);
    test::tracciaLinee(1);
    EXPECT_TRUE(statoPlot.archivio.lineeInMemoria().empty());
}

TEST_F(Penne, HaveMarginsThatComeIntoForceAtOnce) {
    ModelloPenne modello(file);
    modello.conferma("1.5", "-2 cm");
    EXPECT_EQ(statoPlot.scostamentoX, 1.5);
    EXPECT_EQ(statoPlot.scostamentoY, -2);
    EXPECT_EQ(scritta().margineSinistro, 1.5);
    EXPECT_EQ(scritta().margineSuperiore, -2);
}

TEST_F(Penne, LoadFromAFileWithoutMarginsAndAreSavedWithThem) {
    std::string testo = testoConfigurazione(test::configurazioneDiProva());
    testo.resize(testo.size() - std::string("0\r\n0\r\n").size());
    test::metti(file, testo);
    ModelloPenne modello(file);
    EXPECT_EQ(modello.configurazione().margineSinistro, 0);
    modello.conferma("2", "3");
    EXPECT_EQ(test::contenuto(file), testo + "2\r\n3\r\n");
}

TEST_F(Penne, CannotBeEditedWithoutTheirFile) {
    EXPECT_THROW(ModelloPenne(programma / "manca.cfg"), base::ErroreFile);
    test::metti(file, "Penna 1\r\n1\r\n");
    EXPECT_THROW(ModelloPenne{file}, base::ErroreFile);
}

TEST_F(Penne, AreNotWrittenWithAValueThatCouldNotBeReadBack) {
    const std::string prima = test::contenuto(file);
    ModelloPenne modello(file);
    EXPECT_THROW(modello.conferma("500", "0"), base::ErroreFile);  // beyond any sheet
    modello.scegliPenna("Penna 4", [](const PennaConfigurata&) {});
    modello.cambiaSpessore("-1");
    EXPECT_THROW(modello.conferma("0", "0"), base::ErroreFile);
    EXPECT_EQ(test::contenuto(file), prima);
    EXPECT_EQ(statoPlot.scostamentoX, 0);
    modello.cambiaSpessore("0.2");
    modello.conferma("0", "0");
    EXPECT_EQ(scritta().penne[4].spessoreMm, 0.2);
}

TEST_F(Penne, NameTheFirstNumberThatTheirFileCannotHold) {
    using enum ValoreFuori::Campo;
    ModelloPenne modello(file);
    EXPECT_FALSE(modello.valoreFuori("-10", "100"));
    EXPECT_EQ(modello.valoreFuori("0", "100.5"), (ValoreFuori{margineSuperiore, 0, -10, 100}));
    EXPECT_EQ(modello.valoreFuori("-11", "101"), (ValoreFuori{margineSinistro, 0, -10, 100}));
    modello.scegliPenna("Penna 4", nulla);
    modello.cambiaSpessore("100.1");
    EXPECT_EQ(modello.valoreFuori("-11", "0"), (ValoreFuori{spessore, 4, 0, 100}));
}

TEST_F(Penne, KeepTheMarginsInForceWhenTheFileCannotBeWritten) {
    ModelloPenne modello(file);
    std::filesystem::remove(file);
    std::filesystem::create_directory(file);  // a folder has taken the name
    EXPECT_THROW(modello.conferma("1", "2"), base::ErroreFile);
    EXPECT_EQ(statoPlot.scostamentoX, 0);
}

TEST_F(Penne, KeepTheirFileAndTheMarginsInForceOnAFullDisk) {
    ModelloPenne modello(file);
    const std::string prima = test::contenuto(file);
    const test::DiscoPieno disco(100);
    EXPECT_THROW(modello.conferma("1", "2", disco), base::ErroreScrittura);
    EXPECT_EQ(test::contenuto(file), prima);
    EXPECT_EQ(statoPlot.scostamentoX, 0);
}

}  // namespace
}  // namespace korven::plot
