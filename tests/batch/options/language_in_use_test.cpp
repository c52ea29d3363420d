#include "batch/options/language_in_use.hpp"

#include <filesystem>

#include "base/language.hpp"
#include "batch/batch_bench.hpp"

namespace korven::batch {
namespace {

namespace fs = std::filesystem;
using test::Ambiente;
using test::dice;

TEST(LinguaDiLocale, IsThatOfTheLocaleWhateverItsCountryAndCodePage) {
    const std::pair<const char*, const char*> casi[] = {
        {"it_IT.UTF-8", "ita"}, {"de_AT", "deu"},      {"fr", "fra"},
        {"es_AR.UTF-8", "esp"}, {"en_GB.utf8", "eng"}, {"pt_BR@euro", "por"}};
    for (const auto& [locale, sigla] : casi)
        EXPECT_EQ(base::siglaLingua(linguaDiLocale(locale)), sigla) << locale;
}

TEST(LinguaDiLocale, IsItalianWhereTheProgramHasNoSuchLanguage) {
    for (const char* locale : {"C", "C.UTF-8", "POSIX", "ru_RU.UTF-8", "english", "x", ""})
        EXPECT_EQ(linguaDiLocale(locale), 1) << locale;
}

class LinguaInUso : public test::BancoConsole {
 protected:
    /// What "korven32c calcola ALTRI", without a project, is told with these variables.
    static std::string detto(std::vector<std::pair<std::string, std::string>> variabili,
                             std::vector<std::string> altri = {}) {
        altri.insert(altri.begin(), "calcola");
        return console(altri, {.variabili = std::move(variabili)}).errori;
    }
    static constexpr const char *ita = "manca un argomento: PROGETTO.kvd",
                                *eng = "an argument is missing: PROJECT.kvd",
                                *deu = "PROJECT.kvd\nHilfe mit";
};

TEST_F(LinguaInUso, IsThatOfTheEnvironmentWhereNothingElseNamesOne) {
    EXPECT_TRUE(dice(detto({}), ita));
    EXPECT_TRUE(dice(detto({{"LANG", "en_US.UTF-8"}}), eng));
    EXPECT_TRUE(dice(detto({{"LANG", "C.UTF-8"}}), ita));
    EXPECT_TRUE(dice(detto({{"LANG", "ru_RU.UTF-8"}}), ita));
    EXPECT_TRUE(dice(detto({{"LANG", "en_US.UTF-8"}, {"LC_MESSAGES", "de_DE"}}), deu));
    EXPECT_TRUE(dice(detto({{"LANG", "en_US.UTF-8"}, {"LC_MESSAGES", ""}}), eng));
    EXPECT_TRUE(dice(detto({{"LC_MESSAGES", "de_DE"}, {"LC_ALL", "en_GB"}}), eng));
    EXPECT_TRUE(dice(detto({{"LANG", "en_US.UTF-8"}, {"LC_ALL", "C"}}), ita));
}

// The refusal of a tag is told in the language that is in use without it.
TEST_F(LinguaInUso, IsThatOfTheEnvironmentWhereTheOptionNamesNone) {
    const auto errori = detto({{"LC_ALL", "en_GB.UTF-8"}}, {"--language", "english"});
    EXPECT_TRUE(dice(errori, "value not allowed: --language english")) << errori;
    EXPECT_TRUE(dice(errori, "For help: korven32c calculate --help\n")) << errori;
}

TEST_F(LinguaInUso, IsThatOfTheFileBeforeThatOfTheEnvironmentAndOfTheOptionBeforeBoth) {
    const std::string casa = cartella / "casa";
    const fs::path programma = fs::path(KORVEN_CONSOLE).parent_path();
    fs::create_directory(casa);
    for (const char* nome : {"texts01.txt", "texts06.txt", "texts32.txt"})
        fs::copy(programma / nome, casa + "/" + nome);
    test::metti(casa + "/language.cfg", "2\r\n");
    const std::pair<std::string, std::string> inglese = {"LANG", "en_US.UTF-8"};
    for (const char* opzione : {"--cartella", "--folder"})
        EXPECT_TRUE(dice(detto({inglese}, {opzione, casa}), deu)) << opzione;
    for (const char* opzione : {"--lingua", "--language"}) {
        EXPECT_TRUE(dice(detto({}, {"--cartella", casa, opzione, "eng"}), eng)) << opzione;
        EXPECT_TRUE(dice(detto({inglese}, {std::string(opzione) + "=ita"}), ita)) << opzione;
    }
}

TEST_F(LinguaInUso, IsItalianInAProgramFolderWithoutTextsWhateverTheEnvironment) {
    const std::string casa = cartella / "casa";
    fs::create_directory(casa);
    const auto esito =
        esegui("calcola", {"--cartella", casa}, {.variabili = {{"LANG", "en_US.UTF-8"}}});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_TRUE(dice(esito.uscita, "Calcolo eseguito.")) << esito.uscita;
}

TEST_F(LinguaInUso, NamesTheFilesThatTheCommandNamesAndLeavesTheOthers) {
    const auto esito = esegui("all", {"--output", cartella / "o", "--formats", "dxf", "--json"},
                              {.variabili = {{"LANG", "en_US.UTF-8"}}});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    for (const char* nome :
         {"muro.OUT", "muro.TAB", "muro.txt", "muro.doc", "muro-report.pdf", "muro-pressures.dxf",
          "muro-displacements.dxf", "muro-moments.dxf", "muro-shear.dxf", "muro-section.dxf",
          "muro-log.dxf", "muro-annex.pdf", "muro-annex.doc", "muro-annex.txt"})
        EXPECT_TRUE(fs::exists(cartella / ("o/" + std::string(nome)))) << nome;
    EXPECT_EQ(std::distance(fs::directory_iterator(cartella / "o"), {}), 14);
    EXPECT_TRUE(dice(esito.errori, "drawing 6/6: log\n")) << esito.errori;
    // What a script reads is the same in every language.
    EXPECT_TRUE(dice(esito.uscita, "\"comando\": \"tutto\"")) << esito.uscita;
    EXPECT_TRUE(dice(esito.uscita, "\"gia_aggiornato\": false")) << esito.uscita;
}

}  // namespace
}  // namespace korven::batch
