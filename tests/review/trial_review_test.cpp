#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "base/file_error.hpp"
#include "project/project_file.hpp"
#include "review/bench.hpp"
#include "support/sample_sections.hpp"

namespace korven::review {
namespace {

constexpr int massimo = 60;  // iterations of a stage

DatiProgetto conSezione() {
    DatiProgetto d = test::progettoSemplice();
    d.sezione = structure::diaframmaSimmetrico();
    return d;
}

// What a review with its trial answers: can the project be computed?
bool rispostaEsame(const DatiProgetto& dati) {
    return calcolabile(esaminaProgetto(dati)) && !provaCalcolo(dati, massimo);
}

bool corsaRiesce(const DatiProgetto& dati) {
    test::Banco banco(dati, 5);
    banco.avanzamento.adOgniIterazione = [](const analysis::StatoIterazione& stato) {
        if (!stato.convergente && stato.iterazione >= massimo) analysis::stopCalcolo = true;
    };
    banco.calcola();
    return !analysis::erroreCalcolo;
}

std::vector<std::string> righeDi(const DatiProgetto& dati) {
    std::istringstream flusso(project::testoProgetto(dati));
    std::vector<std::string> righe;
    for (std::string riga; std::getline(flusso, riga);) righe.push_back(riga + '\n');
    return righe;
}

// Nothing for a count that is none.
std::optional<DatiProgetto> letto(const std::string& percorso,
                                  const std::vector<std::string>& righe) {
    std::string tutto;
    for (const auto& riga : righe) tutto += riga;
    test::metti(percorso, tutto);
    try {
        DatiProgetto dati;
        auto file = base::LettoreRighe::apri(percorso);
        project::leggiDati(file, dati);
        return dati;
    } catch (const base::ErroreFile&) {
        return {};
    } catch (const base::ErroreIndice&) {
        return {};
    }
}

// Each line of a project set to one odd value after the other; lines of text are left out by what
// they hold.
TEST(ProvaCalcolo, AnswersAsARunDoesForOddValuesOfEveryField) {
    const test::CartellaProvvisoria cartella;
    const auto righe = righeDi(conSezione());
    std::set<bool> risposte;
    int provati = 0;
    constexpr const char* strani[] = {"99", "1e20", "-1e300", "0", "-1"};
    for (std::size_t i = 0; i < righe.size(); ++i) {
        if (righe[i].find_first_of("0123456789") != 0 && righe[i] != ".5\r\n") continue;
        for (std::size_t k = i; k < i + 2; ++k) {  // two of them each, since a run writes its file
            const std::string valore = strani[k % std::size(strani)];
            auto testo = righe;
            testo[i] = valore + "\r\n";
            const auto dati = letto(cartella / "p.kvd", testo);
            if (!dati) continue;
            analysis::contenutoNSeg = "5";
            const bool esame = rispostaEsame(*dati);
            EXPECT_EQ(esame, corsaRiesce(*dati)) << "line " << i + 1 << ": " << valore;
            risposte.insert(esame);
            ++provati;
        }
    }
    analysis::contenutoNSeg.reset();
    EXPECT_EQ(risposte.size(), 2u);
    EXPECT_GT(provati, 100);
}

TEST(ProvaCalcolo, NamesTheStageThatNoEquilibriumHolds) {
    auto d = test::progettoSemplice();
    d.nTiranti = 0;
    d.tirantiFase[2] = 0;
    d.profFase[2] = 11.9;  // dug out to the toe
    analysis::contenutoNSeg = "10";
    analysis::FineCorsa fine;
    const auto motivo = provaCalcolo(d, massimo, &fine);
    analysis::contenutoNSeg.reset();
    EXPECT_EQ(fine.modo, analysis::ModoFine::singolare);
    EXPECT_EQ(fine.fase, 2);
    ASSERT_TRUE(motivo);
    EXPECT_TRUE(motivo->impedisce());
    EXPECT_TRUE(motivo->testo.starts_with("fase 2: La geometria assegnata al diaframma"))
        << motivo->testo;
}

TEST(ProvaCalcolo, FindsNothingInASoundProjectAndTakesAMissingStiffnessFromTheSection) {
    analysis::contenutoNSeg = "10";
    EXPECT_FALSE(provaCalcolo(test::progettoSemplice(), massimo));
    auto d = conSezione();
    d.rigidezzaEJ = 0;
    analysis::FineCorsa fine{analysis::ModoFine::rifiutata};
    EXPECT_FALSE(provaCalcolo(d, massimo, &fine));
    EXPECT_EQ(fine.modo, analysis::ModoFine::compiuta);
    analysis::contenutoNSeg.reset();
}

TEST(ProvaCalcolo, TellsHowItEndedWhereItHasNoSegmentsOrNoRest) {
    analysis::FineCorsa fine;
    analysis::contenutoNSeg = "2";
    EXPECT_TRUE(provaCalcolo(test::progettoSemplice(), massimo, &fine));
    EXPECT_EQ(fine.modo, analysis::ModoFine::rifiutata);
    analysis::contenutoNSeg = "10";
    EXPECT_TRUE(provaCalcolo(test::progettoSemplice(), 3, &fine));
    EXPECT_EQ(fine.modo, analysis::ModoFine::oltreLimite);
    analysis::contenutoNSeg.reset();
}

TEST(Mostrabile, IsAProjectWhoseValuesAreNumbersInTheUnitOfTheReport) {
    EXPECT_TRUE(mostrabile(conSezione()));
    for (double DatiProgetto::*campo : {&DatiProgetto::sforzoNormale, &DatiProgetto::forzaTesta}) {
        auto d = conSezione();
        d.*campo = 1e308;
        EXPECT_FALSE(mostrabile(d));
    }
}

TEST(ProvaCalcolo, PartsWhatFlipsInAStageWithoutRest) {
    const auto rilievo = provaCalcolo(test::progettoSemplice(), 3);
    ASSERT_TRUE(rilievo);
    const std::string testo = rilievo->testo;
    const auto inizio = testo.find("cambiano stato: ");
    ASSERT_NE(inizio, std::string::npos) << testo;
    EXPECT_NE(testo.find("; ", inizio), std::string::npos) << testo;
    EXPECT_EQ(testo.find('\n'), std::string::npos) << testo;
}

}  // namespace
}  // namespace korven::review
