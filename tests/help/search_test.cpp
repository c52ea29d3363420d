#include "help/search.hpp"

#include <gtest/gtest.h>

namespace korven::help {
namespace {

PaginaGuida pagina(const char* nome, const char* titolo, const char* parole, const char* html) {
    return {.nome = nome, .titolo = titolo, .parole = parole, .html = html};
}

const Guida guida{
    {"Tutto"},
    {pagina("a", "Stratigrafia", "terreno", "<p>La spinta usa &#966; e la densit\xC3\xA0.</p>"),
     pagina("b", "Taglio", "staffe, spinta", "<p>La scala del diagramma, ala e passo.</p>"),
     pagina("c", "Spinta attiva", "Rankine", "<p>Coulomb, Rankine, Bell.</p>")}};

std::vector<std::string> nomi(std::string_view cerca) {
    std::vector<std::string> trovati;
    for (const auto& trovata : cercaNellaGuida(guida, cerca))
        trovati.push_back(trovata.pagina->nome);
    return trovati;
}

using Nomi = std::vector<std::string>;

TEST(CercaNellaGuida, FindsWordsWhateverTheirCaseAndAccents) {
    EXPECT_EQ(nomi("RANKINE"), Nomi{"c"});
    EXPECT_EQ(nomi("densita"), Nomi{"a"});
    EXPECT_EQ(nomi("DENSITÀ"), Nomi{"a"});
    EXPECT_EQ(nomi("phi"), Nomi{"a"});
    EXPECT_EQ(nomi("φ"), Nomi{"a"});
}

TEST(CercaNellaGuida, WantsEveryWord) {
    EXPECT_EQ(nomi("spinta densita"), Nomi{"a"});
    EXPECT_EQ(nomi("  densita   spinta "), Nomi{"a"});
    EXPECT_EQ(nomi("spinta seno"), Nomi{});
}

TEST(CercaNellaGuida, FindsWordsByTheirBeginningOnly) {
    EXPECT_EQ(nomi("dens"), Nomi{"a"});
    EXPECT_EQ(nomi("ala"), Nomi{"b"});
    EXPECT_EQ(nomi("cala"), Nomi{});
}

TEST(CercaNellaGuida, FindsAWordAfterAQuotationMarkOrADash) {
    const Guida una{{"Uno"},
                    {pagina("x", "X", "x", "<p>«\u00a0mot\u00a0» „Wort“ –tiret l’une</p>")}};
    for (const char* parola : {"mot", "wort", "tiret", "une", "«\u00a0mot"})
        EXPECT_EQ(cercaNellaGuida(una, parola).size(), 1U) << parola;
    EXPECT_TRUE(cercaNellaGuida(una, "ort").empty());
    EXPECT_EQ(postiTrovati("«\u00a0mot", {"mot"}),
              (std::vector<std::pair<std::size_t, std::size_t>>{{4, 7}}));
}

TEST(CercaNellaGuida, PutsTitlesFirstThenFurtherWordsThenBodies) {
    EXPECT_EQ(nomi("spinta"), (Nomi{"c", "b", "a"}));
}

TEST(CercaNellaGuida, FindsNothingWithoutWords) {
    EXPECT_EQ(nomi(""), Nomi{});
    EXPECT_EQ(nomi("   "), Nomi{});
}

TEST(CercaNellaGuida, ShowsTheTextAroundTheFirstWordFound) {
    EXPECT_EQ(cercaNellaGuida(guida, "densita").front().brano, "La spinta usa φ e la densità.");
    EXPECT_EQ(cercaNellaGuida(guida, "staffe").front().brano,
              "La scala del diagramma, ala e passo.");
    std::string lungo;
    for (int i = 0; i < 30; ++i) lungo += "perché no ";
    const Guida una{{"Uno"}, {pagina("x", "X", "x", (lungo + "scopo " + lungo).c_str())}};
    const std::string brano = cercaNellaGuida(una, "scopo").front().brano;
    EXPECT_TRUE(brano.starts_with("… ")) << brano;
    EXPECT_TRUE(brano.ends_with(" …")) << brano;
    EXPECT_NE(brano.find(" scopo "), std::string::npos) << brano;
    EXPECT_LT(brano.size(), 160u);
}

TEST(PostiTrovati, AreBytesOfTheTextAsItIs) {
    const std::string testo = "Più φ, più";
    const auto posti = postiTrovati(testo, {"phi", "piu"});
    ASSERT_EQ(posti.size(), 3u);
    EXPECT_EQ(testo.substr(posti[0].first, posti[0].second - posti[0].first), "φ");
    EXPECT_EQ(posti[1], (std::pair<std::size_t, std::size_t>{0, 4}));
    EXPECT_EQ(posti[2].second, testo.size());
    EXPECT_TRUE(postiTrovati(testo, {}).empty());
}

}  // namespace
}  // namespace korven::help
