#include "help/pages.hpp"

#include <gtest/gtest.h>

#include "base/file_error.hpp"
#include "support/temporary_folder.hpp"

namespace korven::help {
namespace {

const std::string piccola =
    "KORVEN 32 HLP 1\r\n"
    "@capitolo Primo\r\n"
    "@pagina 0 inizio\r\nInizio\r\nindice\r\n<p>Uno</p>\r\n<p>Due</p>\r\n"
    "@pagina 5 strati\r\nPerch\xE9\r\n\r\n<h3><a name=\"campo2\"></a>Prof.</h3>\r\n"
    "@capitolo Secondo\r\n"
    "@pagina 28 visore\r\nVisore\r\nzoom, stampa\r\n<p>Tre</p>\r\n";

// Line and expectation of the error that a broken file raises.
std::pair<long, std::string> guasto(const std::string& contenuto) {
    try {
        static_cast<void>(leggiGuida("m.hlp", contenuto));
    } catch (const base::ErroreFile& errore) {
        EXPECT_EQ(errore.percorso(), "m.hlp");
        return {errore.riga(), errore.atteso()};
    }
    ADD_FAILURE() << "taken for whole: " << contenuto;
    return {};
}

std::string con(std::string da, const std::string& a) {
    std::string testo = piccola;
    const auto i = testo.find(da);
    EXPECT_NE(i, testo.npos) << da;
    return testo.replace(i, da.size(), a);
}

TEST(FileGuida, HoldsChaptersAndTheirPagesInOrder) {
    const Guida guida = leggiGuida("m.hlp", piccola);
    EXPECT_EQ(guida.capitoli, (std::vector<std::string>{"Primo", "Secondo"}));
    ASSERT_EQ(guida.pagine.size(), 3u);
    EXPECT_EQ(guida.pagine[0].nome, "inizio");
    EXPECT_EQ(guida.pagine[0].html, "<p>Uno</p>\n<p>Due</p>\n");
    EXPECT_EQ(guida.pagine[1].voce, 5);
    EXPECT_EQ(guida.pagine[1].titolo, "Perché");
    EXPECT_EQ(guida.pagine[1].parole, "");
    EXPECT_EQ(guida.pagine[2].parole, "zoom, stampa");
    EXPECT_EQ(guida.pagine[1].capitolo, 0u);
    EXPECT_EQ(guida.pagine[2].capitolo, 1u);
}

TEST(FileGuida, FindsThePageOfAContextNumberAndOfAName) {
    const Guida guida = leggiGuida("m.hlp", piccola);
    ASSERT_NE(paginaDelContesto(guida, 28), nullptr);
    EXPECT_EQ(paginaDelContesto(guida, 28)->nome, "visore");
    EXPECT_EQ(paginaDelContesto(guida, 6), nullptr);
    EXPECT_EQ(paginaDelContesto(guida, 0), nullptr);
    EXPECT_EQ(paginaDiNome(guida, "strati"), &guida.pagine[1]);
    EXPECT_EQ(paginaDiNome(guida, "stra"), nullptr);
}

TEST(FileGuida, KnowsThePlacesOfAPage) {
    const Guida guida = leggiGuida("m.hlp", piccola);
    EXPECT_TRUE(haAncora(guida.pagine[1], "campo2"));
    EXPECT_FALSE(haAncora(guida.pagine[1], "campo"));
    EXPECT_FALSE(haAncora(guida.pagine[0], "campo2"));
    EXPECT_FALSE(haAncora(guida.pagine[1], ""));
}

TEST(FileGuida, SaysWhereItIsBroken) {
    using Caso = std::pair<long, std::string>;
    const std::string segno = "attesa una riga @capitolo o @pagina";
    const std::string voce = "attesi la voce di aiuto e il nome di una pagina";
    const std::string usato = "attesi una voce e un nome non ancora usati";
    const std::string titolo = "atteso il titolo della pagina";
    const std::string testo = "atteso il testo della pagina";
    EXPECT_EQ(guasto("x\r\n").first, 1);
    EXPECT_NE(guasto("x\r\n").second.find("KORVEN 32 HLP 1"), std::string::npos);
    EXPECT_EQ(guasto(con("@capitolo Primo\r\n", "")), (Caso{2, segno}));
    EXPECT_EQ(guasto(con("@capitolo Primo", "capitolo Primo")), (Caso{2, segno}));
    EXPECT_EQ(guasto(con("@pagina 5 ", "@pagina x ")), (Caso{8, voce}));
    EXPECT_EQ(guasto(con("@pagina 5 ", "@pagina 201 ")), (Caso{8, voce}));
    EXPECT_EQ(guasto(con("@pagina 5 strati", "@pagina 5 ")), (Caso{8, voce}));
    EXPECT_EQ(guasto(con("@pagina 28 ", "@pagina 5 ")), (Caso{13, usato}));
    EXPECT_EQ(guasto(con("28 visore", "28 strati")), (Caso{13, usato}));
    EXPECT_EQ(guasto(con("Inizio\r\n", "\r\n")), (Caso{4, titolo}));
    EXPECT_EQ(guasto(con("<p>Tre</p>\r\n", "")), (Caso{15, testo}));
    EXPECT_EQ(guasto(con("<p>Uno</p>\r\n<p>Due</p>\r\n", "")), (Caso{6, testo}));
    EXPECT_EQ(guasto(con("@pagina 0 inizio", "@voce")), (Caso{3, segno}));
}

TEST(FileGuida, MayBeCutNowhereWithinItsFirstPage) {
    const auto intera = piccola.find("<p>Uno");
    for (std::size_t i = 0; i < intera; ++i)
        EXPECT_THROW(static_cast<void>(leggiGuida("m.hlp", piccola.substr(0, i))), base::ErroreFile)
            << i;
}

TEST(FileGuida, ThatIsMissingIsTold) {
    EXPECT_THROW(static_cast<void>(leggiGuida("/manca/module06ita.hlp")), base::ErroreFile);
}

TEST(Guida, IsReadFromItsFileAsFromItsBytes) {
    const test::CartellaProvvisoria cartella;
    test::metti(cartella / "m.hlp", piccola);
    const Guida letta = leggiGuida(cartella / "m.hlp"), attesa = leggiGuida("m.hlp", piccola);
    ASSERT_EQ(letta.pagine.size(), attesa.pagine.size());
    for (std::size_t i = 0; i < letta.pagine.size(); ++i) {
        EXPECT_EQ(letta.pagine[i].titolo, attesa.pagine[i].titolo);
        EXPECT_EQ(letta.pagine[i].html, attesa.pagine[i].html);
    }
    EXPECT_THROW(std::ignore = leggiGuida(cartella / "manca.hlp"), base::ErroreFile);
}

}  // namespace
}  // namespace korven::help
