#include "commands/rescue/rescue_offer.hpp"

#include <gtest/gtest.h>

#include <deque>

#include "commands/document.hpp"
#include "support/dialog_double.hpp"
#include "support/rescue_setup.hpp"

namespace korven::commands {
namespace {

namespace fs = std::filesystem;
using base::Risposta;
using project::modificato;
using project::Progetto;
using enum SceltaRecupero;
using Nomi = std::vector<std::string>;

// A document whose offers are answered from a script.
class OffertaTest : public ::testing::Test {
 protected:
    OffertaTest() {
        modificato = false;
        documento.offriCon([this](const OffertaRecupero& offerta) {
            offerti.push_back(fs::path(offerta.file).filename().string());
            altri.push_back(offerta.altri);
            salvato.push_back(offerta.salvato.has_value());
            EXPECT_EQ(offerta.progetto, project::fileCorrente);
            EXPECT_EQ(offerta.copiato, modificato);
            copiato.push_back(offerta.copiato);
            EXPECT_EQ(offerta.aperto, Progetto);
            EXPECT_EQ(offerta.differenze, project::differenze(offerta.aperto, offerta.recuperato));
            if (scelte.empty()) return dopo;
            const auto scelta = scelte.front();
            scelte.pop_front();
            return scelta;
        });
    }
    static project::DatiProgetto lunga(double lunghezza) {
        auto dati = test::progettoSemplice();
        dati.lunghezzaParatia = lunghezza;
        return dati;
    }
    void salvaFile() { test::metti(ambiente.muro, ambiente.byte(test::progettoSemplice())); }
    void lascia(const char* nome, double lunghezza) {
        test::metti(ambiente.lavori / nome, byteRecupero(lunga(lunghezza), ambiente.muro));
    }
    void apri() { documento.apri(ambiente.muro); }

    test::AmbienteRecupero ambiente;
    test::DialogoFinto dialogo;
    test::DialogoFileFinto nomi;
    test::FinestraFinta finestra;
    Documento documento{dialogo, nomi, finestra};
    std::deque<SceltaRecupero> scelte;
    Nomi offerti;
    std::vector<std::size_t> altri;
    std::vector<bool> salvato, copiato;
};

TEST_F(OffertaTest, IsMadeOnlyWhereThereIsUnsavedWork) {
    salvaFile();
    apri();
    EXPECT_EQ(offerti, Nomi{});
    EXPECT_EQ(finestra.ultimoStato, "File letto: " + ambiente.muro);
}

TEST_F(OffertaTest, TakenMakesTheUnsavedWorkTheOpenProject) {
    salvaFile();
    lascia("muro_recuperato.kvd", 10);
    scelte = {prendi};
    apri();
    EXPECT_EQ(offerti, Nomi{"muro_recuperato.kvd"});
    EXPECT_EQ(salvato, std::vector{true});
    EXPECT_EQ(Progetto, lunga(10));
    EXPECT_EQ(project::fileCorrente, ambiente.muro);
    EXPECT_TRUE(modificato);
    EXPECT_EQ(finestra.ultimoTitolo, "KORVEN 32 - muro");
    EXPECT_EQ(finestra.ultimoStato,
              "Si lavora sui dati recuperati, non ancora salvati nel progetto: salvarli con "
              "Ctrl+S. Fino ad allora restano anche in " +
                  ambiente.recuperato);
    EXPECT_EQ(test::contenuto(ambiente.muro), ambiente.byte(test::progettoSemplice()));
}

TEST_F(OffertaTest, TakenIsTheRescueFileUntilItIsSaved) {
    salvaFile();
    lascia("muro_recuperato.kvd", 10);
    scelte = {prendi};
    apri();
    Progetto.lunghezzaParatia = 11;
    documento.custodisci();
    EXPECT_EQ(ambiente.nomi(), (Nomi{"muro.kvd", "muro_recuperato.kvd"}));
    EXPECT_EQ(test::contenuto(ambiente.recuperato), byteRecupero(lunga(11), ambiente.muro));
    nomi.salvati = {ambiente.muro};
    dialogo.risposte = {Risposta::si};
    EXPECT_TRUE(documento.fileSalva());
    EXPECT_EQ(ambiente.nomi(), Nomi{"muro.kvd"});
    EXPECT_EQ(test::contenuto(ambiente.muro), ambiente.byte(lunga(11)));
}

TEST_F(OffertaTest, PutOffLeavesBothAsTheyAreAndComesBack) {
    salvaFile();
    lascia("muro_recuperato.kvd", 10);
    for (int i = 0; i < 2; ++i) {
        apri();
        EXPECT_EQ(Progetto, test::progettoSemplice());
        EXPECT_FALSE(modificato);
        EXPECT_EQ(finestra.ultimoStato,
                  "Lavoro recuperato lasciato per dopo: viene proposto di nuovo alla prossima "
                  "apertura. Resta in " +
                      ambiente.recuperato);
    }
    EXPECT_EQ(offerti.size(), 2u);
    EXPECT_EQ(ambiente.nomi(), (Nomi{"muro.kvd", "muro_recuperato.kvd"}));
}

TEST_F(OffertaTest, PutOffIsNotTouchedByTheWorkThatFollows) {
    salvaFile();
    lascia("muro_recuperato.kvd", 10);
    apri();
    modificato = true;
    Progetto.lunghezzaParatia = 12.5;
    documento.custodisci();
    EXPECT_EQ(test::contenuto(ambiente.recuperato), byteRecupero(lunga(10), ambiente.muro));
    EXPECT_EQ(test::contenuto(ambiente.lavori / "muro_recuperato_2.kvd"),
              byteRecupero(lunga(12.5), ambiente.muro));
}

TEST_F(OffertaTest, RefusedRemovesTheWorkAfterAQuestionThatWarns) {
    salvaFile();
    lascia("muro_recuperato.kvd", 10);
    scelte = {tieni, tieni};
    dialogo.risposte = {Risposta::no, Risposta::si};
    apri();
    EXPECT_EQ(offerti.size(), 2u);  // No brings the offer back
    ASSERT_EQ(dialogo.domande.size(), 2u);
    EXPECT_EQ(dialogo.domande[0].testo,
              "Il lavoro recuperato non si potrà più riprendere. Volete cancellare " +
                  ambiente.recuperato + "?");
    EXPECT_EQ(dialogo.domande[0].icona, base::Icona::avviso);
    EXPECT_EQ(dialogo.pulsanti[0], base::Pulsanti::siNo);
    EXPECT_EQ(ambiente.nomi(), Nomi{"muro.kvd"});
    EXPECT_EQ(Progetto, test::progettoSemplice());
    EXPECT_FALSE(modificato);
    EXPECT_EQ(finestra.ultimoStato, "Lavoro recuperato cancellato: " + ambiente.recuperato);
}

TEST_F(OffertaTest, GoesFromTheLatestToTheOlderOnesUntilOneIsTaken) {
    salvaFile();
    lascia("muro_recuperato.kvd", 10);
    lascia("muro_recuperato_2.kvd", 11);
    lascia("muro_recuperato_3.kvd", 12.5);
    // As old as each other: then in the order of their names.
    const auto quando = fs::last_write_time(ambiente.recuperato);
    for (const char* nome : {"muro_recuperato_2.kvd", "muro_recuperato_3.kvd"})
        fs::last_write_time(ambiente.lavori / nome, quando);
    scelte = {tieni, prendi};
    dialogo.risposte = {Risposta::si};
    apri();
    EXPECT_EQ(offerti, (Nomi{"muro_recuperato.kvd", "muro_recuperato_2.kvd"}));
    EXPECT_EQ(altri, (std::vector<std::size_t>{2, 1}));
    EXPECT_EQ(ambiente.nomi(),
              (Nomi{"muro.kvd", "muro_recuperato_2.kvd", "muro_recuperato_3.kvd"}));
    EXPECT_EQ(Progetto, lunga(11));
}

TEST_F(OffertaTest, IsMadeOfANewProjectThatWasNeverSavedUnderTheSameName) {
    lascia("muro_recuperato.kvd", 10);
    scelte = {prendi};
    apri();
    EXPECT_EQ(salvato, std::vector{false});
    EXPECT_EQ(Progetto.lunghezzaParatia, 10);
    EXPECT_TRUE(modificato);
    EXPECT_EQ(project::fileCorrente, ambiente.muro);
    EXPECT_FALSE(fs::exists(ambiente.muro));
}

TEST_F(OffertaTest, IsMadeOfANewProjectThatTheMenuBeginsEmpty) {
    lascia("muro_recuperato.kvd", 10);
    scelte = {prendi};
    nomi.nuovi = {ambiente.muro};
    documento.nuovo([] { return ""; });
    EXPECT_EQ(offerti, Nomi{"muro_recuperato.kvd"});
    EXPECT_EQ(Progetto.lunghezzaParatia, 10);
    EXPECT_TRUE(modificato);
}

// The name is that of earlier work, whatever the new project begins with.
TEST_F(OffertaTest, IsMadeOfANewProjectThatBeginsWithAPatternAndLosesNeither) {
    lascia("muro_recuperato.kvd", 10);
    const std::string modello = ambiente.dati / "modello.kvd";
    test::metti(modello, ambiente.byte(lunga(17)));
    nomi.nuovi = {ambiente.muro};
    documento.nuovo([&] { return modello; });
    EXPECT_EQ(offerti, Nomi{"muro_recuperato.kvd"});  // and not what is kept of the new project
    EXPECT_EQ(copiato, std::vector{true});
    EXPECT_EQ(Progetto, lunga(17));
    EXPECT_TRUE(modificato);
    EXPECT_EQ(ambiente.nomi(), (Nomi{"muro_recuperato.kvd", "muro_recuperato_2.kvd"}));
    EXPECT_EQ(test::contenuto(ambiente.recuperato), byteRecupero(lunga(10), ambiente.muro));
}

TEST_F(OffertaTest, TakenInPlaceOfAPatternIsTheOneRescueFile) {
    lascia("muro_recuperato.kvd", 10);
    const std::string modello = ambiente.dati / "modello.kvd";
    test::metti(modello, ambiente.byte(lunga(17)));
    scelte = {prendi};
    nomi.nuovi = {ambiente.muro};
    documento.nuovo([&] { return modello; });
    EXPECT_EQ(Progetto, lunga(10));
    EXPECT_TRUE(modificato);
    EXPECT_EQ(ambiente.nomi(), Nomi{"muro_recuperato.kvd"});
}

TEST_F(OffertaTest, IsMadeOfANewProjectOverTheNameOfAFile) {
    salvaFile();
    lascia("muro_recuperato.kvd", 10);
    scelte = {prendi};
    dialogo.risposte = {Risposta::si};  // to the question about the file
    nomi.nuovi = {ambiente.muro};
    documento.nuovo([] { return ""; });
    EXPECT_EQ(offerti, Nomi{"muro_recuperato.kvd"});
    EXPECT_EQ(salvato, std::vector{false});  // what is open is not what the file holds
    EXPECT_EQ(Progetto.lunghezzaParatia, 10);
    EXPECT_TRUE(modificato);
    EXPECT_EQ(test::contenuto(ambiente.muro), ambiente.byte(test::progettoSemplice()));
}

TEST_F(OffertaTest, IsMadeOfACopyUnderTheNameOfEarlierWork) {
    lascia("muro_recuperato.kvd", 10);
    project::fileCorrente = ambiente.lavori / "altro.kvd";
    nomi.nuovi = {ambiente.muro};
    documento.duplica();
    EXPECT_EQ(offerti, Nomi{"muro_recuperato.kvd"});
    EXPECT_EQ(copiato, std::vector{true});
    EXPECT_EQ(Progetto, test::progettoSemplice());
    EXPECT_EQ(ambiente.nomi(), (Nomi{"muro_recuperato.kvd", "muro_recuperato_2.kvd"}));
}

TEST_F(OffertaTest, IsMadeOfTheProjectThatTheCommandLineNames) {
    salvaFile();
    lascia("muro_recuperato.kvd", 10);
    scelte = {prendi};
    EXPECT_TRUE(documento.apriAllAvvio(ambiente.muro));
    EXPECT_EQ(Progetto, lunga(10));
    EXPECT_TRUE(modificato);
}

TEST_F(OffertaTest, IsNotMadeOfTheWorkThatWasJustGivenUp) {
    salvaFile();
    apri();
    modificato = true;
    Progetto.lunghezzaParatia = 10;
    documento.custodisci();
    dialogo.risposte = {Risposta::no};
    apri();
    EXPECT_EQ(offerti, Nomi{});
    EXPECT_EQ(ambiente.nomi(), Nomi{"muro.kvd"});
    EXPECT_EQ(Progetto, test::progettoSemplice());
}

}  // namespace
}  // namespace korven::commands
