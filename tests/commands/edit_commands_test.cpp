#include "commands/edit_commands.hpp"

#include <gtest/gtest.h>

#include "base/table.hpp"
#include "commands/desktop_program.hpp"
#include "commands/fatal_error.hpp"
#include "masks/edited_tables.hpp"
#include "support/dialog_double.hpp"
#include "support/document_ports.hpp"
#include "support/plain_masks.hpp"
#include "support/progress_double.hpp"
#include "support/sample_projects.hpp"

namespace korven::commands {
namespace {

using project::modificato;
using project::Progetto;
using Testi = std::vector<std::string>;

class Edita : public ::testing::Test {
 protected:
    Edita() {
        maschere.leggiMaschere(test::maschereSemplici(cartella));
        forme.maschera = [this](masks::Maschere& tutte) { mostra(tutte); };
        forme.sezione = [this] { ++sezioni; };
        forme.sezioneDa = [this](std::size_t campo) { campi.push_back(campo); };
        Progetto = test::progettoSemplice();
        project::fileCorrente = "/lavori/muro.kvd";
    }
    void esegui(std::string_view comando) {
        Programma(dialogo, nomi, finestra, avanzamento, maschere, forme).esegui(voceMenu(comando));
    }
    // The form: notes what it was given and hands back what the test says, choices kept.
    void mostra(masks::Maschere& tutte) {
        titoli.push_back(tutte.corrente().titolo);
        inizi.push_back(tutte.inizio());
        const auto quanti = tutte.valoriCombo().size() + tutte.valoriTesto().size();
        mostrati.clear();
        for (std::size_t i = 1; i <= quanti; ++i)
            mostrati.push_back(tutte.leggiCampo(static_cast<int>(i)));
        if (confermati) tutte.conferma(tutte.valoriCombo(), *confermati);
    }

    test::AmbienteDocumento ambiente;
    test::DialogoFinto dialogo;
    test::DialogoFileFinto nomi;
    test::FinestraFinta finestra;
    test::AvanzamentoFinto avanzamento;
    FormeProgramma forme;
    test::CartellaProvvisoria cartella;
    masks::Maschere maschere;
    std::vector<std::string> titoli;  // of the forms shown
    Testi mostrati;
    std::optional<Testi> confermati;
    int sezioni = 0;
    std::vector<std::size_t> campi;  // at which the section form began
    std::vector<std::optional<masks::PostoForma>> inizi;
};

TEST_F(Edita, RefusesEachEditorWithoutAProjectInItsOwnWords) {
    project::fileCorrente.clear();
    const std::pair<const char*, const char*> casi[] = {
        {"EditStratigrafia", "editare i dati prima"}, {"EditParatia", "editare dati prima"},
        {"EditRigidezza", "editare i dati prima"},    {"EditTiranti", "editare i dati prima"},
        {"EditFasi", "editare i dati prima"},         {"EditTitoli", "editare dati prima"},
    };
    for (const auto& [comando, parole] : casi) {
        dialogo.messaggi.clear();
        esegui(comando);
        ASSERT_EQ(dialogo.messaggi.size(), 1u);
        EXPECT_EQ(dialogo.messaggi[0].testo,
                  std::string("Non e' possibile ") + parole + " di aver aperto un file.");
        EXPECT_EQ(dialogo.messaggi[0].titolo, "ATTENZIONE!");
    }
    EXPECT_TRUE(titoli.empty());
    EXPECT_EQ(sezioni, 0);
}

TEST_F(Edita, ShowsTheMaskOfEachEditor) {
    for (const char* comando :
         {"EditTitoli", "EditParatia", "EditStratigrafia", "EditTiranti", "EditFasi"})
        esegui(comando);
    EXPECT_EQ(titoli, (Testi{"T", "D", "S", "A", "F"}));
    esegui("EditRigidezza");
    EXPECT_EQ(sezioni, 1);
    EXPECT_EQ(titoli.size(), 5u);
}

TEST_F(Edita, BeginsAtAFieldThatIsAskedForAndNextTimeAtTheFirst) {
    Programma programma(dialogo, nomi, finestra, avanzamento, maschere, forme);
    programma.editaDa({masks::NumeroMaschera::strati, {2, 4}});
    programma.esegui(voceMenu("EditStratigrafia"));
    EXPECT_EQ(titoli, (Testi{"S", "S"}));
    EXPECT_EQ(inizi[0], (masks::PostoForma{2, 4}));
    EXPECT_FALSE(inizi[1]);
    programma.editaDa({masks::senzaMaschera, {1, 3}});
    programma.editaDa({masks::senzaMaschera, {1, 0}});
    EXPECT_EQ(campi, std::vector<std::size_t>{2});
    EXPECT_EQ(sezioni, 1);
}

TEST_F(Edita, BeginsNowhereWithoutAProject) {
    project::fileCorrente.clear();
    Programma programma(dialogo, nomi, finestra, avanzamento, maschere, forme);
    programma.editaDa({masks::NumeroMaschera::strati, {2, 4}});
    programma.editaDa({masks::senzaMaschera, {1, 3}});
    EXPECT_TRUE(titoli.empty());
    EXPECT_TRUE(campi.empty());
}

TEST_F(Edita, LeavesTheProjectAloneWhenTheFormIsLeftWithoutConfirming) {
    for (const char* comando : {"EditStratigrafia", "EditParatia", "EditTitoli"}) esegui(comando);
    EXPECT_FALSE(modificato);
    EXPECT_EQ(Progetto, test::progettoSemplice());
}

TEST_F(Edita, ShowsTablesWithTheirRowCountAndKilonewtons) {
    esegui("EditStratigrafia");
    EXPECT_EQ(mostrati,
              (Testi{"2", "4", "18", "20", "30", "0", "15000", "1A Sabbia, limosa \"media\"", "20",
                     "19", "21", "34", "5", "30000", "2 Ghiaia"}));
    esegui("EditTiranti");
    EXPECT_EQ(mostrati, (Testi{"1", "1.5", "5000", "50", "0"}));
    Progetto.sovraccFase[2] = 0.25;
    esegui("EditFasi");
    EXPECT_EQ(mostrati, (Testi{"2", "2", "0", "0", "3", "5", "1", "2.5", "5"}));
}

TEST_F(Edita, ShowsTheEighteenWallParametersInTheirOrder) {
    Progetto.coeffM = 0.4;
    Progetto.pressioneOrizz = 0.1;
    Progetto.momentoTesta = -3;
    Progetto.forzaTesta = 2;
    Progetto.sforzoNormale = 12.5;
    Progetto.inclinazioneMonte = 5;
    esegui("EditParatia");
    EXPECT_EQ(mostrati, (Testi{"1", "1", "1", "1", "1", "1", "3", "12", "120000", "0.4", "1", "10",
                               "-30", "20", "125", "5", "3", "1"}));
}

TEST_F(Edita, CountsAConfirmedTableAsModifiedAndAnUnchangedFieldFormNot) {
    const auto paratia = masks::testiParatia(Progetto);
    confermati = Testi(paratia.begin() + 7, paratia.end());  // the seven choices stay apart
    esegui("EditParatia");
    EXPECT_FALSE(modificato);
    confermati = masks::testiStrati(Progetto);
    esegui("EditStratigrafia");
    EXPECT_TRUE(modificato);
    EXPECT_EQ(Progetto, test::progettoSemplice());
}

TEST_F(Edita, TakesBackEveryShownTableUnchanged) {
    confermati = masks::testiTiranti(Progetto);
    esegui("EditTiranti");
    confermati = masks::testiFasi(Progetto);
    esegui("EditFasi");
    EXPECT_EQ(Progetto, test::progettoSemplice());
}

TEST_F(Edita, KeepsTheStageToDrawOutOfTheProject) {
    esegui("EditTitoli");
    EXPECT_EQ(mostrati, (Testi{"Muro di prova", "", "", "", "", "", "0"}));
    confermati = Testi{"Muro di prova", "", "", "", "", "", "2"};
    esegui("EditTitoli");
    EXPECT_EQ(project::faseGrafico, 2);
    EXPECT_FALSE(modificato);
    confermati = Testi{"Muro di prova", "Tratto B", "", "", "", "", "2"};
    esegui("EditTitoli");
    EXPECT_TRUE(modificato);
    EXPECT_EQ(Progetto.titoli[2], "Tratto B");
}

TEST_F(Edita, TakesAMissingOrUnreadableStageForAll) {
    const std::pair<Testi, int> casi[] = {
        {{"a", "b", "c", "d", "e", "f"}, 0},
        {{"a", "b", "c", "d", "e", "f", ""}, 0},
        {{"a", "b", "c", "d", "e", "f", "-1"}, 0},
        {{"a", "b", "c", "d", "e", "f", "3.9"}, 3},
    };
    for (const auto& [testi, fase] : casi) {
        project::faseGrafico = 7;
        confermati = testi;
        esegui("EditTitoli");
        EXPECT_EQ(project::faseGrafico, fase);
    }
}

TEST_F(Edita, EndsOnMoreRowsThanTheTableHolds) {
    confermati = Testi{"101"};
    EXPECT_THROW(esegui("EditStratigrafia"), base::ErroreIndice);
}

TEST_F(Edita, WritesTheRowsThatATableDoesNotHoldBesideTheProjectBeforeItEnds) {
    const test::CartellaProvvisoria lavori;
    project::fileCorrente = lavori / "muro.kvd";
    // 21 rows fit the list of values from the beginning, 300 only from the second form on.
    for (const int righe : {21, 300}) {
        confermati = Testi{std::to_string(righe)};
        std::string attese;
        for (int i = 1; i <= righe; ++i) {
            for (const char* cella : {"5", "0", "", "x"}) confermati->emplace_back(cella);
            attese += "5\t0\t\tx\r\n";
        }
        try {
            esegui("EditFasi");
            FAIL() << "no end at " << righe;
        } catch (const ErroreRighe& errore) {
            EXPECT_EQ(errore.indice(), righe);
            EXPECT_EQ(errore.capacita(), 20U);
            EXPECT_EQ(test::contenuto(errore.file()), attese);
        }
    }
    EXPECT_EQ(Progetto, test::progettoSemplice());
    EXPECT_FALSE(modificato);
}

}  // namespace
}  // namespace korven::commands
