#include "help/help_places.hpp"

#include <gtest/gtest.h>

#include "commands/menu_tree.hpp"
#include "help/help_contexts.hpp"

namespace korven::commands {
namespace {

TEST(VoceForma, IsThatOfTheMenuItemWhereOneOpensTheForm) {
    EXPECT_EQ(voceForma("Editacfg"), voce(Comando::configura).aiuto);
    EXPECT_EQ(voceForma("DefinEJ"), voce(Comando::editRigidezza).aiuto);
    EXPECT_EQ(voceForma("Form1"), voce(Comando::stampaVideo).aiuto);
    EXPECT_EQ(voceForma("apri"), voce(Comando::fileApri).aiuto);
    EXPECT_EQ(voceForma("salva"), voce(Comando::fileSalva).aiuto);
}

TEST(VoceForma, IsOneOfItsOwnForOtherForms) {
    EXPECT_EQ(voceForma("GRAFICA"), voceGrafica);
    EXPECT_EQ(voceForma("TempCalc"), voceTempCalc);
    for (const int propria : {voceGrafica, voceConfStampa, voceTempCalc, voceGuida, voceSelezling})
        for (const auto& v : albero()) EXPECT_NE(v.aiuto, propria) << v.nome;
    // The item opens that very box.
    for (const auto& v : albero())
        EXPECT_EQ(v.aiuto == voceInformazioni, v.comando == Comando::about) << v.nome;
}

TEST(VoceForma, IsZeroForAnyOtherWindow) {
    EXPECT_EQ(voceForma("menu1"), 0);
    EXPECT_EQ(voceForma(""), 0);
}

TEST(SenzaF1, HoldsForTheFieldFormAlone) {
    EXPECT_TRUE(senzaF1("base1"));
    EXPECT_TRUE(senzaF1("base1_6"));
    EXPECT_FALSE(senzaF1("base2_32"));
    EXPECT_FALSE(senzaF1(""));
}

TEST(AncoraCampo, LeavesTheNumberOfOneAmongEqualsOut) {
    EXPECT_EQ(ancoraCampo("Option1_3"), "campoOption1");
    EXPECT_EQ(ancoraCampo("Text25"), "campoText25");
    EXPECT_EQ(ancoraCampo("4"), "campo4");
    EXPECT_EQ(ancoraCampo(""), "");
    EXPECT_EQ(ancoraCampo("_x"), "");
}

TEST(AncoraColonna, CountsTheRowNumbersAsTheFirstField) {
    EXPECT_EQ(ancoraColonna(0), "campo2");
    EXPECT_EQ(ancoraColonna(6), "campo8");
}

}  // namespace
}  // namespace korven::commands
