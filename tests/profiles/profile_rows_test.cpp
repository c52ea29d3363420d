#include "profiles/profile_rows.hpp"

#include <gtest/gtest.h>

#include <random>
#include <set>

#include "support/temporary_folder.hpp"

namespace korven::profiles {
namespace {

using project::Sezione;

Catalogo letto(std::string_view testo) {
    Catalogo catalogo;
    leggiProfili(testo, "prova.txt", true, catalogo);
    return catalogo;
}

constexpr std::string_view buone =
    "# un commento\n"
    "\n"
    "ferro; Ø 16; diametro=16; EN 10080\r\n"
    "  tubo ;273 x 6.3; diametro=273   spessore=6.3 ; tavola 3, 2024 \n"
    "palancola; la mia; palancolaBase=345 palancolaLargAla=120.5 fyk=355; fornitore";

TEST(LeggiProfili, TakesARowALineWhateverItsBlanks) {
    const auto catalogo = letto(buone);
    EXPECT_TRUE(catalogo.guaste.empty());
    ASSERT_EQ(catalogo.profili.size(), 3U);
    EXPECT_EQ(catalogo.profili[0].nome, "Ø 16");
    EXPECT_EQ(catalogo.profili[0].diametro, 16);
    EXPECT_EQ(catalogo.profili[1].genere, Genere::tubo);
    EXPECT_EQ(catalogo.profili[1].spessore, 6.3);
    EXPECT_EQ(catalogo.profili[1].fonte, "tavola 3, 2024");
    const Misure attese{{masks::campoSezione(&Sezione::palancolaBase), 345},
                        {masks::campoSezione(&Sezione::palancolaLargAla), 120.5},
                        {masks::campoSezione(&Sezione::fyk), 355}};
    EXPECT_EQ(catalogo.profili[2].misure, attese);
    EXPECT_TRUE(catalogo.profili[2].proprio);
}

TEST(LeggiProfili, TellsEachBrokenLineAndTakesTheOthers) {
    const std::pair<const char*, const char*> casi[] = {
        {"ferro; Ø 16; diametro=16", "una riga ha quattro parti: genere; nome; misure; fonte"},
        {"trave; x; diametro=16; f", "«trave» non è un genere di profilo"},
        {"ferro; ; diametro=16; f", "manca il nome"},
        {"ferro; x; diametro=16;", "manca la fonte"},
        {"ferro; x; diametro=16; f; altro",
         "nome e fonte non possono contenere il punto e virgola"},
        {"ferro; x; ; f", "manca il diametro"},
        {"ferro; x; 16; f", "«16»: una misura si scrive nome=numero"},
        {"ferro; x; spessore=2; f", "«spessore» non è una misura di questo genere"},
        {"ferro; x; diametro=16,5; f",
         "«16,5» non è un numero maggiore di 0 (il segno decimale è il punto)"},
        {"ferro; x; diametro=0; f",
         "«0» non è un numero maggiore di 0 (il segno decimale è il punto)"},
        {"ferro; x; diametro=1e999; f",
         "«1e999» non è un numero maggiore di 0 (il segno decimale è il punto)"},
        {"ferro; x; diametro=16 diametro=18; f", "«diametro» è scritta due volte"},
        {"tubo; x; diametro=100; f", "mancano diametro e spessore"},
        {"tubo; x; diametro=100 spessore=50; f", "lo spessore non sta nel diametro"},
        {"palancola; x; ; f", "mancano le misure"},
        {"palancola; x; armDiamPalo=60; f", "«armDiamPalo» non è una misura di questo genere"},
        {"palancola; x; fck=30; f", "«fck» non è una misura di questo genere"},
    };
    for (const auto& [riga, motivo] : casi) {
        const auto catalogo =
            letto("ferro; a; diametro=8; f\n" + std::string(riga) + "\nferro; b; diametro=10; f\n");
        EXPECT_EQ(catalogo.profili.size(), 2U) << riga;
        ASSERT_EQ(catalogo.guaste.size(), 1U) << riga;
        EXPECT_EQ(catalogo.guaste[0].riga, 2);
        EXPECT_EQ(catalogo.guaste[0].file, "prova.txt");
        EXPECT_EQ(catalogo.guaste[0].motivo, motivo);
    }
}

TEST(LeggiProfili, TakesTheTextOfAnEditorThatKnowsNoUnicode) {
    const auto catalogo = letto("ferro; \xD8 16; diametro=16; citt\xE0\n");
    ASSERT_EQ(catalogo.profili.size(), 1U);
    EXPECT_EQ(catalogo.profili[0].nome, "Ø 16");
    EXPECT_EQ(catalogo.profili[0].fonte, "città");
}

TEST(LeggiProfili, StopsAtAFileBeyondAllUse) {
    std::string testo;
    for (std::size_t i = 0; i < massimoProfili + 5; ++i) testo += "ferro; a; diametro=8; f\n";
    const auto catalogo = letto(testo);
    EXPECT_EQ(catalogo.profili.size(), massimoProfili);
    EXPECT_EQ(catalogo.guaste.size(), 1U);
}

// Bytes changed, taken out, doubled: each line is a row or is told, every row can be written, and
// what is written is the row again.
TEST(LeggiProfili, TakesOrTellsEveryLineOfAnyBytes) {
    std::mt19937 caso(12);
    constexpr std::string_view pezzi = ";=#\n\r\t .-e1\xC3\x98\xFF";
    for (int i = 0; i < 2000; ++i) {
        std::string testo(buone);
        for (int k = 0; k < 1 + i % 7; ++k) {
            const std::size_t dove = caso() % testo.size();
            switch (caso() % 3) {
                case 0:
                    testo[dove] = pezzi[caso() % pezzi.size()];
                    break;
                case 1:
                    testo.erase(dove, 1 + caso() % 4);
                    break;
                default:
                    testo.insert(dove, testo.substr(dove / 2, 1 + caso() % 9));
            }
        }
        const auto catalogo = letto(testo);
        EXPECT_LE(catalogo.profili.size() + catalogo.guaste.size(), righeIntere(testo).size());
        for (const Profilo& p : catalogo.profili) {
            ASSERT_EQ(difetto(p), "") << testo;
            const auto ancora = letto(rigaProfilo(p));
            ASSERT_EQ(ancora.profili.size(), 1U) << rigaProfilo(p);
            EXPECT_EQ(ancora.profili[0], p);
        }
        for (const auto& guasta : catalogo.guaste) EXPECT_FALSE(guasta.motivo.empty());
    }
}

TEST(RigaProfilo, IsTheRowThatTheReaderTakes) {
    const auto catalogo = letto(buone);
    EXPECT_EQ(rigaProfilo(catalogo.profili[0]), "ferro; Ø 16; diametro=16; EN 10080");
    EXPECT_EQ(rigaProfilo(catalogo.profili[2]),
              "palancola; la mia; palancolaBase=345 palancolaLargAla=120.5 fyk=355; fornitore");
}

// Geometry of norms alone: each row has its source, no name twice, bars and tubes and nothing else.
TEST(ProfiliConsegnati, AreBarsAndTubesEachWithItsSource) {
    const auto catalogo = letto(test::contenuto(KORVEN_DATA_FOLDER "/profili.txt"));
    EXPECT_TRUE(catalogo.guaste.empty());
    std::set<std::pair<Genere, std::string>> nomi;
    std::set<double> ferri;
    for (const Profilo& p : catalogo.profili) {
        EXPECT_TRUE(nomi.emplace(p.genere, p.nome).second) << p.nome;
        EXPECT_TRUE(p.genere == Genere::ferro || p.genere == Genere::tubo) << p.nome;
        EXPECT_TRUE(p.fonte.starts_with("EN 10")) << p.nome;
        if (p.genere == Genere::ferro) ferri.insert(p.diametro);
        if (p.genere == Genere::tubo) {
            EXPECT_GE(p.diametro, 10 * p.spessore) << p.nome;
        }
    }
    EXPECT_EQ(ferri, (std::set<double>{6, 8, 10, 12, 14, 16, 20, 25, 28, 32, 40}));
    EXPECT_GT(nomi.size(), 100U);
}

}  // namespace
}  // namespace korven::profiles
