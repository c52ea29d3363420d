#include "commands/start/language_change.hpp"

#include <gtest/gtest.h>

#include "base/translated_texts.hpp"
#include "support/dialog_double.hpp"
#include "support/document_ports.hpp"
#include "support/failing_disk.hpp"

namespace korven::commands {
namespace {

using base::Risposta;

class CambioLingua : public ::testing::Test {
 protected:
    CambioLingua() {
        for (const char* sigla : {"ita", "deu", "eng"})
            test::metti(ambiente.programma / ("module06" + std::string(sigla) + ".cfg"), "x");
        test::metti(file(), "1\r\n");
        base::impostaLingua(1);
    }
    bool cambia(int scelta) {
        return cambiaLingua({.dialogo = dialogo,
                             .scegli =
                                 [&, scelta](const std::vector<int>& codici, int presente) {
                                     offerte = codici;
                                     mostrata = presente;
                                     return scelta;
                                 },
                             .disco = disco});
    }
    std::string file() { return ambiente.programma / "language.cfg"; }

    test::AmbienteDocumento ambiente;
    test::DialogoFinto dialogo;
    test::DiscoGuasto disco;
    std::vector<int> offerte;
    int mostrata = -1;
};

TEST_F(CambioLingua, WritesTheLanguageDownAndOffersToStartAgain) {
    dialogo.risposte = {Risposta::si};
    EXPECT_TRUE(cambia(2));
    EXPECT_EQ(offerte, (std::vector<int>{5, 2, 1}));
    EXPECT_EQ(mostrata, 1);
    EXPECT_EQ(test::contenuto(file()), "2\r\n");
    ASSERT_EQ(dialogo.domande.size(), 1u);
    EXPECT_EQ(dialogo.domande[0].testo,
              "La lingua scelta vale dal prossimo avvio. Riavviare adesso il programma?");
    EXPECT_EQ(base::linguaCorrente(), 1);  // until then
}

TEST_F(CambioLingua, HoldsFromTheNextStartWhenNobodyWantsToStartAgain) {
    dialogo.risposte = {Risposta::no};
    EXPECT_FALSE(cambia(5));
    EXPECT_EQ(test::contenuto(file()), "5\r\n");
    EXPECT_FALSE(cambia(5));
    EXPECT_EQ(mostrata, 5);
    EXPECT_EQ(dialogo.domande.size(), 2u);  // asked once more: the program still speaks Italian
}

TEST_F(CambioLingua, IsTakenBackByChoosingTheLanguageThatIsSpoken) {
    dialogo.risposte = {Risposta::no};
    EXPECT_FALSE(cambia(5));
    EXPECT_FALSE(cambia(1));
    EXPECT_EQ(test::contenuto(file()), "1\r\n");
    EXPECT_EQ(dialogo.domande.size(), 1u);
}

TEST_F(CambioLingua, ChangesNothingWhenTheFormIsLeft) {
    EXPECT_FALSE(cambia(0));
    EXPECT_EQ(test::contenuto(file()), "1\r\n");
    EXPECT_TRUE(dialogo.domande.empty());
}

TEST_F(CambioLingua, TellsOfAFileThatCannotBeWritten) {
    disco.nome = true;
    EXPECT_FALSE(cambia(2));
    EXPECT_EQ(test::contenuto(file()), "1\r\n");
    ASSERT_EQ(dialogo.messaggi.size(), 1u);
    EXPECT_NE(dialogo.messaggi[0].testo.find("language.cfg"), std::string::npos);
    EXPECT_TRUE(dialogo.domande.empty());
}

TEST_F(CambioLingua, MendsAFileThatIsBroken) {
    test::metti(file(), "x");
    dialogo.risposte = {Risposta::no};
    EXPECT_FALSE(cambia(5));
    EXPECT_EQ(mostrata, 0);
    EXPECT_EQ(test::contenuto(file()), "5\r\n");
}

}  // namespace
}  // namespace korven::commands
