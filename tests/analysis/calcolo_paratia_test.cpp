#include "analysis/calcolo_paratia.hpp"

#include <gtest/gtest.h>

#include "analysis/input_checks.hpp"
#include "base/file_error.hpp"
#include "project/codes.hpp"
#include "support/output_double.hpp"
#include "support/run_harness.hpp"
#include "support/sample_projects.hpp"

namespace korven::analysis {
namespace {

using project::fileCorrente;
using project::MetodoKs;
using project::Progetto;
using test::Banco;
using test::contenuto;
using test::progettoSemplice;

void aspettaRifiuto(const Banco& banco, std::string_view messaggio) {
    EXPECT_TRUE(erroreCalcolo);
    ASSERT_EQ(banco.dialogo.messaggi.size(), 1u);
    EXPECT_EQ(banco.dialogo.messaggi[0].testo, messaggio);
    EXPECT_EQ(banco.dialogo.messaggi[0].titolo, "ATTENZIONE!");
    EXPECT_EQ(banco.dialogo.messaggi[0].icona, base::Icona::stop);
    EXPECT_EQ(banco.dialogo.puntatori,
              (std::vector{base::Puntatore::clessidra, base::Puntatore::normale}));
    EXPECT_EQ(banco.uscita.relazioni, 0);
}

TEST(CalcoloParatia, LeavesACompleteResultFileAndGoesOnToTheOutput) {
    Banco banco(progettoSemplice());
    banco.calcola(relazione);
    EXPECT_FALSE(erroreCalcolo);
    EXPECT_EQ(banco.uscita.relazioni, 1);
    EXPECT_EQ(banco.avanzamento.aperture, 1);
    EXPECT_EQ(banco.avanzamento.chiusure, 1);
    EXPECT_EQ(fileCorrente, banco.progetto());
    const auto fasi = banco.leggi();
    EXPECT_EQ(fasi.size(), 2u);
    EXPECT_EQ(banco.chiusura.fsAzioni, 1.4);
    banco.calcola(Diagramma::momenti);
    EXPECT_EQ(banco.uscita.diagrammi, std::vector{Diagramma::momenti});
}

TEST(CalcoloParatia, RefusesAWallWithoutLengthFirst) {
    auto dati = progettoSemplice();
    dati.lunghezzaParatia = 0;
    dati.nStrati = dati.nFasi = 0;
    Banco banco(dati);
    banco.calcola();
    aspettaRifiuto(banco,
                   "Non è ancora stata definita la lunghezza della paratia, i calcoli non possono "
                   "pertanto essere eseguiti.");
    EXPECT_EQ(fileCorrente, banco.progetto());
}

TEST(CalcoloParatia, RefusesAProjectWithoutLayersThenOneWithoutStages) {
    auto dati = progettoSemplice();
    dati.nStrati = dati.nFasi = 0;
    {
        Banco banco(dati);
        banco.calcola();
        aspettaRifiuto(banco,
                       "Non è ancora stata definita la stratigrafia del terreno, i calcoli non "
                       "possono pertanto essere eseguiti.");
    }
    dati.nStrati = 2;
    Banco banco(dati);
    banco.calcola();
    aspettaRifiuto(banco,
                   "Non sono ancora state definite le fasi di scavo, i calcoli non possono "
                   "pertanto essere eseguiti.");
}

TEST(CalcoloParatia, RefusesBowlesWithALayerWithoutFrictionBeforeAnythingIsWritten) {
    auto dati = progettoSemplice();
    dati.metodoKs = valore(MetodoKs::bowles);
    dati.phiStrato[2] = 0;
    dati.coesione[2] = 4;
    {
        Banco banco(dati);
        test::metti(banco.risultati(), "vecchio");
        banco.calcola();
        aspettaRifiuto(
            banco,
            "Con il metodo scelto per il calcolo di Ks non sono ammessi angoli di attrito nulli.");
        EXPECT_EQ(contenuto(banco.risultati()), "vecchio");
    }
    dati.metodoKs = valore(MetodoKs::costante);
    Banco banco(dati);
    banco.calcola();
    EXPECT_FALSE(erroreCalcolo);
}

TEST(CalcoloParatia, WithoutAStiffnessLeavesTheCurrentNameAtTheResultFile) {
    auto dati = progettoSemplice();
    dati.rigidezzaEJ = 0;
    Banco banco(dati);
    banco.calcola();
    aspettaRifiuto(banco, "Il valore di EJ non è ancora stato definito.");
    // Odd, and to be kept: only this exit does not restore the name.
    EXPECT_EQ(fileCorrente, banco.risultati());
    EXPECT_FALSE(banco.haRisultati());
}

TEST(CalcoloParatia, RefusesAnUnusableNumberOfSegmentsAndRestoresTheName) {
    for (const char* testo : {"0", "2", "250", "50.5", "-50", "molti", ""}) {
        Banco banco(progettoSemplice());
        contenutoNSeg = testo;
        banco.calcola();
        aspettaRifiuto(banco, motivoNSeg());
        EXPECT_EQ(fileCorrente, banco.progetto());
        EXPECT_FALSE(banco.haRisultati());
    }
}

TEST(CalcoloParatia, WithUnchangedDataComputesNothingAgain) {
    Banco banco(progettoSemplice());
    banco.calcola();
    const std::string primo = contenuto(banco.risultati());
    banco.calcola();
    EXPECT_EQ(banco.avanzamento.aperture, 1);
    EXPECT_EQ(banco.uscita.relazioni, 2);
    EXPECT_EQ(contenuto(banco.risultati()), primo);
}

TEST(CalcoloParatia, RunsOnceMoreWhenTheLastStageMovedTheDownhillWaterTable) {
    auto dati = progettoSemplice();
    dati.faldaValle = 0;  // the last stage sets 5
    Banco banco(dati);
    banco.calcola();
    EXPECT_EQ(Progetto.faldaValle, 5);
    banco.calcola();
    EXPECT_EQ(banco.avanzamento.aperture, 2);
    banco.calcola();
    EXPECT_EQ(banco.avanzamento.aperture, 2);
}

// A project that is saved while its run goes on holds the level of the stage.
TEST(CalcoloParatia, HasTheWaterTableOfTheStageInTheProjectWhileItIsComputed) {
    Banco banco(progettoSemplice());
    int fasi = 0;
    banco.avanzamento.adOgniIterazione = [&fasi](const StatoIterazione& stato) {
        EXPECT_EQ(Progetto.faldaValle, stato.fase == 1 ? 3 : 5);
        fasi = stato.fase;
    };
    banco.calcola();
    EXPECT_EQ(fasi, 2);
}

TEST(CalcoloParatia, RunsAnewAfterTheChangeOfASingleNumberButNotOfAHeading) {
    Banco banco(progettoSemplice());
    banco.calcola();
    Progetto.titoli[1] = "Un altro titolo";
    banco.calcola();
    EXPECT_EQ(banco.avanzamento.aperture, 1);
    Progetto.coesione[2] += 0.1;
    banco.calcola();
    EXPECT_EQ(banco.avanzamento.aperture, 2);
    banco.leggi();
    EXPECT_EQ(banco.testa.coesione[2], 0.6);
}

TEST(CalcoloParatia, DoesNotSeeAChangeOfTheNumberOfSegmentsAlone) {
    Banco banco(progettoSemplice());
    banco.calcola();
    banco.segmenti(40);
    banco.calcola();
    EXPECT_EQ(banco.avanzamento.aperture, 1);
    EXPECT_THROW(static_cast<void>(banco.leggi()), base::ErroreFile);
}

TEST(CalcoloParatia, DeletesTheResultsOfAStoppedRunWithoutAMessage) {
    Banco banco(progettoSemplice());
    banco.avanzamento.adOgniIterazione = [](const StatoIterazione& stato) {
        if (stato.fase == 2) stopCalcolo = true;
    };
    banco.calcola();
    EXPECT_TRUE(erroreCalcolo);
    EXPECT_TRUE(banco.dialogo.messaggi.empty());
    EXPECT_FALSE(banco.haRisultati());
    EXPECT_EQ(banco.avanzamento.chiusure, 1);
    EXPECT_EQ(fileCorrente, banco.progetto());
    EXPECT_EQ(banco.uscita.relazioni, 0);

    banco.avanzamento.adOgniIterazione = nullptr;
    banco.calcola();  // the flag of the last stop does not stop this one
    EXPECT_FALSE(erroreCalcolo);
    EXPECT_TRUE(banco.haRisultati());
}

TEST(CalcoloParatia, TellsASingularSystemAndDeletesTheResults) {
    auto dati = progettoSemplice();
    dati.profFase[2] = 30;  // deeper than the wall, and the anchor is the only support left
    dati.tirantiFase[2] = 0;
    Banco banco(dati);
    banco.calcola();
    aspettaRifiuto(banco, messaggioSingolare);
    EXPECT_FALSE(banco.haRisultati());
    EXPECT_EQ(banco.avanzamento.chiusure, 1);
    EXPECT_EQ(fileCorrente, banco.progetto());
}

TEST(CalcoloParatia, RefusesASlopeSteeperThanTheFrictionAngleNamingStageDepthAndCause) {
    for (const double metodo : {1.0, 2.0}) {
        auto dati = progettoSemplice();
        dati.metodoSpinte = metodo;
        dati.inclinazioneMonte = 32;  // above the 30 degrees of the first layer
        Banco banco(dati);
        banco.calcola();
        aspettaRifiuto(banco,
                       "Calcolo interrotto: fase 1, profondità 0 m: coefficienti di spinta non "
                       "definiti: l'inclinazione del terreno supera l'angolo di attrito.");
        EXPECT_FALSE(banco.haRisultati());
    }
}

TEST(CalcoloParatia, NamesTheDepthOfTheFirstNodeWithoutACoefficient) {
    auto dati = progettoSemplice();
    dati.phiStrato[2] = 20;
    dati.inclinazioneMonte = 25;
    Banco banco(dati);  // nodes every 0.24 m; layer 2 begins at 4 m, its first node lies at 4.08 m
    banco.calcola();
    ASSERT_EQ(banco.dialogo.messaggi.size(), 1u);
    EXPECT_NE(banco.dialogo.messaggi[0].testo.find("profondità 4.08 m"), std::string::npos)
        << banco.dialogo.messaggi[0].testo;
}

TEST(CalcoloParatia, AsksAboutTheStiffnessAndTakesTheAnswer) {
    auto dati = progettoSemplice();
    dati.sezione.spessoreDiaframma = 60;
    dati.sezione.modEacciaio = 210000;
    dati.sezione.modEcls = 30000;
    dati.sezione.fyk = 430;
    dati.sezione.fck = 25;
    dati.sezione.copriferroValle = 5;
    dati.sezione.interasseValle = 20;
    dati.sezione.diametroValle = 2;
    Banco banco(dati);
    banco.dialogo.risposte = {base::Risposta::no, base::Risposta::si};
    banco.calcola();
    ASSERT_EQ(banco.dialogo.domande.size(), 1u);
    EXPECT_EQ(Progetto.rigidezzaEJ, 12000);
    banco.leggi();
    EXPECT_LT(banco.chiusura.mrd1, 0);
    EXPECT_GT(banco.chiusura.mrd2, 0);

    banco.calcola();  // asks again, and the answer changes the project: a new run
    EXPECT_EQ(banco.dialogo.domande.size(), 2u);
    EXPECT_GT(Progetto.rigidezzaEJ, 54000);  // the concrete alone gives 30000 * 0.6^3 / 12 * 100
    EXPECT_EQ(banco.avanzamento.aperture, 2);

    banco.calcola();  // equal now: no question
    EXPECT_EQ(banco.dialogo.domande.size(), 2u);
}

// Reads the head of the results back into the project, as the report and the diagrams do.
class UscitaCheRilegge : public UscitaCalcolo {
 public:
    explicit UscitaCheRilegge(int nNodi) : nNodi_(nNodi) {}
    std::vector<std::string> file(analysis::ModoUscita, const std::string&) const override {
        return {};
    }
    void scriviRelazione() override { LettoreRisultati(fileCorrente, nNodi_).leggiTesta(Progetto); }
    void disegnaDiagramma(Diagramma) override { scriviRelazione(); }

 private:
    int nNodi_;
};

TEST(CalcoloParatia, RunsWithCoulombAfterAReportOfRankineOrBellHasReadItsHeadBack) {
    for (const double metodo : {2.0, 3.0}) {
        auto dati = progettoSemplice();
        dati.metodoSpinte = metodo;
        Banco banco(dati);
        UscitaCheRilegge uscita(51);
        CalcoloParatia(relazione, {banco.dialogo, banco.avanzamento, uscita});
        EXPECT_EQ(Progetto.metodoSpinte, 1);
        const std::string primo = contenuto(banco.risultati());
        CalcoloParatia(relazione, {banco.dialogo, banco.avanzamento, uscita});
        EXPECT_EQ(banco.avanzamento.aperture, 2);
        EXPECT_NE(contenuto(banco.risultati()), primo);
        CalcoloParatia(relazione, {banco.dialogo, banco.avanzamento, uscita});
        EXPECT_EQ(banco.avanzamento.aperture, 2);
    }
}

TEST(CalcoloParatia, SetsItsFlagsAtTheStartOfEveryRunAndShowsTheResultsNameToTheOutput) {
    struct Spia : test::UscitaFinta {
        void scriviRelazione() override { nome = fileCorrente; }
        std::string nome;
    } spia;
    Banco banco(progettoSemplice());
    fsAzioni = 0;
    erroreCalcolo = true;
    CalcoloParatia(relazione, {banco.dialogo, banco.avanzamento, spia});
    EXPECT_EQ(fsAzioni, 1.4);
    EXPECT_FALSE(erroreCalcolo);
    EXPECT_EQ(spia.nome, banco.risultati());
    EXPECT_EQ(fileCorrente, banco.progetto());

    fsAzioni = 0;
    Progetto.nFasi = 0;
    CalcoloParatia(relazione, {banco.dialogo, banco.avanzamento, spia});  // refused
    EXPECT_EQ(fsAzioni, 1.4);
    EXPECT_TRUE(erroreCalcolo);
}

TEST(CalcoloParatia, TouchesNoProjectThatIsSavedWhileItRuns) {
    Banco banco(progettoSemplice());
    const std::string salvato = banco.cartella / "salvato.kvd";
    test::metti(salvato, "il progetto");
    for (const bool fermato : {false, true}) {
        banco.avanzamento.adOgniIterazione = [&](const auto&) {
            fileCorrente = salvato;
            if (fermato) stopCalcolo = true;
        };
        fileCorrente = banco.progetto();
        banco.calcola();
        EXPECT_EQ(contenuto(salvato), "il progetto");
        EXPECT_EQ(fileCorrente, salvato);
        EXPECT_EQ(banco.haRisultati(), !fermato);
        base::cancellaFile(banco.risultati());
    }
}

TEST(CalcoloParatia, DoesNotLookAtAStopThatWasAskedForBeforeItsFirstStage) {
    Banco banco(progettoSemplice());
    stopCalcolo = true;
    banco.calcola();
    EXPECT_FALSE(erroreCalcolo);
    EXPECT_FALSE(stopCalcolo);
}

TEST(CalcoloParatia, LeavesNoHalfFileWhenTheFolderIsGone) {
    Banco banco(progettoSemplice());
    fileCorrente = banco.cartella / "manca/muro.kvd";
    EXPECT_THROW(banco.calcola(), base::ErroreFile);
    EXPECT_EQ(fileCorrente, banco.cartella / "manca/muro.kvd");
}

}  // namespace
}  // namespace korven::analysis
