#include "analysis/run_files.hpp"

#include <gtest/gtest.h>

#include <stdexcept>

#include "base/file_error.hpp"
#include "support/failing_disk.hpp"
#include "support/progress_double.hpp"
#include "support/run_harness.hpp"
#include "support/sample_projects.hpp"

namespace korven::analysis {
namespace {

using project::fileCorrente;
using test::Banco;
using test::progettoSemplice;

// Full in the head of the result file, after it, and in a table of a stage.
TEST(FileInCorso, LeavesNoHalfFileOnAFullDisk) {
    for (const std::size_t byte : {100u, 3000u, 8000u}) {
        Banco banco(progettoSemplice());
        const test::DiscoPieno disco(byte);
        try {
            CalcoloParatia(relazione,
                           {banco.dialogo, banco.avanzamento, banco.uscita, nullptr, disco});
            ADD_FAILURE() << byte;
        } catch (const base::ErroreScrittura& errore) {
            EXPECT_EQ(errore.percorso(), banco.risultati()) << byte;
            EXPECT_NE(errore.atteso().find(test::nonCeSpazio), std::string::npos);
        }
        EXPECT_EQ(disco.spazio, 0u) << "the disk was not filled";
        EXPECT_FALSE(banco.haRisultati()) << byte;
        EXPECT_EQ(fileCorrente, banco.progetto()) << byte;
        EXPECT_EQ(banco.avanzamento.aperture, banco.avanzamento.chiusure) << byte;
        EXPECT_EQ(banco.uscita.relazioni, 0) << byte;
    }
}

// The result file that is there belongs to another wall: it goes with the first call, and no half
// of the new one may take its place.
TEST(FileInCorso, LeavesNoHalfFileWhicheverCallOfTheDiskFails) {
    const test::DiscoContato intatto;
    std::string nuovo;
    {
        Banco banco(progettoSemplice());
        CalcoloParatia(relazione,
                       {banco.dialogo, banco.avanzamento, banco.uscita, nullptr, intatto});
        nuovo = test::contenuto(banco.risultati());
    }
    ASSERT_GT(intatto.chiamate.size(), 9u);
    for (std::size_t quale = 1; quale <= intatto.chiamate.size(); ++quale) {
        Banco banco(progettoSemplice());
        const test::DiscoContato disco(quale);
        std::string motivo;
        try {
            CalcoloParatia(relazione,
                           {banco.dialogo, banco.avanzamento, banco.uscita, nullptr, disco});
        } catch (const base::ErroreFile& errore) {
            motivo = errore.atteso();
        }
        const std::string& chiamata = intatto.chiamate[quale - 1];
        if (chiamata.ends_with("cartella")) {
            EXPECT_EQ(motivo, "");
            EXPECT_EQ(test::contenuto(banco.risultati()), nuovo);
        } else {
            EXPECT_NE(motivo.find("errore del disco"), std::string::npos) << quale << chiamata;
            EXPECT_FALSE(banco.haRisultati()) << quale << chiamata;
            EXPECT_EQ(banco.uscita.relazioni, 0) << quale << chiamata;
        }
    }
}

TEST(FileInCorso, TakesTheProgressDisplayAlongWhenTheRunDoesNotFinish) {
    Banco banco(progettoSemplice());
    fileCorrente = banco.risultati();
    {
        FileInCorso file(banco.avanzamento, base::discoDiSistema());
        file.aggiungi("una fase\r\n");
        EXPECT_TRUE(banco.haRisultati());
        EXPECT_EQ(banco.avanzamento.chiusure, 0);
    }
    EXPECT_FALSE(banco.haRisultati());
    EXPECT_EQ(banco.avanzamento.chiusure, 1);
}

TEST(FileInCorso, StaysWhenItIsFinished) {
    Banco banco(progettoSemplice());
    fileCorrente = banco.risultati();
    {
        FileInCorso file(banco.avanzamento, base::discoDiSistema());
        file.finito();
    }
    EXPECT_TRUE(banco.haRisultati());
}

// The project may be saved under another name while events are served.
TEST(NomeRisultati, LeavesANameAloneThatWasGivenMeanwhile) {
    Banco banco(progettoSemplice());
    {
        const NomeRisultati nome;
        EXPECT_EQ(fileCorrente, banco.risultati());
        fileCorrente = banco.cartella / "altro.kvd";
    }
    EXPECT_EQ(fileCorrente, banco.cartella / "altro.kvd");
}

// A window that can't be opened ends the run before its first number.
TEST(FileInCorso, LeavesNoResultFileWhereTheProgressCannotBegin) {
    class SenzaFinestra : public test::AvanzamentoFinto {
        void apri() override { throw std::runtime_error("no window"); }
    };
    Banco banco(progettoSemplice());
    SenzaFinestra avanzamento;
    EXPECT_THROW(CalcoloParatia(relazione, {banco.dialogo, avanzamento, banco.uscita, nullptr}),
                 std::runtime_error);
    EXPECT_FALSE(banco.haRisultati());
    EXPECT_EQ(fileCorrente, banco.progetto());
}

}  // namespace
}  // namespace korven::analysis
