#include "base/similar_name.hpp"

#include <gtest/gtest.h>

#include <vector>

namespace korven::base {
namespace {

const std::vector<std::string> nomi = {"spostamento_massimo_m", "momento_massimo_kNm", "tiro_1_kN",
                                       "tiro_2_kN", "uso_bielle"};

TEST(NomeVicino, IsTheOneThatWasMeant) {
    EXPECT_EQ(nomeVicino("spostamento_massimo_mm", nomi), "spostamento_massimo_m");  // put in
    EXPECT_EQ(nomeVicino("momento_masimo_kN", nomi), "momento_massimo_kNm");         // left out
    EXPECT_EQ(nomeVicino("uso_biella", nomi), "uso_bielle");                         // replaced
    EXPECT_EQ(nomeVicino("Momento_Massimo_KNM", nomi), "momento_massimo_kNm");
    EXPECT_EQ(nomeVicino("spostamento", nomi), "spostamento_massimo_m");  // its beginning
}

TEST(NomeVicino, IsNoneWhereNobodyCouldTell) {
    EXPECT_FALSE(nomeVicino("tiro_3_kN", nomi));  // as near to the one as to the other
    EXPECT_FALSE(nomeVicino("tiro", nomi));
    EXPECT_FALSE(nomeVicino("nope", nomi));
    EXPECT_FALSE(nomeVicino("", nomi));
    EXPECT_FALSE(nomeVicino("spostamento", {}));
}

// A file of another kind is one name without end; to compare it letter by letter would take
// minutes.
TEST(NomeVicino, IsNotSoughtForWhatIsMuchLongerThanAllNames) {
    const std::vector<std::string> molti(1000, std::string(1000, 'a'));
    EXPECT_FALSE(nomeVicino(std::string(1000000, 'a'), molti));
}

}  // namespace
}  // namespace korven::base
