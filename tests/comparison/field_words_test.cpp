#include "comparison/field_words.hpp"

#include <gtest/gtest.h>

#include "comparison/tables.hpp"
#include "comparison/walls.hpp"

namespace korven::comparison {
namespace {

using korven::test::progettoSemplice;
using project::DatiProgetto;

std::vector<std::string> nomi(const DatiProgetto& prima, const DatiProgetto& dopo) {
    std::vector<std::string> tutti;
    for (const auto& riga : prospettoCampi(test::confronto(prima, dopo)).righe)
        tutti.push_back(riga[0].testo);
    return tutti;
}

TEST(ParoleCampo, NameALayerByTheFirstLineOfItsDescription) {
    DatiProgetto prima = progettoSemplice();
    prima.descrStrato[1] = "105 Argilla molle.|Grigia.";
    DatiProgetto dopo = prima;
    dopo.phiStrato[1] += 1;
    EXPECT_EQ(nomi(prima, dopo)[0], "angolo di attrito dello strato 1 (Argilla molle) [°]");
    for (DatiProgetto* dati : {&prima, &dopo})
        dati->descrStrato[1] = "Argilla limosa debolmente sabbiosa grigio azzurra";
    EXPECT_EQ(nomi(prima, dopo)[0],
              "angolo di attrito dello strato 1 (Argilla limosa debolmente…) [°]");
    for (DatiProgetto* dati : {&prima, &dopo}) dati->descrStrato[1] = "105";  // hatches alone
    EXPECT_EQ(nomi(prima, dopo)[0], "angolo di attrito dello strato 1 [°]");
}

TEST(ParoleCampo, NameNoLayerThatHasTwoNamesAndTellBoth) {
    DatiProgetto prima = progettoSemplice();
    prima.descrStrato[1] = "Argilla";
    DatiProgetto dopo = prima;
    dopo.phiStrato[1] += 1;
    dopo.descrStrato[1] = "102 Sabbia";
    const Confronto c = test::confronto(prima, dopo);
    const auto righe = prospettoCampi(c).righe;
    EXPECT_EQ(righe[0][0].testo, "angolo di attrito dello strato 1 [°]");
    EXPECT_EQ(righe[1][1].testo, "Argilla");
    EXPECT_TRUE(righe[1][2].testo.starts_with("Sabbia\n[campitura: ")) << righe[1][2].testo;
}

TEST(PerRighe, StandsWhatIsOfOneRowTogether) {
    DatiProgetto prima = progettoSemplice();
    prima.nStrati = 2;
    prima.profStrato[2] = prima.profStrato[1] + 10;
    prima.gammaN[2] = prima.gammaSat[2] = 2;
    DatiProgetto dopo = prima;
    for (int i = 1; i <= 2; ++i) {
        prima.descrStrato[i] = dopo.descrStrato[i] = "";
        dopo.phiStrato[i] += 1;
        dopo.coesione[i] += 1;
    }
    dopo.lunghezzaParatia += 1;
    EXPECT_EQ(nomi(prima, dopo),
              (std::vector<std::string>{
                  "angolo di attrito dello strato 1 [°]", "coesione dello strato 1 [kN/m²]",
                  "angolo di attrito dello strato 2 [°]", "coesione dello strato 2 [kN/m²]",
                  "lunghezza della paratia [m]"}));
}

}  // namespace
}  // namespace korven::comparison
