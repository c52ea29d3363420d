#include "structure/section_type.hpp"

#include <gtest/gtest.h>

#include <utility>

namespace korven::structure {
namespace {

using project::Sezione;

TEST(TipoSezione, IsNoneWithoutATrueFlag) { EXPECT_EQ(tipoSezione({}), TipoSezione::nessuno); }

TEST(TipoSezione, FollowsItsFlag) {
    const std::pair<bool Sezione::*, TipoSezione> casi[] = {
        {&Sezione::tipoDiaframma, TipoSezione::diaframma},
        {&Sezione::tipoPali, TipoSezione::pali},
        {&Sezione::tipoPalancola, TipoSezione::palancola},
        {&Sezione::tipoPaliArmati, TipoSezione::paliArmati}};
    for (auto [flag, tipo] : casi) {
        Sezione s;
        s.*flag = true;
        EXPECT_EQ(tipoSezione(s), tipo);
    }
}

TEST(TipoSezione, FirstOfSeveralTrueFlagsDecides) {
    Sezione s;
    s.tipoDiaframma = s.tipoPali = s.tipoPalancola = s.tipoPaliArmati = true;
    EXPECT_EQ(tipoSezione(s), TipoSezione::diaframma);
    s.tipoDiaframma = false;
    EXPECT_EQ(tipoSezione(s), TipoSezione::pali);
    s.tipoPali = false;
    EXPECT_EQ(tipoSezione(s), TipoSezione::palancola);
}

}  // namespace
}  // namespace korven::structure
