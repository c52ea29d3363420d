#include <gtest/gtest.h>

#include <map>
#include <set>

#include "base/files.hpp"
#include "verification/check.hpp"
#include "verification/collection.hpp"
#include "verification/table.hpp"
#include "verification/words.hpp"

// The cases that the program brings along.

namespace korven::verification {
namespace {

const std::vector<Gruppo>& gruppi() {
    static const auto tutti = leggiCasi(KORVEN_CASES, KORVEN_EXAMPLES);
    return tutti;
}

TEST(CasiConsegnati, AreAllMetButTheKnownOnes) {
    const EsitoVerifica esito = esegui(gruppi());
    for (const auto& gruppo : esito.gruppi)
        for (const auto& caso : gruppo.casi)
            for (const auto& c : caso.confronti)
                EXPECT_TRUE(c.buono || caso.verdetto == Verdetto::noto)
                    << caso.caso->nome << ": " << parole(*caso.caso, *c.attesa) << ", "
                    << parole(c.metodo) << ": " << ottenuto(c);
    EXPECT_EQ(esito.conta(Verdetto::fallito), 0);
    EXPECT_GE(esito.conta(Verdetto::buono), 100);
}

TEST(CasiConsegnati, SayWhyTheyAreMetSoClosely) {
    std::map<std::string, int> nomi;
    for (const Gruppo& gruppo : gruppi()) {
        EXPECT_FALSE(gruppo.descrizione.empty() || gruppo.teoria.empty()) << gruppo.nome;
        for (const Caso& caso : gruppo.casi) {
            EXPECT_EQ(++nomi[caso.nome], 1) << caso.nome;
            for (const Attesa& a : caso.attese)
                EXPECT_TRUE(!a.parola.empty() || !caso.tolleranza.empty()) << caso.nome;
        }
    }
}

// A known difference that is met is none any more.
TEST(CasiConsegnati, KnowNoDifferenceThatIsNone) {
    const EsitoVerifica esito = esegui(gruppi());
    for (const auto& gruppo : esito.gruppi)
        for (const auto& caso : gruppo.casi) EXPECT_FALSE(caso.rientrato()) << caso.caso->nome;
}

TEST(CasiConsegnati, AskEveryQuantityThatACaseMayAsk) {
    std::set<std::string_view> chieste;
    for (const Gruppo& gruppo : gruppi())
        for (const Caso& caso : gruppo.casi)
            for (const Attesa& a : caso.attese) chieste.insert(a.grandezza->nome);
    for (const Grandezza& g : grandezze()) EXPECT_TRUE(chieste.contains(g.nome)) << g.nome;
}

// Their texts are no literals of the program, so that the test of those does not find them.
TEST(CasiConsegnati, AreToldInEveryLanguage) {
    const std::string testi = base::leggiFile(KORVEN_TEXTS);
    const auto noto = [&](const std::string& testo) {
        EXPECT_NE(testi.find("\nit: " + testo + '\n'), std::string::npos) << testo;
    };
    for (const Gruppo& gruppo : gruppi()) {
        noto(gruppo.titolo);
        noto(gruppo.descrizione);
        for (const Caso& caso : gruppo.casi) {
            noto(caso.titolo);
            if (!caso.tolleranza.empty()) noto(caso.tolleranza);
            if (!caso.noto.empty()) noto(caso.noto);
        }
    }
}

TEST(ProspettoGruppo, HasARowForEachMethodAndTheReasonsOfKnownMisses) {
    const EsitoVerifica esito = esegui(gruppi());
    const auto prospetto = verification::prospetto(esito.gruppi.back());
    EXPECT_EQ(prospetto.titolo, "Differenze note");
    std::size_t righe = 0;
    for (const auto& caso : esito.gruppi.back().casi) righe += caso.confronti.size();
    EXPECT_EQ(prospetto.righe.size(), righe);
    EXPECT_EQ(prospetto.note.size(), esito.gruppi.back().casi.size());
    std::size_t r = 0;
    for (const auto& caso : esito.gruppi.back().casi)
        for (const auto& c : caso.confronti)
            EXPECT_EQ(prospetto.righe[r++].back().testo, c.buono ? "buono" : "noto");
}

}  // namespace
}  // namespace korven::verification
