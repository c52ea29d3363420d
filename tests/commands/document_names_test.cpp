#include "commands/document_names.hpp"

#include <gtest/gtest.h>

namespace korven::commands {
namespace {

TEST(NomeDaAprire, ReplacesAnExtensionWithinTheLastFourCharacters) {
    EXPECT_EQ(nomeDaAprire("/lavori/muro"), "/lavori/muro.kvd");
    EXPECT_EQ(nomeDaAprire("/lavori/muro.kvd"), "/lavori/muro.kvd");
    EXPECT_EQ(nomeDaAprire("/lavori/A.OLD.KVD"), "/lavori/A.OLD.kvd");
    EXPECT_EQ(nomeDaAprire("/lavori/muro.c"), "/lavori/muro.kvd");
    EXPECT_EQ(nomeDaAprire("/lavori/muro."), "/lavori/muro.kvd");
    EXPECT_EQ(nomeDaAprire("/lavori/A.b.c"), "/lavori/A.b.kvd");  // the last point alone
}

TEST(NomeDaAprire, KeepsAPointThatIsFartherFromTheEnd) {
    EXPECT_EQ(nomeDaAprire("/lavori/muro.2024"), "/lavori/muro.2024.kvd");
    EXPECT_EQ(nomeDaAprire("/lavori.1/muro"), "/lavori.1/muro.kvd");
    EXPECT_EQ(nomeDaAprire("/lavori/muro.sò"), "/lavori/muro.kvd");  // characters, not bytes
    EXPECT_EQ(nomeDaAprire("/lavori/muro.àèìò"), "/lavori/muro.àèìò.kvd");
}

TEST(NomeDaAprire, CutsAFolderWhoseNameEndsThereToo) {
    // The rule looks at the last four characters of the whole path.
    EXPECT_EQ(nomeDaAprire("/l.1/m"), "/l.kvd");
}

TEST(NessunaScelta, IsTheNameOfThePatternOrAnEmptyOne) {
    EXPECT_TRUE(nessunaScelta(nomeDaAprire("")));
    EXPECT_TRUE(nessunaScelta(nomeDaAprire("*.kvd")));
    EXPECT_TRUE(nessunaScelta(nomeDaAprire("/lavori/*.kvd")));
    EXPECT_TRUE(nessunaScelta(nomeDaAprire("/lavori/")));
    EXPECT_FALSE(nessunaScelta(nomeDaAprire("/lavori/a")));
}

TEST(NomeDaSalvare, CutsTheWholePathAfterItsFirstPoint) {
    EXPECT_EQ(nomeDaSalvare("/c/lavori/muro"), "/c/lavori/muro.kvd");
    EXPECT_EQ(nomeDaSalvare("/c/lavori/muro.OLD.kvd"), "/c/lavori/muro.kvd");
    EXPECT_EQ(nomeDaSalvare("/c/lavori.1/muro"), "/c/lavori.kvd");
    EXPECT_EQ(nomeDaSalvare("/home/.dati/muro.kvd"), "/home/.kvd");
}

TEST(NomeProposto, IsTheFileNameAlone) {
    EXPECT_EQ(nomeProposto("/c/lavori/Muro.kvd"), "Muro.kvd");
    EXPECT_EQ(nomeProposto("muro.kvd"), "muro.kvd");
}

TEST(TitoloFinestra, ShowsTheBaseNameInLowerCaseCutAtItsFirstPoint) {
    EXPECT_EQ(titoloFinestra("/lavori.1/Muro.kvd"), "KORVEN 32 - muro");
    EXPECT_EQ(titoloFinestra("/lavori/A.OLD.kvd"), "KORVEN 32 - a");
    EXPECT_EQ(titoloFinestra("/lavori/FOSSÉ.kvd"), "KORVEN 32 - fossé");
}

TEST(RigaFileCorrente, NamesTheWholePathInCapitalsCutAtItsFirstPoint) {
    EXPECT_EQ(rigaFileCorrente("/lavori/muro.kvd"), "File corrente: /LAVORI/MURO");
    EXPECT_EQ(rigaFileCorrente("/lavori.1/muro.kvd"), "File corrente: /LAVORI");
    EXPECT_EQ(rigaFileCorrente(""), "");
}

TEST(RigaFileCorrente, DoublesTheFirstAmpersandAlone) {
    EXPECT_EQ(rigaFileCorrente("/a&b/c&d.kvd"), "File corrente: /A&&B/C&D");
}

}  // namespace
}  // namespace korven::commands
