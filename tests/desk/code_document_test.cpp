#include "desk/code_document.hpp"

#include <gtest/gtest.h>

#include "dossier/identity.hpp"
#include "support/wall_builder.hpp"
#include "support/wall_files.hpp"

namespace korven::desk {
namespace {

using factors::Combinazioni;
using factors::Fattori;

factors::Norma norma(const std::vector<Fattori>& fattori) {
    factors::Norma n{"n", "N 2026", "f", {}};
    for (const Fattori& f : fattori)
        n.combinazioni.push_back({"C" + std::to_string(n.combinazioni.size() + 1), "fonte", f,
                                  std::vector<std::string>(factors::vociFattori().size(), "capo")});
    return n;
}

Combinazioni calcolate(const std::string& esempio, const std::vector<Fattori>& fattori) {
    return factors::combinazioni(test::leggiMuro(KORVEN_EXAMPLES "/" + esempio), 50, norma(fattori),
                                 {});
}

std::vector<std::string> titoli(const document::Documento& d) {
    std::vector<std::string> trovati;
    for (const auto& blocco : d.blocchi)
        if (const auto* t = std::get_if<document::Titolo>(&blocco)) trovati.push_back(t->testo);
    return trovati;
}

TEST(FrasiNorma, TellTheVerdictAndTheLargestUtilization) {
    const auto c = calcolate("diaframma_due_ordini.kvd", {{}, {.effetti = 1.2}});
    ASSERT_TRUE(c.verificate());
    double maggiore = 0;
    for (const auto& v : c.esiti[1].verifiche) maggiore = std::max(maggiore, v.uso().value());
    const auto dette = frasi(c);
    ASSERT_EQ(dette.size(), 3U);
    EXPECT_EQ(dette[0],
              "Tutte le combinazioni sono in equilibrio e tutte le verifiche sono soddisfatte.");
    char uso[16];
    std::snprintf(uso, sizeof uso, "%.1f", 100 * maggiore);
    EXPECT_NE(dette[1].find("è " + std::string(uso) + " %: "), std::string::npos) << dette[1];
    EXPECT_TRUE(dette[1].ends_with("combinazione C2.")) << dette[1];
    EXPECT_EQ(
        dette[2],
        "Sovraccarico a monte: variabile; sul fondo dello scavo: variabile; carichi in testa: "
        "variabile.");
}

TEST(FrasiNorma, TellOfChecksThatAreNotMetAndOfWallsThatFall) {
    EXPECT_EQ(frasi(calcolate("diaframma_due_ordini.kvd", {{}, {.effetti = 9}}))[0],
              "Combinazioni con verifiche NON soddisfatte: C2.");
    const auto cade = frasi(calcolate("palancola_mensola.kvd", {{.attrito = 5, .coesione = 5}}));
    EXPECT_EQ(cade[0], "Combinazioni senza equilibrio: C1.");
    EXPECT_TRUE(cade[1].starts_with("C1: ")) << cade[1];
}

TEST(FrasiNorma, CallNothingCheckedWhereThereIsNoCheck) {
    const auto senza = factors::combinazioni(test::muro().dati(), 20, norma({{}}), {});
    EXPECT_EQ(frasi(senza)[0],
              "Tutte le combinazioni sono in equilibrio; non c'è nessuna verifica.");
}

TEST(FontiNorma, NameEachFactorOfEachCombination) {
    const auto p = prospettoFonti(norma({{}, {.attrito = 1.25}}));
    const std::size_t quante = factors::vociFattori().size();
    ASSERT_EQ(p.righe.size(), 2 * quante);
    EXPECT_EQ(p.colonne.size(), 4U);
    EXPECT_EQ(p.righe[0][0].testo, "C1");
    EXPECT_EQ(p.righe[quante][0].testo, "C2");
    EXPECT_EQ(p.righe[quante][2].testo, "1.25");
    EXPECT_EQ(p.righe[quante][3].testo, "capo");
}

TEST(DocumentoNorma, HasTheTablesThatHaveRowsWithFileAndImprint) {
    const auto dati = test::leggiMuro(KORVEN_EXAMPLES "/diaframma_due_ordini.kvd");
    const auto c = calcolate("diaframma_due_ordini.kvd", {{}});
    const auto d = documento(c, {"/lavori/muro.kvd", dati, "2026-01-31"});
    EXPECT_EQ(titoli(d),
              (std::vector<std::string>{
                  "Combinazioni della norma N 2026", "Combinazioni e inviluppo", "Verifiche",
                  "Tiranti e puntoni", "Coefficienti applicati", "Coefficienti e fonti", "Note"}));
    EXPECT_EQ(d.data, "2026-01-31");
    EXPECT_EQ(d.testata[1], "muro.kvd");
    const auto* prima = std::get_if<document::Paragrafo>(&d.blocchi[1]);
    ASSERT_NE(prima, nullptr);
    EXPECT_EQ(prima->testo,
              "muro.kvd (SHA-256 " + std::string(dossier::inBreve(dossier::impronta(dati))) + ")");
    const auto nudo = documento(factors::combinazioni(test::muro().dati(), 20, norma({{}}), {}),
                                {"", test::muro().dati(), ""});
    EXPECT_EQ(titoli(nudo).size(), 5U) << "neither checks nor anchors";
}

TEST(CartellaNorma, HasASheetForEachTableWithANameThatATabTakes) {
    const auto dati = test::leggiMuro(KORVEN_EXAMPLES "/diaframma_due_ordini.kvd");
    const auto libro = cartella(calcolate("diaframma_due_ordini.kvd", {{}}),
                                {"/lavori/muro.kvd", dati, "2026-01-31"});
    ASSERT_EQ(libro.fogli.size(), 5U);
    for (const auto& foglio : libro.fogli) {
        EXPECT_LE(foglio.prospetto.titolo.size(), 31U);
        EXPECT_EQ(foglio.prospetto.titolo.find_first_of("\\/?*[]:"), std::string::npos);
        EXPECT_EQ(foglio.fonte, "Combinazioni della norma N 2026");
    }
    EXPECT_GT(libro.fogli[0].prospetto.note.size(), 3U);
    EXPECT_EQ(libro.data, "2026-01-31");
}

}  // namespace
}  // namespace korven::desk
