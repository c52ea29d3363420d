#include "studies/plan/fault_words.hpp"

#include <gtest/gtest.h>

#include "studies/plan/plan_file.hpp"
#include "studies/plan/typed_grid.hpp"
#include "studies/plan/typed_samples.hpp"
#include "support/wall_builder.hpp"

namespace korven::studies {
namespace {

const project::DatiProgetto& dati() {
    static const project::DatiProgetto sue = test::muro().lungo(10).fase({.scavo = 3}).dati();
    return sue;
}

std::string asse(const char* testo) {
    const auto letto = leggiAsse(dati(), testo);
    const auto* difetto = std::get_if<DifettoPiano>(&letto);
    return difetto == nullptr ? "" : parole(*difetto);
}

std::string legge(const char* testo) {
    const auto letto = leggiLegge(dati(), testo);
    const auto* difetto = std::get_if<DifettoPiano>(&letto);
    return difetto == nullptr ? "" : parole(*difetto);
}

TEST(ParoleDifettoPiano, TellThePlaceInAnOption) {
    EXPECT_EQ(asse("lunghezzaParatia=8:12:0.5"), "");
    EXPECT_EQ(asse("lunghezzaParatia=8:12:0"),
              "lunghezzaParatia=8:12:0, carattere 23: \"0\": il passo è 0");
    EXPECT_EQ(asse("lunghezzaParatia=8:12,5:1"),
              "lunghezzaParatia=8:12,5:1, carattere 20: \"12,5\": il segno decimale è il punto: "
              "12.5");
    EXPECT_EQ(legge("phiStrato[1]=normale(32,0)"),
              "phiStrato[1]=normale(32,0), carattere 14: \"normale(32,0)\": lo scarto quadratico "
              "medio deve essere maggiore di 0");
}

TEST(ParoleDifettoPiano, TellLineAndColumnOfAFile) {
    const auto letto = leggiPiano(dati(), "phiStrato[1],lunghezzaParatia\n30,12\n31,tanto\n");
    ASSERT_EQ(letto.difetti.size(), 1u);
    EXPECT_EQ(parole(letto.difetti[0]),
              "riga 3, colonna 2: lunghezzaParatia [m] = tanto: non è un numero");
}

TEST(ParoleDifettoPiano, AreThoseOfARefusedFieldOrValue) {
    const std::string detto = asse("phiStrato[1]=50:70:5");
    EXPECT_NE(detto.find("60"), std::string::npos) << detto;
    EXPECT_NE(asse("phi[1]=50:70:5").find("nessun campo si chiama"), std::string::npos);
}

// No reason is without words, but those that have them already.
TEST(ParoleDifettoPiano, AreThereForEveryReason) {
    for (int m = 0; m <= static_cast<int>(MotivoPiano::senzaRighe); ++m) {
        const auto motivo = static_cast<MotivoPiano>(m);
        if (motivo == MotivoPiano::campo || motivo == MotivoPiano::csv ||
            motivo == MotivoPiano::mediaFuori)
            continue;  // said in the words of another
        EXPECT_NE(parole({.motivo = motivo}), "") << m;
    }
}

}  // namespace
}  // namespace korven::studies
