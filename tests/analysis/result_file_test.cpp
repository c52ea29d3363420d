#include "analysis/result_file.hpp"

#include <gtest/gtest.h>

#include <algorithm>

#include "base/file_error.hpp"
#include "base/number_text.hpp"
#include "project/project_file.hpp"
#include "support/run_arrays_setup.hpp"
#include "support/run_harness.hpp"
#include "support/sample_projects.hpp"
#include "support/wall_builder.hpp"

namespace korven::analysis {
namespace {

using test::Banco;
using test::contenuto;
using test::metti;
using test::progettoSemplice;

std::vector<std::string> righe(const std::string& testo) {
    std::vector<std::string> tutte;
    for (std::size_t da = 0; da < testo.size();) {
        const std::size_t fine = testo.find("\r\n", da);
        tutte.push_back(testo.substr(da, fine - da));
        da = fine == std::string::npos ? testo.size() : fine + 2;
    }
    return tutte;
}

project::DatiProgetto progettoDiFasi(int nFasi, double vincoloPiede = 1) {
    auto dati = progettoSemplice();
    dati.vincoloPiede = vincoloPiede;
    dati.nFasi = 0;
    for (int k = 1; k <= nFasi; ++k)
        test::aggiungiFase(dati, {.scavo = 1 + 0.5 * k, .tiranti = 1, .falda = 5});
    return dati;
}

// Lines of the result file after its head.
std::vector<std::string> codaDi(const Banco& banco, const project::DatiProgetto& testa) {
    auto tutte = righe(contenuto(banco.risultati()));
    const auto n = righe(project::testoProgetto(testa)).size();
    return {tutte.begin() + static_cast<long>(n), tutte.end()};
}

TEST(FileRisultati, HoldsFiftyTwoLinesAStageOfFiftySegmentsAndFiveMore) {
    for (const double piede : {1.0, 3.0}) {  // the node that a fixed toe adds is not written
        const auto dati = progettoDiFasi(3, piede);
        Banco banco(dati);
        banco.calcola();
        ASSERT_FALSE(erroreCalcolo);
        const auto coda = codaDi(banco, dati);
        EXPECT_EQ(coda.size(), 3u * (1 + 51) + 5u) << piede;
        for (std::size_t i = 0; i < 3 * 52; ++i) {
            const bool nomi = i % 52 == 0;
            EXPECT_EQ(coda[i].starts_with("sigmaVv"), nomi) << i;
            EXPECT_EQ(std::count(coda[i].begin(), coda[i].end(), ','), nomi ? 0 : 12) << i;
            if (!nomi) {
                EXPECT_EQ(coda[i].find(' '), std::string::npos) << i;
            }
        }
    }
}

TEST(FileRisultati, BeginsWithTheProjectAsTheRunFoundIt) {
    auto dati = progettoSemplice();
    dati.faldaValle = 1.25;  // the stages set it to 5
    Banco banco(dati);
    banco.calcola();
    EXPECT_TRUE(contenuto(banco.risultati()).starts_with(project::testoProgetto(dati)));
}

TEST(TestoFase, PadsEachColumnNameToFourteenWithoutBlanksAfterTheLast) {
    EXPECT_EQ(righe(testoFase({}, 5))[0],
              "sigmaVv       Ehv           k0v           kav           kpv           "
              "sigmaVm       Ehm           k0m           kam           kpm           "
              "Spostamenti   Momenti");
}

TEST(TestoFase, WritesThirteenNumbersANodeInTheOrderOfTheColumns) {
    RisultatiFase r;
    double valore = 0;
    for (auto* colonna : {&r.sigmaVv, &r.Ehv, &r.k0v, &r.kav, &r.kpv, &r.sigmaVm, &r.Ehm, &r.k0m,
                          &r.kam, &r.kpm, &r.yNodo, &r.momentoNodo, &r.taglioNodo})
        (*colonna)[3] = ++valore;
    const auto testo = righe(testoFase(r, 5));
    ASSERT_EQ(testo.size(), 6u);
    EXPECT_EQ(testo[1], "0,0,0,0,0,0,0,0,0,0,0,0,0");
    EXPECT_EQ(testo[3], "1,2,3,4,5,6,7,8,9,10,11,12,13");
}

TEST(TestoFase, RoundsToSevenDecimals) {
    RisultatiFase r;
    r.yNodo[1] = 0.00000005;
    r.momentoNodo[1] = -12.345678949;
    r.taglioNodo[1] = -0.00000004;
    EXPECT_TRUE(righe(testoFase(r, 5))[1].ends_with(",0.0000001,-12.3456789,0"))
        << righe(testoFase(r, 5))[1];
}

TEST(TestoChiusura, WritesTheResistanceOfPositiveCurvatureFirst) {
    ChiusuraRisultati c;
    c.mrd2 = 2000;
    c.mrd1 = -1000;
    c.mMaxTotale = 30.5;
    c.mMinTotale = -40.25;
    c.fsAzioni = 1.4;
    EXPECT_EQ(testoChiusura(c), "2000\r\n-1000\r\n30.5\r\n-40.25\r\n1.4\r\n");
}

TEST(FileRisultati, EndsWithTheExtremeMomentsOfAllStagesAndNoResistanceWithoutASection) {
    Banco banco(progettoDiFasi(3));
    banco.calcola();
    const auto fasi = banco.leggi();
    double massimo = -1e30, minimo = 1e30;
    for (const auto& fase : fasi)
        for (int i = 1; i <= 51; ++i) {
            massimo = std::max(massimo, fase.momentoNodo[i]);
            minimo = std::min(minimo, fase.momentoNodo[i]);
        }
    EXPECT_EQ(banco.chiusura.mMaxTotale, massimo);
    EXPECT_EQ(banco.chiusura.mMinTotale, minimo);
    EXPECT_EQ(banco.chiusura.mrd1, 0);
    EXPECT_EQ(banco.chiusura.mrd2, 0);
    EXPECT_EQ(banco.chiusura.fsAzioni, 1.4);
}

TEST(FileRisultati, GrowsByAWholeStageAtATime) {
    const auto dati = progettoDiFasi(3);
    Banco banco(dati, 12);
    std::vector<std::size_t> lunghezze;
    banco.avanzamento.adOgniIterazione = [&](const StatoIterazione& stato) {
        if (stato.iterazione == 1) lunghezze.push_back(codaDi(banco, dati).size());
    };
    banco.calcola();
    EXPECT_EQ(lunghezze, (std::vector<std::size_t>{0, 14, 28}));
    EXPECT_EQ(codaDi(banco, dati).size(), 3u * 14u + 5u);
}

TEST(FileRisultati, LeftPartialIsTakenForAFinishedOneAndFailsOnlyWhenRead) {
    Banco banco(progettoSemplice());
    banco.calcola();
    const auto tutto = contenuto(banco.risultati());
    const auto tutte = righe(tutto);
    // As a crash leaves it: the head and one finished stage.
    std::string parziale;
    for (std::size_t i = 0; i < tutte.size() - 5 - 52; ++i) parziale += tutte[i] + "\r\n";
    metti(banco.risultati(), parziale);
    banco.calcola();
    EXPECT_FALSE(erroreCalcolo);
    EXPECT_EQ(banco.avanzamento.aperture, 1);  // nothing was computed anew
    EXPECT_EQ(contenuto(banco.risultati()), parziale);
    EXPECT_THROW(banco.leggi(), base::ErroreFile);
}

TEST(LettoreRisultati, RefusesAFileCutShortAtAnyLine) {
    Banco banco(progettoSemplice(), 12);
    banco.calcola();
    ASSERT_NO_THROW(banco.leggi());
    const auto tutte = righe(contenuto(banco.risultati()));
    std::string parte;
    for (std::size_t i = 0; i + 1 < tutte.size(); ++i) {
        parte += tutte[i] + "\r\n";
        metti(banco.risultati(), parte);
        EXPECT_THROW(banco.leggi(), base::ErroreFile) << "after line " << i + 1;
    }
}

TEST(LettoreRisultati, RefusesAFileWrittenUnderAnotherNumberOfSegments) {
    const int segmenti[] = {3, 4, 12, 25, 50, 51, 100};
    for (const int nFasi : {1, 2, 3})
        for (const int scritti : segmenti) {
            Banco banco(progettoDiFasi(nFasi, 2), scritti);
            banco.calcola();
            ASSERT_FALSE(erroreCalcolo) << nFasi << ' ' << scritti;
            for (const int letti : segmenti) {
                banco.segmenti(letti);
                if (letti == scritti) {
                    EXPECT_NO_THROW(banco.leggi());
                    continue;
                }
                EXPECT_THROW(banco.leggi(), base::ErroreFile)
                    << nFasi << " stages, " << scritti << " read as " << letti;
            }
        }
}

TEST(LettoreRisultati, TellsTheFileTheLineAndTheRemedy) {
    Banco banco(progettoSemplice(), 12);
    banco.calcola();
    banco.segmenti(20);
    const auto testa = righe(project::testoProgetto(progettoSemplice())).size();
    try {
        banco.leggi();
        FAIL() << "no error";
    } catch (const base::ErroreFile& errore) {
        const std::string testo = errore.what();
        EXPECT_NE(testo.find(banco.risultati()), std::string::npos) << testo;
        // names of stage 1, its 13 nodes, then the names of stage 2 where a node is due
        EXPECT_NE(testo.find(std::to_string(testa + 15)), std::string::npos) << testo;
        EXPECT_NE(testo.find("nseg.txt"), std::string::npos) << testo;
    }
}

TEST(LettoreRisultati, RefusesAHeadThatLosesCount) {
    Banco banco(progettoSemplice(), 12);
    banco.calcola();
    const auto tutte = righe(contenuto(banco.risultati()));
    const auto testa = righe(project::testoProgetto(progettoSemplice())).size();
    for (const bool manca : {true, false}) {  // a line less, a line more at the end of the head
        std::string testo;
        for (std::size_t i = 0; i < tutte.size(); ++i) {
            if (i + 1 == testa && manca) continue;
            testo += tutte[i] + "\r\n";
            if (i + 1 == testa) testo += "0\r\n";
        }
        metti(banco.risultati(), testo);
        EXPECT_THROW(banco.leggi(), base::ErroreFile) << manca;
    }
}

TEST(LettoreRisultati, RefusesANodeLineThatIsNotThirteenNumbers) {
    Banco banco(progettoSemplice(), 12);
    banco.calcola();
    const auto buono = contenuto(banco.risultati());
    const auto tutte = righe(buono);
    const std::string nodo = tutte[tutte.size() - 6];  // the last node of the last stage
    const auto inizio = buono.rfind(nodo);
    for (const std::string& rotta :
         {nodo + ",1", nodo.substr(0, nodo.rfind(',')), nodo.substr(0, nodo.rfind(',')) + ",",
          "x" + nodo, nodo.substr(0, nodo.rfind(',')) + ",molto", std::string()}) {
        auto testo = buono;
        metti(banco.risultati(), testo.replace(inizio, nodo.size(), rotta));
        EXPECT_THROW(banco.leggi(), base::ErroreFile) << rotta;
    }
}

TEST(LettoreRisultati, RefusesLinesAfterTheClosingNumbers) {
    Banco banco(progettoSemplice(), 12);
    banco.calcola();
    const auto buono = contenuto(banco.risultati());
    metti(banco.risultati(), buono + "7\r\n");
    EXPECT_THROW(banco.leggi(), base::ErroreFile);
    metti(banco.risultati(), buono.substr(0, buono.size() - 2));  // the last line end may lack
    EXPECT_NO_THROW(banco.leggi());
}

TEST(LettoreRisultati, KeepsTheHeadingsInMemoryAndTakesTheRestOfTheHead) {
    Banco banco(progettoSemplice());
    banco.calcola();
    LettoreRisultati file(banco.risultati(), 51);
    project::DatiProgetto dati;
    dati.titoli[1] = "In memoria";
    file.leggiTesta(dati);
    EXPECT_EQ(dati.titoli[1], "In memoria");
    EXPECT_EQ(dati.lunghezzaParatia, 12);
    EXPECT_EQ(dati.faldaFase[2], 5);
}

TEST(LettoreRisultati, ReadsBackWhatWasWritten) {
    const auto dati = progettoSemplice();
    Banco banco(dati, 12);
    banco.calcola();
    const auto coda = codaDi(banco, dati);
    const auto fasi = banco.leggi();
    for (std::size_t k = 0; k < 2; ++k)
        for (std::size_t i = 1; i <= 13; ++i) {
            const auto& f = fasi[k];
            std::string riga;
            for (const auto* colonna :
                 {&f.sigmaVv, &f.Ehv, &f.k0v, &f.kav, &f.kpv, &f.sigmaVm, &f.Ehm, &f.k0m, &f.kam,
                  &f.kpm, &f.yNodo, &f.momentoNodo, &f.taglioNodo})
                riga.append(base::formattaNumero((*colonna)[static_cast<long>(i)])).append(",");
            riga.pop_back();
            EXPECT_EQ(riga, coda[k * 14 + i]);
        }
}

}  // namespace
}  // namespace korven::analysis
