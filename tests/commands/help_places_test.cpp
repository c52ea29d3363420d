#include "help/help_places.hpp"

#include <gtest/gtest.h>

#include "commands/menu_tree.hpp"
#include "help/help_contexts.hpp"

namespace korven::commands {
namespace {

TEST(VoceForma, IsThatOfTheMenuItemWhereOneOpensTheForm) {
    EXPECT_EQ(help::voceForma("Editacfg"), voce(Comando::configura).aiuto);
    EXPECT_EQ(help::voceForma("DefinEJ"), voce(Comando::editRigidezza).aiuto);
    EXPECT_EQ(help::voceForma("Form1"), voce(Comando::stampaVideo).aiuto);
    EXPECT_EQ(help::voceForma("apri"), voce(Comando::fileApri).aiuto);
    EXPECT_EQ(help::voceForma("salva"), voce(Comando::fileSalva).aiuto);
}

TEST(VoceForma, IsOneOfItsOwnForOtherForms) {
    EXPECT_EQ(help::voceForma("GRAFICA"), help::voceGrafica);
    EXPECT_EQ(help::voceForma("TempCalc"), help::voceTempCalc);
    for (const int propria : {help::voceGrafica, help::voceConfStampa, help::voceTempCalc,
                              help::voceGuida, help::voceSelezling})
        for (const auto& v : albero()) EXPECT_NE(v.aiuto, propria) << v.nome;
    // The item opens that very box.
    for (const auto& v : albero())
        EXPECT_EQ(v.aiuto == help::voceInformazioni, v.comando == Comando::about) << v.nome;
}

TEST(VoceForma, IsZeroForAnyOtherWindow) {
    EXPECT_EQ(help::voceForma("menu1"), 0);
    EXPECT_EQ(help::voceForma(""), 0);
}

TEST(SenzaF1, HoldsForTheFieldFormAlone) {
    EXPECT_TRUE(help::senzaF1("base1"));
    EXPECT_TRUE(help::senzaF1("base1_6"));
    EXPECT_FALSE(help::senzaF1("base2_32"));
    EXPECT_FALSE(help::senzaF1(""));
}

TEST(AncoraCampo, LeavesTheNumberOfOneAmongEqualsOut) {
    EXPECT_EQ(help::ancoraCampo("Option1_3"), "campoOption1");
    EXPECT_EQ(help::ancoraCampo("Text25"), "campoText25");
    EXPECT_EQ(help::ancoraCampo("4"), "campo4");
    EXPECT_EQ(help::ancoraCampo(""), "");
    EXPECT_EQ(help::ancoraCampo("_x"), "");
}

TEST(AncoraColonna, CountsTheRowNumbersAsTheFirstField) {
    EXPECT_EQ(help::ancoraColonna(0), "campo2");
    EXPECT_EQ(help::ancoraColonna(6), "campo8");
}

}  // namespace
}  // namespace korven::commands
