#include "commands/recent_projects.hpp"

#include <gtest/gtest.h>

#include "support/document_ports.hpp"
#include "support/failing_disk.hpp"

namespace korven::commands {
namespace {

namespace fs = std::filesystem;
using Percorsi = std::vector<std::string>;

class ProgettiRecenti : public ::testing::Test {
 protected:
    // A project of one's own, opened.
    std::string ricorda(const std::string& nome) {
        const std::string percorso = ambiente.lavori / nome;
        test::metti(percorso, "x");
        ricordaRecente(percorso);
        return percorso;
    }
    std::string elenco() { return ambiente.programma / "recenti"; }

    test::AmbienteDocumento ambiente;
};

TEST_F(ProgettiRecenti, AreNoneAtFirst) { EXPECT_EQ(progettiRecenti(), Percorsi{}); }

TEST_F(ProgettiRecenti, AreListedTheNewestFirstAPathALine) {
    const auto a = ricorda("a.kvd"), b = ricorda("è b.KVD");
    EXPECT_EQ(progettiRecenti(), (Percorsi{b, a}));
    EXPECT_EQ(test::contenuto(elenco()), b + "\r\n" + a + "\r\n");
}

TEST_F(ProgettiRecenti, HoldTheLastTen) {
    Percorsi attesi;
    for (int i = 0; i < 12; ++i)
        attesi.insert(attesi.begin(), ricorda("m" + std::to_string(i) + ".kvd"));
    attesi.resize(10);
    EXPECT_EQ(progettiRecenti(), attesi);
}

TEST_F(ProgettiRecenti, HoldAFileOnceByWhateverWayItWasReached) {
    const auto a = ricorda("a.kvd"), b = ricorda("b.kvd");
    ricordaRecente(a);
    EXPECT_EQ(progettiRecenti(), (Percorsi{a, b}));
    fs::create_symlink(b, ambiente.lavori / "via.kvd");
    ricordaRecente(ambiente.lavori / "via.kvd");
    EXPECT_EQ(progettiRecenti(), (Percorsi{ambiente.lavori / "via.kvd", a}));
    ricordaRecente(ambiente.lavori / "./a.kvd");
    EXPECT_EQ(progettiRecenti(),
              (Percorsi{ambiente.lavori / "./a.kvd", ambiente.lavori / "via.kvd"}));
}

TEST_F(ProgettiRecenti, StayWhereTheirFilesAreGone) {
    const auto a = ricorda("a.kvd");
    fs::remove(a);
    const auto b = ricorda("b.kvd");
    EXPECT_EQ(progettiRecenti(), (Percorsi{b, a}));
}

// Opening "muro.txt" from a list would open, or begin, "muro.kvd".
TEST_F(ProgettiRecenti, LeaveOutANameThatOpeningTakesForAnother) {
    ricorda("muro.txt");
    ricorda("muro");
    ricorda("a\nb.kvd");
    ricordaRecente("muro.kvd");
    EXPECT_EQ(progettiRecenti(), Percorsi{});
}

TEST_F(ProgettiRecenti, AreForgottenWhenAsked) {
    ricorda("a.kvd");
    dimenticaRecenti();
    EXPECT_EQ(progettiRecenti(), Percorsi{});
    EXPECT_EQ(test::contenuto(elenco()), "");
}

TEST_F(ProgettiRecenti, StayAsTheyWereOnADiskThatFails) {
    const auto a = ricorda("a.kvd");
    test::metti(ambiente.lavori / "b.kvd", "x");
    test::DiscoGuasto pieno;
    pieno.nome = true;
    ricordaRecente(ambiente.lavori / "b.kvd", pieno);
    dimenticaRecenti(pieno);
    EXPECT_EQ(progettiRecenti(), Percorsi{a});
}

TEST_F(ProgettiRecenti, AreReadFromWhateverSomebodyWroteThere) {
    std::string molti;
    for (int i = 0; i < 30; ++i) molti += "/a/" + std::to_string(i) + ".kvd\n\n";
    test::metti(elenco(), molti);
    EXPECT_EQ(progettiRecenti().size(), 10u);
    EXPECT_EQ(progettiRecenti()[9], "/a/9.kvd");
    fs::remove(elenco());
    fs::create_directory(elenco());
    EXPECT_EQ(progettiRecenti(), Percorsi{});
}

TEST(VoceRecente, NamesFileAndFolderAfterADigit) {
    EXPECT_EQ(voceRecente(0, "/lavori/muro.kvd"), "&1 muro.kvd - /lavori");
    EXPECT_EQ(voceRecente(9, "/lavori/muro.kvd"), "&0 muro.kvd - /lavori");
}

TEST(VoceRecente, ShowsAnAmpersandAndNoTab) {
    EXPECT_EQ(voceRecente(1, "/R&S/a&b\tc.kvd"), "&2 a&&b c.kvd - /R&&S");
}

TEST(VoceRecente, LeavesTheMiddleOfALongFolderOut) {
    std::string lunga = "/";
    for (int i = 0; i < 30; ++i) lunga += "àèìòù";
    EXPECT_EQ(voceRecente(0, lunga + "/m.kvd"),
              "&1 m.kvd - /àèìòùàèìòùàèìòùàèìò…èìòùàèìòùàèìòùàèìòùàèìòùàèìòùàèìòùàèìòù");
}

TEST_F(ProgettiRecenti, AreNoneWhereTheListCannotBeRead) {
    std::filesystem::create_directory(elenco());  // a folder in its place
    EXPECT_EQ(progettiRecenti(), Percorsi{});
}

}  // namespace
}  // namespace korven::commands
