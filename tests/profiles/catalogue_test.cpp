#include "profiles/catalogue.hpp"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/folders/program_folder.hpp"
#include "support/failing_disk.hpp"
#include "support/user_folder.hpp"

namespace korven::profiles {
namespace {

class CatalogoTest : public ::testing::Test {
 protected:
    CatalogoTest() {
        base::impostaCartellaProgramma(programma.percorso());
        test::metti(programma / "profili.txt", "ferro; Ø 16; diametro=16; EN 10080\n");
    }
    ~CatalogoTest() override { base::impostaCartellaProgramma({}); }

    static Profilo mia(const std::string& nome) {
        Profilo p;
        p.genere = Genere::palancola;
        p.nome = nome;
        p.misure = {{masks::campoSezione(&project::Sezione::palancolaBase), 345}};
        p.fonte = "fornitore, 2024";
        p.proprio = true;
        return p;
    }
    void suo(std::string_view testo) {
        std::filesystem::create_directories(utente.percorso());
        test::metti(fileProfiliUtente(), testo);
    }
    static std::string suo() { return test::contenuto(fileProfiliUtente()); }

    test::CartellaProvvisoria programma;
    test::CartellaUtente utente;
};

TEST_F(CatalogoTest, HoldsTheDeliveredRowsWhereTheUserHasNone) {
    const auto catalogo = leggiCatalogo();
    ASSERT_EQ(catalogo.profili.size(), 1U);
    EXPECT_FALSE(catalogo.profili[0].proprio);
    EXPECT_TRUE(catalogo.guaste.empty());
}

TEST_F(CatalogoTest, KeepsTheUsersRowsInAFileOfTheirOwn) {
    EXPECT_EQ(aggiungiProfilo(mia("una")), "");
    EXPECT_EQ(aggiungiProfilo(mia("altra")), "");
    EXPECT_TRUE(suo().starts_with("# genere; nome;"));
    EXPECT_TRUE(
        suo().ends_with("\npalancola; una; palancolaBase=345; fornitore, 2024\n"
                        "palancola; altra; palancolaBase=345; fornitore, 2024\n"));
    const auto catalogo = leggiCatalogo();
    ASSERT_EQ(catalogo.profili.size(), 3U);
    EXPECT_EQ(catalogo.profili[1], mia("una"));
    EXPECT_TRUE(catalogo.guaste.empty());
}

TEST_F(CatalogoTest, LeavesWhatTheUserWroteAsItIs) {
    const std::string scritto = "# mie\n\nnon è una riga\npalancola; a; palancolaBase=1; f\n# fine";
    suo(scritto);
    EXPECT_EQ(aggiungiProfilo(mia("b")), "");
    EXPECT_EQ(suo(), scritto + "\npalancola; b; palancolaBase=345; fornitore, 2024\n");
    EXPECT_EQ(togliProfilo(mia("b")), "");
    EXPECT_EQ(suo(), scritto + "\n");
    const auto catalogo = leggiCatalogo();
    EXPECT_EQ(catalogo.profili.size(), 2U);
    ASSERT_EQ(catalogo.guaste.size(), 1U);
    EXPECT_EQ(catalogo.guaste[0].riga, 3);
    EXPECT_EQ(catalogo.guaste[0].file, "profili_utente.txt");
}

TEST_F(CatalogoTest, TakesOutTheOneRowThatIsMeant) {
    suo("ferro; x; diametro=16; f\nferro; x; diametro=18; f\nferro; x; diametro=16; f\n");
    Profilo x;
    x.nome = "x";
    x.diametro = 16;
    x.fonte = "f";
    x.proprio = true;
    EXPECT_EQ(togliProfilo(x), "");
    EXPECT_EQ(suo(), "ferro; x; diametro=18; f\nferro; x; diametro=16; f\n");
}

TEST_F(CatalogoTest, MakesNoFileWhereThereIsNothingToTakeOut) {
    EXPECT_EQ(togliProfilo(mia("una")), "");
    EXPECT_FALSE(std::filesystem::exists(fileProfiliUtente()));
}

TEST_F(CatalogoTest, KeepsTheLettersOfAFileThatIsNoUnicode) {
    suo("ferro; citt\xE0; diametro=16; f\n");
    EXPECT_EQ(aggiungiProfilo(mia("più")), "");
    const auto catalogo = leggiCatalogo();
    ASSERT_EQ(catalogo.profili.size(), 3U);
    EXPECT_EQ(catalogo.profili[1].nome, "città");
    EXPECT_EQ(catalogo.profili[2].nome, "più");
}

TEST_F(CatalogoTest, TakesANameOnceForAKind) {
    EXPECT_EQ(aggiungiProfilo(mia("una")), "");
    EXPECT_EQ(aggiungiProfilo(mia("una")), "Nel catalogo c'è già un profilo con questo nome.");
    EXPECT_EQ(leggiCatalogo().profili.size(), 2U);
}

TEST_F(CatalogoTest, TakesNothingThatIsNoRow) {
    EXPECT_EQ(aggiungiProfilo(mia("")), "manca il nome");
    Profilo senzaFonte = mia("una");
    senzaFonte.fonte.clear();
    EXPECT_EQ(aggiungiProfilo(senzaFonte), "manca la fonte");
    EXPECT_EQ(aggiungiProfilo(mia("a;b")), "nome e fonte non possono contenere il punto e virgola");
    EXPECT_EQ(aggiungiProfilo(mia("a\nb")),
              "nome e fonte non possono contenere il punto e virgola");
    EXPECT_FALSE(std::filesystem::exists(fileProfiliUtente()));
}

TEST_F(CatalogoTest, LosesNoRowOnAFullDisk) {
    EXPECT_EQ(aggiungiProfilo(mia("una")), "");
    const std::string prima = suo();
    test::DiscoGuasto disco;
    disco.spazio = 10;
    EXPECT_NE(aggiungiProfilo(mia("altra"), disco), "");
    EXPECT_EQ(suo(), prima);
    EXPECT_NE(togliProfilo(mia("una"), disco), "");
    EXPECT_EQ(suo(), prima);
}

TEST_F(CatalogoTest, TellsAFileThatCantBeRead) {
    std::filesystem::create_directories(fileProfiliUtente());  // a folder of that name
    std::filesystem::remove(programma / "profili.txt");
    const auto catalogo = leggiCatalogo();
    EXPECT_TRUE(catalogo.profili.empty());
    EXPECT_NE(aggiungiProfilo(mia("una")), "");
}

}  // namespace
}  // namespace korven::profiles
