#include <algorithm>

#include "batch/batch_bench.hpp"
#include "support/dxf_reader.hpp"

namespace korven::batch {
namespace {

namespace fs = std::filesystem;
using test::contenuto;
using test::dice;
using test::metti;

class Disegni : public test::BancoConsole {
 protected:
    /// Runs "korven32c COMANDO muro.kvd ALTRI", without a number of segments.
    test::EsitoProgramma disegna(const std::string& comando, std::vector<std::string> altri = {}) {
        altri.insert(altri.begin(), {comando, progetto});
        return console(altri);
    }
    [[nodiscard]] std::size_t testi(const std::string& nome, std::string_view testo) const {
        const auto dxf = test::LettoreDxf::leggi(contenuto(cartella / nome));
        return static_cast<std::size_t>(
            std::count_if(dxf.testi.begin(), dxf.testi.end(),
                          [&](const auto& t) { return dice(t.testo, testo); }));
    }
};

TEST_F(Disegni, ADiagramIsComputedAndWrittenInEveryFormAskedFor) {
    const auto esito = esegui(
        "diagramma", {"--tipo", "momenti", "--dxf", cartella / "m.dxf", "--pdf", cartella / "m.pdf",
                      "--svg", cartella / "m.svg", "--png", cartella / "m.png", "--dpi", "50"});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_EQ(nomi(), "m.dxf m.pdf m.png m.svg muro.OUT muro.kvd ");
    EXPECT_EQ(testi("m.dxf", "DIAGRAMMA DEI MOMENTI"), 1u);
    EXPECT_TRUE(contenuto(cartella / "m.pdf").starts_with("%PDF"));
    EXPECT_TRUE(contenuto(cartella / "m.png").starts_with("\x89PNG"));
    EXPECT_TRUE(dice(contenuto(cartella / "m.svg"), "<svg"));
    for (const char* nome : {"m.pdf", "muro.OUT"})
        EXPECT_TRUE(dice(esito.uscita, "File scritto: " + cartella / nome)) << esito.uscita;
}

TEST_F(Disegni, ADiagramOfOneStageShowsThatStageAlone) {
    EXPECT_EQ(esegui("diagramma", {"--tipo", "taglio", "--fase", "2", "--dxf", cartella / "t.dxf"})
                  .codice,
              0);
    EXPECT_EQ(testi("t.dxf", "Fase di scavo n."), 1u);
}

TEST_F(Disegni, SectionAndLogNeedNoRun) {
    EXPECT_EQ(disegna("sezione", {"--dxf", cartella / "s.dxf"}).codice, 0);
    EXPECT_EQ(disegna("stratigrafia", {"--dxf", cartella / "l.dxf"}).codice, 0);
    EXPECT_EQ(nomi(), "l.dxf muro.kvd s.dxf ");
    EXPECT_EQ(testi("s.dxf", "SEZIONE ELEMENTO STRUTTURALE"), 1u);
    EXPECT_EQ(testi("l.dxf", "DESCRIZIONE STRATIGRAFICO-GEOTECNICA"), 1u);
}

TEST_F(Disegni, SpeakTheLanguageAskedFor) {
    EXPECT_EQ(disegna("sezione", {"--lingua", "eng", "--dxf", cartella / "s.dxf"}).codice, 0);
    EXPECT_EQ(testi("s.dxf", "SECTION OF THE STRUCTURAL ELEMENT"), 1u);
}

TEST_F(Disegni, TheSamplesOfTheHatchesNeedNoProject) {
    const auto esito = console({"campiture", "--dxf", cartella / "c.dxf"});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_EQ(testi("c.dxf", "Argilla limosa"), 1u);
}

TEST_F(Disegni, AllOfThemComeWithTheReportIntoOneFolder) {
    const auto esito = esegui("tutto", {"--uscita", cartella / "o", "--formati", "dxf"});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    for (const char* nome :
         {"muro.OUT", "muro.TAB", "muro.txt", "muro-pressioni.dxf", "muro-spostamenti.dxf",
          "muro-momenti.dxf", "muro-taglio.dxf", "muro-sezione.dxf", "muro-stratigrafia.dxf"})
        EXPECT_TRUE(std::filesystem::exists(cartella / ("o/" + std::string(nome)))) << nome;
    EXPECT_EQ(nomi(), "muro.kvd ") << "nothing beside the project";
    EXPECT_TRUE(dice(esito.errori, "disegno 6/6: stratigrafia")) << esito.errori;
}

TEST_F(Disegni, AllOfThemKeepTheMethodAskedForInEveryDiagram) {
    EXPECT_EQ(
        esegui("tutto", {"--uscita", cartella / "o", "--metodo-spinte", "bell", "--formati", "dxf"})
            .codice,
        0);
    const auto prima = contenuto(cartella / "o/muro-momenti.dxf");
    EXPECT_EQ(esegui("diagramma",
                     {"--tipo", "momenti", "--metodo-spinte", "bell", "--dxf", cartella / "m.dxf"})
                  .codice,
              0);
    EXPECT_EQ(contenuto(cartella / "m.dxf"), prima);
}

TEST_F(Disegni, WithoutAFileToWriteAreWrongUsage) {
    const auto esito = disegna("sezione");
    EXPECT_EQ(esito.codice, 2);
    EXPECT_TRUE(dice(esito.errori, "--dxf, --pdf, --svg, --png")) << esito.errori;
    EXPECT_EQ(esegui("diagramma", {"--dxf", cartella / "m.dxf"}).codice, 2) << "no quantity";
    EXPECT_EQ(esegui("tutto").codice, 2) << "no folder";
    EXPECT_EQ(disegna("sezione", {"--png", cartella / "s.png", "--dpi", "5"}).codice, 2);
}

TEST_F(Disegni, NeverTakeThePlaceOfTheProject) {
    const std::string prima = contenuto(progetto);
    EXPECT_EQ(disegna("sezione", {"--dxf", progetto}).codice, 3);
    EXPECT_EQ(contenuto(progetto), prima);
}

TEST_F(Disegni, NeverTakeThePlaceOfTheResultsOrOfEachOther) {
    EXPECT_EQ(esegui("diagramma", {"--tipo", "momenti", "--dxf", cartella / "muro.OUT"}).codice, 3);
    EXPECT_EQ(nomi(), "muro.kvd ");
    EXPECT_EQ(disegna("sezione", {"--dxf", cartella / "s", "--png", cartella / "s"}).codice, 3);
    EXPECT_EQ(nomi(), "muro.kvd ");
}

// Nothing is there yet: what the names will become counts.
TEST_F(Disegni, NeverReplaceEachOtherUnderTwoNames) {
    fs::create_directory(cartella / "sotto");
    fs::create_symlink("muro.OUT", cartella / "via");
    const auto prima = nomi();
    const test::Ambiente qui{.cartella = cartella.percorso()};
    const struct {
        int codice;
        std::vector<std::string> argomenti;
        std::string uno, altro;
    } casi[] = {
        {3, {"sezione", progetto, "--dxf", "q", "--svg", "./q"}, "./q", "q"},
        {3, {"sezione", progetto, "--pdf", "sotto/../q", "--svg", "q"}, "q", "sotto/../q"},
        {3, {"campiture", "--dxf", "q", "--svg", "sotto/../q"}, "sotto/../q", "q"},
        {3,
         {"diagramma", progetto, "--tipo", "taglio", "--dxf", "muro.OUT"},
         "muro.OUT",
         cartella / "muro.OUT"},
        {3,
         {"diagramma", progetto, "--tipo", "taglio", "--dxf", "via"},
         "via",
         cartella / "muro.OUT"},
        {2,
         {"diagramma", progetto, "--tipo", "taglio", "--dxf", "muro.TAB"},
         "muro.TAB",
         cartella / "muro.TAB"},
        {2, {"stratigrafia", progetto, "--pdf", "./muro.doc"}, "./muro.doc", cartella / "muro.doc"},
        {3, {"relazione", progetto, "--pdf", "muro.OUT"}, "muro.OUT", cartella / "muro.OUT"},
        {3,
         {"relazione", progetto, "--pdf", "sotto/../muro.TAB"},
         "sotto/../muro.TAB",
         cartella / "muro.TAB"},
        {3,
         {"relazione", progetto, "--pdf", "muro.txt", "--txt"},
         "muro.txt",
         cartella / "muro.txt"},
    };
    for (const auto& [codice, argomenti, uno, altro] : casi) {
        const auto esito = console(argomenti, qui);
        EXPECT_EQ(esito.codice, codice) << esito.errori;
        EXPECT_TRUE(dice(esito.errori, "korven32c: " + uno + ": ")) << esito.errori;
        EXPECT_TRUE(dice(esito.errori, ": " + altro + "\n")) << esito.errori;
        EXPECT_EQ(nomi(), prima);
    }
}

TEST_F(Disegni, OfAWholeDeliveryNeverReplaceEachOtherThroughLinks) {
    const std::string dove = cartella / "o";
    const auto tutto = [&] { return esegui("tutto", {"--uscita", dove, "--formati", "dxf"}); };
    const struct {
        int codice;
        const char *nome, *meta;
    } casi[] = {{2, "muro-taglio.dxf", "muro-momenti.dxf"},
                {2, "muro-sezione.dxf", "muro-relazione.pdf"},
                {3, "muro.txt", "muro.OUT"},
                {3, "muro.TAB", "muro.OUT"}};
    for (const auto& [codice, nome, meta] : casi) {
        fs::remove_all(dove);
        fs::create_directory(dove);
        fs::create_symlink(meta, dove + "/" + nome);
        EXPECT_EQ(tutto().codice, codice) << nome;
        EXPECT_EQ(std::distance(fs::directory_iterator(dove), {}), 1) << nome;
    }
}

TEST_F(Disegni, AreTheSameWhateverElseIsWritten) {
    EXPECT_EQ(disegna("sezione", {"--dxf", cartella / "a.dxf"}).codice, 0);
    EXPECT_EQ(disegna("sezione", {"--dxf", cartella / "b.dxf", "--svg", cartella / "b.svg"}).codice,
              0);
    EXPECT_EQ(contenuto(cartella / "a.dxf"), contenuto(cartella / "b.dxf"));
}

TEST_F(Disegni, ThatCannotBeWrittenAreTold) {
    for (const char* forma : {"--dxf", "--pdf", "--svg", "--png"}) {
        const auto esito = disegna("sezione", {forma, cartella / "manca/s"});
        EXPECT_EQ(esito.codice, 3);
        EXPECT_TRUE(dice(esito.errori, cartella / "manca/s")) << esito.errori;
    }
}

TEST_F(Disegni, WithoutPensOrHatchesAreABrokenProgramFolder) {
    const test::CartellaProvvisoria vuota;
    const auto esito =
        disegna("sezione", {"--cartella", vuota.percorso(), "--dxf", cartella / "s.dxf"});
    EXPECT_EQ(esito.codice, 3);
    EXPECT_TRUE(dice(esito.errori, "module06ita")) << esito.errori;
    EXPECT_EQ(nomi(), "muro.kvd ");
}

TEST_F(Disegni, OfALogWithoutLayersAreRefused) {
    auto dati = test::progettoSemplice();
    dati.nStrati = 0;
    scrivi(dati);
    const auto esito = disegna("stratigrafia", {"--dxf", cartella / "l.dxf"});
    EXPECT_EQ(esito.codice, 1);
    EXPECT_TRUE(dice(esito.errori, "stratigrafia")) << esito.errori;
    EXPECT_EQ(nomi(), "muro.kvd ");
}

// A page of 21 cm: 28.5 - 21 + 0.1.
TEST_F(Disegni, OfALogEndWhereThePaperDoes) {
    const auto bordo = [this](const std::string& foglio) {
        EXPECT_EQ(disegna("stratigrafia", {"--foglio", foglio, "--dxf", cartella / "l.dxf"}).codice,
                  0);
        return test::LettoreDxf::leggi(contenuto(cartella / "l.dxf")).ymin;
    };
    EXPECT_DOUBLE_EQ(bordo("A4-orizzontale"), 7.6);
    EXPECT_DOUBLE_EQ(bordo("A5"), 7.6);
    EXPECT_DOUBLE_EQ(bordo("Letter"), 0.66);
    EXPECT_DOUBLE_EQ(bordo("A3"), 0.6);
    const auto a4 = contenuto(cartella / "l.dxf");
    EXPECT_EQ(disegna("stratigrafia", {"--dxf", cartella / "l.dxf"}).codice, 0);
    EXPECT_EQ(contenuto(cartella / "l.dxf"), a4);
    EXPECT_EQ(disegna("stratigrafia", {"--foglio", "A9", "--dxf", cartella / "l.dxf"}).codice, 2);
}

TEST_F(Disegni, OfALogOnALyingSheetHaveThatForTheirPage) {
    EXPECT_EQ(
        disegna("stratigrafia", {"--foglio", "A4-orizzontale", "--pdf", cartella / "l.pdf"}).codice,
        0);
    EXPECT_TRUE(dice(contenuto(cartella / "l.pdf"), "/MediaBox [0 0 842"));
}

TEST_F(Disegni, OfALogOfKilometresAreRefusedByLayerAndDepth) {
    auto dati = test::progettoSemplice();
    dati.profStrato[1] = 45000;
    scrivi(dati);
    const auto esito = disegna("stratigrafia", {"--dxf", cartella / "l.dxf", "--json"});
    EXPECT_EQ(esito.codice, 1);
    EXPECT_TRUE(dice(esito.errori, "strato 1: Prof. [m] = 45000: ")) << esito.errori;
    EXPECT_TRUE(dice(esito.uscita, "strato 1: Prof. [m] = 45000: ")) << esito.uscita;
    EXPECT_EQ(nomi(), "muro.kvd ");

    const auto tutto = esegui("tutto", {"--uscita", cartella / "o", "--formati", "dxf"});
    EXPECT_EQ(tutto.codice, 1);
    EXPECT_TRUE(dice(tutto.errori, "strato 1: Prof. [m] = 45000: ")) << tutto.errori;
    for (const char* nome : {"pressioni", "spostamenti", "momenti", "taglio", "sezione"})
        EXPECT_TRUE(std::filesystem::exists(cartella / ("o/muro-" + std::string(nome) + ".dxf")));
    EXPECT_FALSE(std::filesystem::exists(cartella / "o/muro-stratigrafia.dxf"));
}

// An installed program lies in a folder that its user may not write.
TEST_F(Disegni, NeedNoStyleFileInAProgramFolderThatCannotBeWritten) {
    const test::CartellaProvvisoria programma;
    std::filesystem::copy_file(
        std::filesystem::path(KORVEN_CONSOLE).parent_path() / "module06ita.CFG",
        programma / "module06ita.CFG");
    std::filesystem::permissions(programma.percorso(), std::filesystem::perms(0555));
    const auto esito = console(
        {"sezione", progetto, "--dxf", cartella / "s.dxf", "--cartella", programma.percorso()},
        {.senzaPrivilegi = true});
    std::filesystem::permissions(programma.percorso(), std::filesystem::perms(0755));
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_EQ(test::LettoreDxf::leggi(contenuto(cartella / "s.dxf")).stile, "MONOTXT");
    EXPECT_FALSE(std::filesystem::exists(programma / "dxf.cfg"));
}

// The pens write in a face whose widths only its font knows.
TEST_F(Disegni, OfUnusualFacesAreTheSameWhateverElseIsWritten) {
    const test::CartellaProvvisoria programma;
    const auto mio = std::filesystem::path(KORVEN_CONSOLE).parent_path();
    for (const char* nome : {"set1.rtn", "set2.rtn", "set3ita.rtn", "set4.rtn"})
        std::filesystem::copy_file(mio / nome, programma / nome);
    std::string penne = contenuto((mio / "module06ita.CFG").string());
    for (std::size_t i = penne.find("Arial"); i != std::string::npos; i = penne.find("Arial", i))
        penne.replace(i, 5, "Times New Roman");
    metti(programma / "module06ita.CFG", penne);
    const std::vector<std::string> qui = {"--cartella", programma.percorso()};
    auto solo = qui, conPdf = qui;
    solo.insert(solo.end(), {"--dxf", cartella / "a.dxf"});
    conPdf.insert(conPdf.end(), {"--dxf", cartella / "b.dxf", "--pdf", cartella / "b.pdf"});
    EXPECT_EQ(disegna("stratigrafia", solo).codice, 0);
    EXPECT_EQ(disegna("stratigrafia", conPdf).codice, 0);
    EXPECT_EQ(contenuto(cartella / "a.dxf"), contenuto(cartella / "b.dxf"));
}

TEST_F(Disegni, AreNamedInTheAnswerForScripts) {
    const auto esito = disegna("sezione", {"--json", "--dxf", cartella / "s.dxf"});
    EXPECT_TRUE(dice(esito.uscita, "\"scritti\": [\n      \"" + cartella / "s.dxf"))
        << esito.uscita;
}

}  // namespace
}  // namespace korven::batch
