#include "project/project_file.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <sstream>

#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "base/files.hpp"
#include "support/failing_disk.hpp"
#include "support/sample_projects.hpp"
#include "support/temporary_folder.hpp"
#include "support/wall_builder.hpp"

namespace korven::project {
namespace {

using base::LettoreRighe;

LettoreRighe file(const std::string& testo) { return {"prova.kvd", base::inCp1252(testo)}; }

std::string primeRighe(const std::string& testo, long quante) {
    std::size_t fine = 0;
    for (long i = 0; i < quante; ++i) fine = testo.find('\n', fine) + 1;
    return testo.substr(0, fine);
}

long righe(const std::string& testo) { return std::count(testo.begin(), testo.end(), '\n'); }

TEST(FileDiProgetto, OfAFreshProjectHasFiftyNineLinesAndBlankHeadings) {
    DatiProgetto d = test::progettoVuoto();
    const std::string testo = testoProgetto(d);
    EXPECT_EQ(righe(testo), 59);
    EXPECT_TRUE(testo.starts_with("0\r\n"));
    // 1 + 19 + 1 + 1 lines come before the headings.
    EXPECT_TRUE(
        testo.substr(primeRighe(testo, 22).size()).starts_with("\r\n\r\n\r\n\r\n\r\n\r\n0\r\n"));
}

TEST(FileDiProgetto, HasOneLineAValueInTheOrderOfTheFormat) {
    DatiProgetto d = test::progettoSemplice();
    EXPECT_EQ(righe(testoProgetto(d)), 1 + 8 * 2 + 19 + 1 + 4 + 1 + 4 * 2 + 6 + 16 + 6 + 8 + 1);

    d.opzioneRiservata = 7;
    d.suStrato[1] = 2.5;
    d.sezione.fyk = 450;
    d.sforzoNormale = -0.5;
    std::istringstream testo(testoProgetto(d));
    std::vector<std::string> linee;
    for (std::string riga; std::getline(testo, riga);) {
        ASSERT_TRUE(riga.ends_with('\r'));
        linee.push_back(riga.substr(0, riga.size() - 1));
    }
    const auto riga = [&linee](std::size_t n) { return linee.at(n - 1); };
    EXPECT_EQ(riga(1), "2");
    EXPECT_EQ(riga(2), "4");
    EXPECT_EQ(riga(7), "2.5");  // Su comes before ks
    EXPECT_EQ(riga(8), "1500");
    EXPECT_EQ(riga(9), "1A Sabbia, limosa \"media\"");  // no quoting
    EXPECT_EQ(riga(23), "7");                           // between modoTensioni and metodoSpinte
    EXPECT_EQ(riga(26), "12");                          // wall length
    EXPECT_EQ(riga(36), "1");                           // weight of water, last of the wall
    EXPECT_EQ(riga(37), "1");                           // anchors
    EXPECT_EQ(riga(42), "2");                           // stages
    EXPECT_EQ(riga(51), "Muro di prova");
    EXPECT_EQ(riga(66), "450");  // fyk before fck, after both moduli
    EXPECT_EQ(riga(68), "-1");   // tipoDiaframma, a flag
    EXPECT_EQ(riga(69), "0");
    EXPECT_EQ(linee.back(), "-.5");
}

TEST(FileDiProgetto, ReturnsTheSameProjectAfterWritingAndReading) {
    std::mt19937 caso(3);
    std::uniform_int_distribution<int> intero(-400000, 400000), righeCaso(0, 20);
    for (int prova = 0; prova < 200; ++prova) {
        DatiProgetto d = test::progettoVuoto();
        const auto valore = [&] { return intero(caso) / 128.0; };  // at most seven decimals
        d.nStrati = righeCaso(caso);
        d.nTiranti = righeCaso(caso);
        d.nFasi = righeCaso(caso);
        for (int i = 1; i <= d.nStrati; ++i) {
            d.profStrato[i] = valore();
            d.suStrato[i] = valore();
            d.ksStrato[i] = valore();
            d.descrStrato[i] = "argilla, \"molle\" è µ " + std::to_string(i);
        }
        for (int i = 1; i <= d.nTiranti; ++i) d.pretTirante[i] = valore();
        for (int i = 1; i <= d.nFasi; ++i) d.faldaFase[i] = valore();
        d.faldaValle = valore();
        d.titoli[2] = "  titolo con spazi  ";
        d.sezione.tipoDiaframma = false;
        d.sezione.tipoPaliArmati = true;
        d.sezione.armNumLong = valore();
        d.sforzoNormale = valore();

        DatiProgetto riletto = test::progettoVuoto();
        auto lettore = file(testoProgetto(d));
        leggiDati(lettore, riletto);
        EXPECT_EQ(riletto, d);
        auto confronto = file(testoProgetto(d));
        EXPECT_FALSE(progettoDiverso(confronto, d));
    }
}

TEST(FileDiProgetto, ReopensWithCoulombAndThenDiffersFromMemory) {
    DatiProgetto d = test::progettoSemplice();
    d.metodoSpinte = 3;
    const std::string testo = testoProgetto(d);

    auto stesso = file(testo);
    EXPECT_FALSE(progettoDiverso(stesso, d));  // the comparison does not clamp

    auto lettore = file(testo);
    EXPECT_EQ(leggiDati(lettore, d), 3) << "the code on file is told all the same";
    EXPECT_EQ(d.metodoSpinte, 1);
    auto confronto = file(testo);
    EXPECT_TRUE(progettoDiverso(confronto, d));
}

TEST(FileDiProgetto, KeepsTheMethodCodeOfAFreshProject) {
    DatiProgetto d = test::progettoVuoto();
    auto lettore = file(testoProgetto(d));
    leggiDati(lettore, d);
    EXPECT_EQ(d.metodoSpinte, 0);
}

TEST(FileDiProgetto, OfTheOldestFormLoadsKeepsTheLaterFieldsAndComparesAsEqual) {
    DatiProgetto vecchio = test::progettoSemplice();
    const std::string intero = testoProgetto(vecchio);
    const std::string antico = primeRighe(intero, righe(intero) - 15);  // up to paliInterasse

    DatiProgetto d = test::progettoVuoto();
    d.sezione.palancolaBase = 22;  // of the project that was open before
    d.sezione.armNumLong = 12;
    d.sforzoNormale = 4;
    auto lettore = file(antico);
    leggiDati(lettore, d);
    EXPECT_EQ(d.nStrati, 2);
    EXPECT_EQ(d.sezione.palancolaBase, 22);
    EXPECT_EQ(d.sezione.armNumLong, 12);
    EXPECT_EQ(d.sforzoNormale, 4);
    auto confronto = file(antico);
    EXPECT_FALSE(progettoDiverso(confronto, d));
    auto conRigaVuota = file(antico + "\r\n");
    EXPECT_FALSE(progettoDiverso(conRigaVuota, d));
}

TEST(FileDiProgetto, LeavesTheRowsAboveItsCountsAsTheyWere) {
    DatiProgetto d = test::progettoVuoto();
    d.profStrato[3] = 30;  // of the project that was open before
    d.rigTirante[2] = 800;
    d.sovraccFase[3] = 2;
    auto lettore = file(testoProgetto(test::progettoSemplice()));
    leggiDati(lettore, d);
    EXPECT_EQ(d.nStrati, 2);
    EXPECT_EQ(d.profStrato[3], 30);
    EXPECT_EQ(d.nTiranti, 1);
    EXPECT_EQ(d.rigTirante[2], 800);
    EXPECT_EQ(d.nFasi, 2);
    EXPECT_EQ(d.sovraccFase[3], 2);
}

TEST(FileDiProgetto, TurnsLineFeedsInTextsIntoBlanksSoThatNoLineIsShifted) {
    DatiProgetto d = test::progettoSemplice();
    const long quante = righe(testoProgetto(d));
    d.descrStrato[1] = "1 Sabbia\nlimosa";
    d.titoli[2] = "Lotto 2\n\nvia Roma\n";
    EXPECT_EQ(righe(testoProgetto(d)), quante);
    DatiProgetto riletto;
    auto lettore = file(testoProgetto(d));
    leggiDati(lettore, riletto);
    EXPECT_EQ(riletto.descrStrato[1], "1 Sabbia limosa");
    EXPECT_EQ(riletto.titoli[2], "Lotto 2  via Roma ");
    EXPECT_EQ(riletto.sezione, d.sezione);
}

TEST(FileDiProgetto, SavesCharactersOutsideTheCodePageAsQuestionMarks) {
    const test::CartellaProvvisoria cartella;
    fileCorrente = cartella / "muro.kvd";
    Progetto = test::progettoSemplice();
    Progetto.descrStrato[1] = "1 \u03c6' \u2264 30\u00b0, \u20ac";  // phi and <= have no place
    Progetto.titoli[1] = "\u6e2f";
    scriviProgetto();
    EXPECT_TRUE(progettoDiverso()) << "memory holds what the file can't";
    leggiProgetto();
    EXPECT_EQ(Progetto.descrStrato[1], "1 ?' ? 30\u00b0, \u20ac");
    EXPECT_EQ(Progetto.titoli[1], "?");
    EXPECT_EQ(Progetto.rigTirante[1], 500);
    EXPECT_FALSE(progettoDiverso());
    azzeraProgetto();
    fileCorrente.clear();
}

TEST(FileDiProgetto, MayStopBeforeEachOfTheLaterBlocksButNotInsideOne) {
    const std::string intero = testoProgetto(test::progettoSemplice());
    for (const long mancanti : {0, 1, 9, 15}) {
        DatiProgetto d;
        auto lettore = file(primeRighe(intero, righe(intero) - mancanti));
        EXPECT_NO_THROW(leggiDati(lettore, d)) << mancanti;
    }
    for (const long mancanti : {2, 8, 10, 14, 16, 40}) {
        DatiProgetto d;
        auto lettore = file(primeRighe(intero, righe(intero) - mancanti));
        EXPECT_THROW(leggiDati(lettore, d), base::ErroreFile) << mancanti;
        EXPECT_EQ(d, DatiProgetto{}) << "a broken file changed the project";
    }
}

TEST(FileDiProgetto, MayEndInEmptyLinesOrTheMarkOfDosInEachOfItsForms) {
    const std::string intero = testoProgetto(test::progettoSemplice());
    for (const long mancanti : {0, 1, 9, 15})
        for (const char* coda : {"\r\n\r\n", "\r\n \r\n\r\n", "\x1A", "\x1A\r\n", "\r\n\r\n\x1A"}) {
            const std::string testo = primeRighe(intero, righe(intero) - mancanti);
            DatiProgetto senza, con;
            auto lettore = file(testo);
            leggiDati(lettore, senza);
            auto altro = file(testo + coda);
            EXPECT_NO_THROW(leggiDati(altro, con)) << mancanti;
            EXPECT_EQ(con, senza) << mancanti;
            auto confronto = file(testo + coda);
            EXPECT_FALSE(progettoDiverso(confronto, senza)) << mancanti;
        }
}

TEST(FileDiProgetto, RefusesCountsThatAreNoRowCounts) {
    for (const char* conteggio : {"101", "-1", "2.5", "abc", ""}) {
        DatiProgetto d;
        auto lettore = file(std::string(conteggio) + "\r\n");
        try {
            leggiDati(lettore, d);
            FAIL() << conteggio;
        } catch (const base::ErroreFile& errore) {
            EXPECT_EQ(errore.riga(), 1) << conteggio;
            EXPECT_NE(errore.atteso().find("da 0 a 100"), std::string::npos);
        }
    }
}

// Two layers are written but four counted: what breaks is a line further down.
TEST(FileDiProgetto, RemindsOfTheCountsWhereAFileIsReadOutOfStep) {
    const test::CartellaProvvisoria cartella;
    fileCorrente = cartella / "muro.kvd";
    std::string testo = testoProgetto(test::progettoSemplice());
    testo.replace(0, 1, "4");
    base::scriviFile(fileCorrente, testo);
    try {
        leggiProgetto();
        FAIL();
    } catch (const base::ErroreFile& errore) {
        EXPECT_GT(errore.riga(), 17);
        EXPECT_TRUE(errore.atteso().ends_with(
            "; controllare anche i numeri di strati, tiranti e fasi: le righe che li seguono "
            "devono essere altrettante"))
            << errore.atteso();
    }
    fileCorrente.clear();
}

TEST(FileDiProgetto, NamesTheFieldThatHoldsNoNumber) {
    std::string testo = testoProgetto(test::progettoSemplice());
    testo.replace(primeRighe(testo, 11).size(), 3, "abc");  // weight of layer 2
    DatiProgetto d;
    auto lettore = file(testo);
    try {
        leggiDati(lettore, d);
        FAIL();
    } catch (const base::ErroreFile& errore) {
        EXPECT_EQ(errore.riga(), 12);
        EXPECT_EQ(errore.atteso(), "atteso un numero: peso saturo dello strato 2");
    }
}

TEST(FileDiProgetto, TakesAnyNonZeroFlagAsTrueButComparesItAsANumber) {
    DatiProgetto d = test::progettoSemplice();
    std::string testo = testoProgetto(d);
    const std::size_t bandiera = primeRighe(testo, 67).size();
    ASSERT_EQ(testo.substr(bandiera, 4), "-1\r\n");
    testo.replace(bandiera, 2, "1");
    auto lettore = file(testo);
    leggiDati(lettore, d);
    EXPECT_TRUE(d.sezione.tipoDiaframma);
    auto confronto = file(testo);
    EXPECT_TRUE(progettoDiverso(confronto, d));
}

TEST(ProgettoDiverso, SeesAnyNumberTextOrFlagButNoHeading) {
    const DatiProgetto d = test::progettoSemplice();
    const std::string testo = testoProgetto(d);
    const auto diverso = [&testo](auto cambia) {
        DatiProgetto altro = test::progettoSemplice();
        cambia(altro);
        auto confronto = file(testo);
        return progettoDiverso(confronto, altro);
    };
    EXPECT_FALSE(diverso([](DatiProgetto&) {}));
    EXPECT_FALSE(diverso([](DatiProgetto& p) { p.titoli[1] = "Altro"; }));
    EXPECT_FALSE(diverso([](DatiProgetto& p) { p.titoli[6] = "Altro"; }));
    EXPECT_TRUE(diverso([](DatiProgetto& p) { p.nStrati = 1; }));
    EXPECT_TRUE(diverso([](DatiProgetto& p) { p.nTiranti = 2; }));
    EXPECT_TRUE(diverso([](DatiProgetto& p) { p.nFasi = 1; }));
    EXPECT_TRUE(diverso([](DatiProgetto& p) { p.descrStrato[2] = "2 ghiaia"; }));
    EXPECT_TRUE(diverso([](DatiProgetto& p) { p.suStrato[1] = 1; }));
    EXPECT_TRUE(diverso([](DatiProgetto& p) { p.opzioneRiservata = 1; }));
    EXPECT_TRUE(diverso([](DatiProgetto& p) { p.faldaValle = 4; }));
    EXPECT_TRUE(diverso([](DatiProgetto& p) { p.sezione.tipoPali = true; }));
    EXPECT_TRUE(diverso([](DatiProgetto& p) { p.sforzoNormale = 1e-7; }));
}

TEST(ProgettoDiverso, HoldsAValueOfMoreThanSevenDecimalsForChangedUntilItIsReloaded) {
    DatiProgetto d = test::progettoSemplice();
    d.forzaTesta = 1.123456789;
    const std::string testo = testoProgetto(d);
    EXPECT_NE(testo.find("\r\n1.1234568\r\n"), std::string::npos);
    auto confronto = file(testo);
    EXPECT_TRUE(progettoDiverso(confronto, d));
    auto lettore = file(testo);
    leggiDati(lettore, d);
    auto dopo = file(testo);
    EXPECT_FALSE(progettoDiverso(dopo, d));
}

TEST(FileDiProgetto, IsWrittenAndReadUnderTheCurrentName) {
    const test::CartellaProvvisoria cartella;
    fileCorrente = cartella / "muro.kvd";
    Progetto = test::progettoSemplice();
    modificato = true;
    scriviProgetto();
    EXPECT_TRUE(modificato) << "only the save command clears the flag";
    EXPECT_FALSE(progettoDiverso());
    const DatiProgetto scritto = Progetto;
    azzeraProgetto();
    EXPECT_TRUE(progettoDiverso());
    leggiProgetto();
    EXPECT_EQ(Progetto, scritto);
    fileCorrente.clear();
    modificato = false;
}

TEST(FileDiProgetto, StaysAsItWasOnAFullDisk) {
    const test::CartellaProvvisoria cartella;
    fileCorrente = cartella / "muro.kvd";
    test::metti(fileCorrente, "prima");
    const test::DiscoPieno disco(100);
    try {
        scriviProgetto(disco);
        ADD_FAILURE();
    } catch (const base::ErroreScrittura& errore) {
        EXPECT_EQ(errore.percorso(), fileCorrente);
        EXPECT_NE(errore.atteso().find(test::nonCeSpazio), std::string::npos);
    }
    EXPECT_EQ(test::contenuto(fileCorrente), "prima");
    fileCorrente.clear();
}

// Once the file has taken its name it is saved: a folder that can't be flushed is no failure.
TEST(FileDiProgetto, IsTheOldOneOrTheNewOneWhicheverCallOfTheDiskFails) {
    const test::CartellaProvvisoria cartella;
    fileCorrente = cartella / "muro.kvd";
    const test::DiscoContato intatto;
    scriviProgetto(intatto);
    const std::string nuovo = test::contenuto(fileCorrente);
    ASSERT_EQ(intatto.chiamate.size(), 6u);
    for (std::size_t quale = 1; quale <= intatto.chiamate.size(); ++quale) {
        test::metti(fileCorrente, "prima");
        const test::DiscoContato disco(quale);
        std::string motivo;
        try {
            scriviProgetto(disco);
        } catch (const base::ErroreScrittura& errore) {
            motivo = errore.atteso();
        }
        const bool salvato = quale > 4;
        const std::string& chiamata = intatto.chiamate[quale - 1];
        EXPECT_EQ(motivo, salvato ? "" : "impossibile scrivere il file (errore del disco)")
            << chiamata;
        EXPECT_EQ(test::contenuto(fileCorrente), salvato ? nuovo : "prima") << chiamata;
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator(cartella.percorso()), {}), 1)
            << chiamata;
    }
    fileCorrente.clear();
}

}  // namespace
}  // namespace korven::project
