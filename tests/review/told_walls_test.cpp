// Walls that a run passes or refuses without a word of what is wrong with them: what is told of
// each before it runs.

#include <gtest/gtest.h>

#include <map>

#include "review/bench.hpp"
#include "support/wall_files.hpp"

namespace korven::review {
namespace {

using Codici = std::vector<std::string>;

Codici codici(const std::string& nome, Peso peso) {
    Codici trovati;
    for (const auto& o :
         osservazioni(test::leggiMuro(std::string(KORVEN_WALLS) + "/" + nome + ".kvd")))
        if (o.peso == peso) trovati.emplace_back(o.codice);
    return trovati;
}

TEST(MuriScritti, NameTheirFaultAsADanger) {
    const std::pair<const char*, const char*> colpe[] = {
        {"acqua_a_zero", "acqua-a-zero"},
        {"acqua_fase_a_zero", "acqua-piu-alta-davanti"},
        {"tensioni_totali_sabbia", "tensioni-totali-con-attrito"},
    };
    for (const auto& [nome, colpa] : colpe)
        EXPECT_EQ(codici(nome, Peso::pericolo), Codici{colpa}) << nome;
}

TEST(MuriScritti, AreToldLittleWhereTheDataAreSound) {
    for (const char* nome : {"acqua_1000", "meccanismo", "quasi_meccanismo", "puntone_rigidissimo"})
        for (const auto peso : {Peso::impedisce, Peso::pericolo, Peso::daVedere})
            EXPECT_EQ(codici(nome, peso), Codici{}) << nome;
    // Water stands in front of a quay wall, and by Bowles the typed moduli are not read.
    EXPECT_EQ(codici("banchina", Peso::pericolo), Codici{});
    EXPECT_EQ(codici("banchina", Peso::daVedere),
              (Codici{"acqua-sopra-lo-scavo", "valore-senza-effetto"}));
}

// Random data that stand: nobody would draw such levels and stresses.
TEST(MuriScritti, NameTheDangersOfRandomData) {
    const std::map<const char*, Codici> attesi = {
        {"oscilla_1", {"tensioni-totali-con-attrito"}},
        {"oscilla_2", {"angolo-minore-del-pendio", "acqua-piu-alta-davanti"}},
        {"oscilla_3", {"acqua-piu-alta-davanti"}},
        {"singolare_1", {"acqua-piu-alta-davanti"}},
        {"singolare_2", {"strato-in-disordine", "acqua-a-zero", "tensioni-totali-con-attrito"}},
        {"singolare_3", {"acqua-piu-alta-davanti"}},
    };
    for (const auto& [nome, colpe] : attesi) EXPECT_EQ(codici(nome, Peso::pericolo), colpe) << nome;
}

}  // namespace
}  // namespace korven::review
