#include "commands/project_history.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <utility>

#include "commands/desktop_program.hpp"
#include "masks/edited_section.hpp"
#include "masks/edited_tables.hpp"
#include "project/project_file.hpp"
#include "support/dialog_double.hpp"
#include "support/document_ports.hpp"
#include "support/plain_masks.hpp"
#include "support/progress_double.hpp"
#include "support/random_walls.hpp"
#include "support/sample_projects.hpp"

namespace korven::commands {
namespace {

using masks::NumeroMaschera;
using project::DatiProgetto;
using project::fileCorrente;
using project::modificato;
using project::Progetto;
using Testi = std::vector<std::string>;

// A form is confirmed that takes from `altro` what it edits.
NumeroMaschera conferma(DatiProgetto& dati, const DatiProgetto& altro, int quale) {
    switch (quale) {
        case 0:
            masks::riprendiStrati(dati, masks::testiStrati(altro));
            return NumeroMaschera::strati;
        case 1:
            masks::riprendiTiranti(dati, masks::testiTiranti(altro));
            return NumeroMaschera::tiranti;
        case 2:
            masks::riprendiFasi(dati, masks::testiFasi(altro));
            return NumeroMaschera::fasi;
        case 3:
            masks::riprendiParatia(dati, masks::testiParatia(altro));
            return NumeroMaschera::paratia;
        default:
            dati.sezione.tipoPali = !dati.sezione.tipoPali;
            dati.sezione.paliDiamEst = altro.profStrato[1];
            return masks::senzaMaschera;
    }
}

TEST(StoriaProgetto, ReturnsToTheBeginningAndToTheEndOfWhateverWasConfirmed) {
    for (unsigned seme = 1; seme <= 20; ++seme) {
        test::MuriCasuali muri(seme);
        const DatiProgetto inizio = muri.prossimo();
        DatiProgetto dati = inizio;
        StoriaProgetto storia;
        for (int i = 0; i < 40; ++i) {
            const DatiProgetto prima = dati;
            const auto scheda = conferma(dati, muri.prossimo(), muri.intero(0, 4));
            storia.confermata(scheda, prima, dati);
        }
        const DatiProgetto fine = dati;
        int passi = 0;
        while (storia.annulla(dati)) ++passi;
        EXPECT_GT(passi, 30) << seme;
        EXPECT_TRUE(dati == inizio) << seme;
        while (storia.ripeti(dati)) --passi;
        EXPECT_EQ(passi, 0) << seme;
        EXPECT_TRUE(dati == fine) << seme;
    }
}

TEST(StoriaProgetto, BringsTheAnchorsBackThatTheFormOfTheStagesMoves) {
    DatiProgetto dati = test::progettoSemplice();
    test::aggiungiTirante(dati, 3, 900);
    const DatiProgetto prima = dati;
    masks::riprendiFasi(dati, {"2", "5", "1", "0", "9", "3", "0", "0", "9"});
    ASSERT_EQ(dati.rigTirante[1], 900);
    StoriaProgetto storia;
    storia.confermata(NumeroMaschera::fasi, prima, dati);
    storia.annulla(dati);
    EXPECT_EQ(dati.rigTirante[1], 500);
    EXPECT_TRUE(dati == prima);
}

TEST(StoriaProgetto, NamesTheFormsAsTheMenuDoes) {
    EXPECT_EQ(nomeScheda(NumeroMaschera::strati), "Stratigrafia");
    EXPECT_EQ(nomeScheda(NumeroMaschera::paratia), "Parametri Diaframma");
    EXPECT_EQ(nomeScheda(masks::senzaMaschera), "Descrizione Struttura");
    EXPECT_EQ(nomeScheda(NumeroMaschera::tiranti), "Caratteristiche Tiranti");
    EXPECT_EQ(nomeScheda(NumeroMaschera::fasi), "Fasi di Scavo");
    EXPECT_EQ(nomeScheda(NumeroMaschera::titoli), "Titoli");
}

class StoriaProgramma : public ::testing::Test {
 protected:
    StoriaProgramma() {
        maschere.leggiMaschere(test::maschereSemplici(cartella));
        Progetto = test::progettoSemplice();
        fileCorrente = ambiente.lavori / "muro.kvd";
    }
    // Confirms the form of an item with what the texts say.
    void edita(std::string_view voce, const Testi& testi) {
        confermati = testi;
        programma.esegui(voceMenu(voce));
    }
    void annulla() { programma.esegui(voceMenu("annulla")); }
    void ripeti() { programma.esegui(voceMenu("ripeti")); }
    static Testi paratia(double lunghezza, double rigidezza) {
        DatiProgetto altro = Progetto;
        altro.lunghezzaParatia = lunghezza;
        altro.rigidezzaEJ = rigidezza;
        Testi testi = masks::testiParatia(altro);
        return {testi.begin() + 7, testi.end()};
    }
    FormeProgramma forme() {
        FormeProgramma tutte;
        tutte.maschera = [this](masks::Maschere& m) {
            if (confermati) m.conferma(m.valoriCombo(), *confermati);
        };
        tutte.sezione = [this] { sezione(); };
        return tutte;
    }

    test::AmbienteDocumento ambiente;
    test::DialogoFinto dialogo{base::Risposta::no};
    test::DialogoFileFinto nomi;
    test::FinestraFinta finestra;
    test::AvanzamentoFinto avanzamento;
    test::CartellaProvvisoria cartella;
    masks::Maschere maschere;
    std::optional<Testi> confermati;
    std::function<void()> sezione = [] {};
    Programma programma{dialogo, nomi, finestra, avanzamento, maschere, forme()};
};

TEST_F(StoriaProgramma, TakesConfirmedFormsBackAndNamesThem) {
    const DatiProgetto prima = Progetto;
    edita("EditTiranti", {"0"});
    edita("EditTitoli", {"Altro muro", "", "", "", "", "", "2"});
    const DatiProgetto dopo = Progetto;
    EXPECT_EQ(Progetto.nTiranti, 0);
    annulla();
    EXPECT_EQ(finestra.ultimoStato, "Annullato: Titoli");
    EXPECT_EQ(Progetto.titoli[1], "Muro di prova");
    EXPECT_EQ(Progetto.nTiranti, 0);
    EXPECT_EQ(project::faseGrafico, 2) << "the stage that is drawn is no part of the project";
    annulla();
    EXPECT_EQ(finestra.ultimoStato, "Annullato: Caratteristiche Tiranti");
    EXPECT_TRUE(Progetto == prima);
    annulla();
    EXPECT_EQ(finestra.ultimoStato, "Nulla da annullare");
    ripeti();
    EXPECT_EQ(finestra.ultimoStato, "Ripetuto: Caratteristiche Tiranti");
    ripeti();
    EXPECT_TRUE(Progetto == dopo);
    ripeti();
    EXPECT_EQ(finestra.ultimoStato, "Nulla da ripetere");
}

TEST_F(StoriaProgramma, TakesOtherDataAsAStepWithANameOfItsOwn) {
    const DatiProgetto prima = Progetto;
    DatiProgetto altri = prima;
    altri.lunghezzaParatia += 2;
    altri.sovraccMonte += 1;
    EXPECT_TRUE(programma.prendi(altri, "Studio"));
    EXPECT_TRUE(Progetto == altri);
    EXPECT_TRUE(modificato);
    annulla();
    EXPECT_EQ(finestra.ultimoStato, "Annullato: Studio");
    EXPECT_TRUE(Progetto == prima);
    ripeti();
    EXPECT_TRUE(Progetto == altri);
}

TEST_F(StoriaProgramma, TakesNoOtherDataWithoutAProject) {
    fileCorrente.clear();
    const DatiProgetto prima = Progetto;
    EXPECT_FALSE(programma.prendi({}, "Studio"));
    EXPECT_TRUE(Progetto == prima);
}

TEST_F(StoriaProgramma, MakesNoStepOfAFormThatChangedNothing) {
    edita("EditTiranti", {"1", "1.5", "5000", "50", "0"});
    EXPECT_TRUE(modificato) << "a confirmed table counts as modified all the same";
    confermati.reset();
    programma.esegui(voceMenu("EditTiranti"));
    EXPECT_FALSE(programma.possibile(voceMenu("annulla")));
}

TEST_F(StoriaProgramma, LeavesTheStiffnessThatARunHasWrittenSinceToTheRun) {
    edita("EditParatia", paratia(14, 12000));
    Progetto.rigidezzaEJ = 15000;
    Progetto.faldaValle = 7;
    annulla();
    EXPECT_EQ(Progetto.lunghezzaParatia, 12);
    EXPECT_EQ(Progetto.rigidezzaEJ, 15000);
    EXPECT_EQ(Progetto.faldaValle, 7);
    edita("EditParatia", paratia(12, 20000));
    Progetto.rigidezzaEJ = 9000;
    annulla();
    EXPECT_EQ(Progetto.rigidezzaEJ, 15000) << "the form had taken it back";
}

TEST_F(StoriaProgramma, CountsTheProjectAsModifiedAfterASaveToo) {
    edita("EditTiranti", {"0"});
    nomi.salvati = {fileCorrente};
    programma.esegui(voceMenu("FileSalva"));
    ASSERT_FALSE(modificato);
    annulla();
    EXPECT_TRUE(modificato);
    ripeti();
    EXPECT_TRUE(modificato) << "only saving and opening say that the data are those of the file";
    nomi.salvati = {fileCorrente};
    dialogo.risposta = base::Risposta::si;
    programma.esegui(voceMenu("FileSalva"));
    ASSERT_FALSE(modificato);
    ripeti();
    EXPECT_FALSE(modificato) << "there was nothing to do again";
}

TEST_F(StoriaProgramma, ForgetsItsStepsWithAnotherProject) {
    const std::string altro = ambiente.lavori / "altro.kvd";
    for (const bool esiste : {true, false}) {
        if (esiste) {
            const std::string questo = std::exchange(fileCorrente, altro);
            project::scriviProgetto();
            fileCorrente = questo;
        }
        edita("EditTiranti", {"0"});
        edita("EditTiranti", {"1", "2", "5000", "50", "0"});
        annulla();
        EXPECT_TRUE(programma.possibile(voceMenu("annulla")));
        EXPECT_TRUE(programma.possibile(voceMenu("ripeti")));
        nomi.aperti = {esiste ? altro : ambiente.lavori / "nuovo.kvd"};
        programma.esegui(voceMenu("FileApri"));
        EXPECT_FALSE(programma.possibile(voceMenu("annulla"))) << esiste;
        EXPECT_FALSE(programma.possibile(voceMenu("ripeti"))) << esiste;
    }
}

TEST_F(StoriaProgramma, ForgetsItsStepsWithACopyOfTheProject) {
    edita("EditTiranti", {"0"});
    nomi.nuovi = {ambiente.lavori / "copia.kvd"};
    programma.esegui(voceMenu("duplica"));
    ASSERT_EQ(fileCorrente, ambiente.lavori / "copia.kvd");
    EXPECT_FALSE(programma.possibile(voceMenu("annulla")));
    EXPECT_EQ(Progetto.nTiranti, 0);
}

TEST_F(StoriaProgramma, TakesTheSectionBackButNotTheTypeThatItsFormGivesByOpening) {
    for (const auto flag : project::tipiSezione) Progetto.sezione.*flag = false;
    sezione = [] { masks::daiTipo(Progetto.sezione); };  // left without
    programma.esegui(voceMenu("EditRigidezza"));
    EXPECT_FALSE(programma.possibile(voceMenu("annulla")));
    sezione = [] {
        Progetto.sezione.spessoreDiaframma = 80;
        modificato = true;
    };
    programma.esegui(voceMenu("EditRigidezza"));
    annulla();
    EXPECT_EQ(finestra.ultimoStato, "Annullato: Descrizione Struttura");
    EXPECT_EQ(Progetto.sezione.spessoreDiaframma, 0);
}

TEST_F(StoriaProgramma, TellsWhatItTookBackUntilTheNextForm) {
    fileCorrente.clear();
    nomi.aperti = {ambiente.lavori / "nuovo.kvd"};
    programma.esegui(voceMenu("FileApri"));
    const std::string riga = finestra.ultimoStato;
    EXPECT_TRUE(riga.starts_with("Nuovo progetto")) << riga;
    edita("EditTiranti", {"1", "2", "5000", "50", "0"});
    annulla();
    EXPECT_EQ(finestra.ultimoStato, "Annullato: Caratteristiche Tiranti");
    confermati.reset();
    programma.esegui(voceMenu("EditTiranti"));
    EXPECT_EQ(finestra.ultimoStato, "Annullato: Caratteristiche Tiranti");
    edita("EditTiranti", {"1", "3", "5000", "50", "0"});
    EXPECT_EQ(finestra.ultimoStato, riga);
}

TEST_F(StoriaProgramma, SaysThatThereIsNothingToTakeBackWhereNoProjectIsOpen) {
    fileCorrente.clear();
    edita("EditTiranti", {"0"});
    annulla();
    EXPECT_EQ(finestra.ultimoStato, "Nulla da annullare");
    EXPECT_FALSE(modificato);
}

}  // namespace
}  // namespace korven::commands
