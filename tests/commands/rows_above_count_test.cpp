// A table that was shortened keeps what its last rows held. Nothing that computes, prints or draws
// may see them.

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "commands/diagram_output.hpp"
#include "commands/report_files.hpp"
#include "drawings/diagram_rows.hpp"
#include "drawings/log/stratigraphic_log.hpp"
#include "masks/edited_tables.hpp"
#include "results/run_outcome.hpp"
#include "review/project_review.hpp"
#include "support/log_setup.hpp"
#include "support/run_harness.hpp"
#include "support/sample_projects.hpp"

namespace korven::commands {
namespace {

using project::DatiProgetto;

// Two anchors are counted on in the second stage, and one is described.
DatiProgetto pulito() {
    DatiProgetto d = test::progettoSemplice();
    d.tirantiFase[2] = 2;
    return d;
}

DatiProgetto conResti() {
    DatiProgetto d = pulito();
    d.profTirante[2] = 3;
    d.rigTirante[2] = 800;
    d.pretTirante[2] = 10;
    d.profFase[3] = 8;
    d.tirantiFase[3] = 2;
    d.sovraccFase[3] = 3;
    d.faldaFase[3] = 1;
    d.profStrato[3] = 7;
    d.gammaN[3] = d.gammaSat[3] = 2.5;
    d.phiStrato[3] = 45;
    d.coesione[3] = d.suStrato[3] = 40;
    d.ksStrato[3] = 90000;
    d.descrStrato[3] = "3C5 Resto";
    return d;
}

class RigheOltreIlConteggio : public test::ProvaStratigrafia {
 protected:
    // All that comes out of a project, part by part.
    static std::vector<std::string> tuttoDi(const DatiProgetto& dati) {
        test::Banco banco(dati, 20);
        std::vector<std::string> parti;
        const auto corri = [&](analysis::ModoUscita modoUscita, analysis::UscitaCalcolo& uscita) {
            analysis::CalcoloParatia(modoUscita, {banco.dialogo, banco.avanzamento, uscita});
            EXPECT_FALSE(analysis::erroreCalcolo);
        };
        UscitaRelazione relazione(true);
        corri(analysis::relazione, relazione);
        parti.push_back(test::contenuto(banco.risultati()));
        parti.push_back(test::contenuto(relazione.relazione()));
        for (const auto& tirante : results::leggiEsito().tiranti)
            parti.push_back(std::to_string(tirante.tirante) + ": " +
                            std::to_string(tirante.tiroMassimo));
        UscitaDiagramma diagramma;
        for (const auto& riga : drawings::diagrammi()) {
            corri(riga.diagramma, diagramma);
            parti.push_back(test::disegnoComeTesto());
        }
        drawings::disegnaStratigrafia(project::Progetto);
        parti.push_back(test::disegnoComeTesto());
        for (const auto& rilievo : review::esaminaProgetto(project::Progetto))
            parti.push_back(rilievo.testo);
        return parti;
    }
};

TEST_F(RigheOltreIlConteggio, ChangeNothingThatComesOutOfAProject) {
    const auto attese = tuttoDi(pulito());
    const auto trovate = tuttoDi(conResti());
    ASSERT_EQ(trovate.size(), attese.size());
    for (std::size_t i = 0; i < attese.size(); ++i) EXPECT_EQ(trovate[i], attese[i]) << i;
}

TEST_F(RigheOltreIlConteggio, AreWhatATableTakenBackShorterLeaves) {
    DatiProgetto d = pulito();
    masks::riprendiTiranti(d, {"2", "1.5", "5000", "50", "0", "3", "8000", "100", "0"});
    const auto due = tuttoDi(d);
    masks::riprendiTiranti(d, {"1", "1.5", "5000", "50", "0"});
    EXPECT_EQ(d.rigTirante[2], 800);  // the table keeps it
    EXPECT_EQ(tuttoDi(d), tuttoDi(pulito()));
    EXPECT_NE(due, tuttoDi(pulito()));
}

}  // namespace
}  // namespace korven::commands
