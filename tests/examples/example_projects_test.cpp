#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <filesystem>
#include <map>
#include <set>

#include "base/code_page.hpp"
#include "base/folders/program_folder.hpp"
#include "drawings/hatch_library.hpp"
#include "drawings/log/layer_description.hpp"
#include "project/project_file.hpp"
#include "report/calculation_report.hpp"
#include "results/report_data.hpp"
#include "review/project_review.hpp"
#include "support/run_harness.hpp"

namespace korven {
namespace {

namespace fs = std::filesystem;
using project::DatiProgetto;
using test::Banco;
using test::contenuto;

const std::string cartella = KORVEN_EXAMPLES;

std::vector<std::string> nomi() {
    std::vector<std::string> trovati;
    for (const auto& file : fs::directory_iterator(cartella))
        if (file.path().extension() == ".kvd") trovati.push_back(file.path().stem().string());
    std::sort(trovati.begin(), trovati.end());
    return trovati;
}

std::string percorso(const std::string& nome) { return cartella + "/" + nome + ".kvd"; }

DatiProgetto leggi(const std::string& nome) {
    auto dati = std::make_unique<DatiProgetto>();
    project::azzera(*dati);
    auto file = base::LettoreRighe::apri(percorso(nome));
    project::leggiDati(file, *dati);
    return *dati;
}

std::string relazione(Banco& banco) {
    const auto dati = results::leggiRisultati(banco.risultati(), project::Progetto);
    return report::testoRelazione(dati, "muro.kvd");
}

class Esempio : public testing::TestWithParam<std::string> {};

TEST_P(Esempio, ReadsAndWritesBackToTheSameBytes) {
    EXPECT_EQ(base::inCp1252(project::testoProgetto(leggi(GetParam()))),
              contenuto(percorso(GetParam())));
}

TEST_P(Esempio, LiesInTheProgramFolderToo) {
    const std::string copia =
        std::string(KORVEN_PROGRAM_FOLDER) + "/data/ita/" + GetParam() + ".kvd";
    ASSERT_TRUE(base::esisteFile(copia));
    EXPECT_EQ(contenuto(copia), contenuto(percorso(GetParam())));
}

// What each example is told. Typed moduli that the method does not read are there for who tries
// another one, the undrained strengths of the soft clay to be drawn, and one has rising ground.
const std::map<std::string, std::vector<std::string_view>> detto = {
    {"diaframma_due_ordini", {"tirante-spostato", "valore-senza-effetto"}},
    {"diaframma_piede_roccia", {"riposo-del-pendio"}},
    {"paratia_lunga_incastro", {"tirante-spostato", "su-non-usata"}},
    {"pali_armati_staffe", {"ks-ultimo-strato", "ferri-scritti-e-calcolati"}},
    {"trincea_puntellata", {"valore-senza-effetto"}},
};

std::vector<std::string_view> codici(const DatiProgetto& dati) {
    std::vector<std::string_view> trovati;
    for (const auto& osservazione : review::esaminaProgetto(dati))
        trovati.push_back(osservazione.codice);
    return trovati;
}

TEST_P(Esempio, CanBeComputedAndIsToldLittle) {
    const auto attesi = detto.find(GetParam());
    EXPECT_EQ(codici(leggi(GetParam())),
              attesi == detto.end() ? std::vector<std::string_view>{} : attesi->second);
}

TEST_P(Esempio, HasHeadingsAndLayersWithAHatchOfTheLibraryAndAName) {
    const std::string prima = base::cartellaProgramma();
    base::impostaCartellaProgramma(KORVEN_PROGRAM_FOLDER);
    const auto& campiture = drawings::campiture();
    base::impostaCartellaProgramma(prima);
    const DatiProgetto dati = leggi(GetParam());
    EXPECT_FALSE(dati.titoli[1].empty());
    for (int j = 1; j <= dati.nStrati; ++j) {
        const auto strato = drawings::leggiDescrizione(dati.descrStrato[j]);
        EXPECT_GT(strato.testo.size(), 5u) << dati.descrStrato[j];
        EXPECT_LE(strato.colore, 5) << "colours above 5 are those of the stages";
        ASSERT_GT(strato.campitura, 0) << dati.descrStrato[j];
        for (int codice = static_cast<int>(strato.campitura); codice > 0; codice /= 1000)
            EXPECT_GT(campiture[codice % 100].nTratti, 0) << dati.descrStrato[j];
    }
}

// The headings of the log are so close that of lines next to each other the upper one is cut.
TEST_P(Esempio, LeavesEmptyTheHeadingsThatWouldTouchInTheLog) {
    const DatiProgetto dati = leggi(GetParam());
    EXPECT_FALSE(dati.titoli[4].empty());
    for (const int i : {2, 3, 5, 6}) EXPECT_EQ(dati.titoli[i], "");
}

// The projects of all languages as the build lays them, with their translated texts and names.
TEST(Esempi, AreToldTheSameInEveryLanguage) {
    std::vector<std::vector<std::string_view>> italiani;
    for (const auto& nome : nomi()) italiani.push_back(codici(leggi(nome)));
    std::sort(italiani.begin(), italiani.end());
    for (const char* lingua : {"ita", "deu", "fra", "esp", "eng", "por"}) {
        std::vector<std::vector<std::string_view>> trovati;
        for (const auto& voce : std::filesystem::directory_iterator(
                 std::string(KORVEN_PROGRAM_FOLDER) + "/data/" + lingua)) {
            if (voce.path().extension() != ".kvd") continue;
            const auto dati = std::make_unique<DatiProgetto>();
            project::azzera(*dati);
            auto file = base::LettoreRighe::apri(voce.path().string());
            project::leggiDati(file, *dati);
            trovati.push_back(codici(*dati));
        }
        std::sort(trovati.begin(), trovati.end());
        EXPECT_EQ(trovati, italiani) << lingua;
    }
}

// Their labels would lie one over the other in the first diagram that a new user sees.
TEST(Esempi, TheFirstOneDigsDeeperInEachStage) {
    const DatiProgetto dati = leggi("diaframma_due_ordini");
    for (int k = 1; k <= dati.nFasi; ++k) EXPECT_GT(dati.profFase[k], dati.profFase[k - 1]) << k;
}

TEST_P(Esempio, ComesToRestInFewIterationsWithoutAQuestion) {
    Banco banco(leggi(GetParam()));
    int piuLenta = 0;
    banco.avanzamento.adOgniIterazione = [&](const analysis::StatoIterazione& stato) {
        piuLenta = std::max(piuLenta, stato.iterazione);
        if (stato.iterazione > 60) analysis::stopCalcolo = true;
    };
    banco.calcola();
    EXPECT_FALSE(analysis::erroreCalcolo);
    EXPECT_LE(piuLenta, 60);
    EXPECT_TRUE(banco.dialogo.domande.empty());  // EJ is that of the section
    EXPECT_TRUE(banco.dialogo.messaggi.empty());
}

TEST_P(Esempio, MovesByMillimetresOrCentimetresAndBendsWithinReason) {
    Banco banco(leggi(GetParam()));
    banco.calcola();
    for (const auto& fase : banco.leggi()) {
        double spostamento = 0;
        double momento = 0;
        for (int i = 1; i <= 51; ++i) {
            spostamento = std::max(spostamento, std::fabs(fase.yNodo[i]));
            momento = std::max(momento, std::fabs(fase.momentoNodo[i]));
        }
        EXPECT_GT(spostamento, 0.0002);
        EXPECT_LT(spostamento, 0.05);
        EXPECT_GT(momento, 0.1);
        EXPECT_LT(momento, 200);
    }
}

TEST_P(Esempio, HasAnUpToDateResultFileAfterOneRun) {
    Banco banco(leggi(GetParam()));
    banco.calcola();
    const int iterazioni = banco.avanzamento.iterazioni;
    banco.calcola();
    EXPECT_EQ(banco.avanzamento.iterazioni, iterazioni);
}

INSTANTIATE_TEST_SUITE_P(Cartella, Esempio, testing::ValuesIn(nomi()),
                         [](const auto& esempio) { return esempio.param; });

// What each example is there to show.

TEST(Esempi, TheReinforcedPilesHaveTooFewStirrupsButCarryTheMoment) {
    Banco banco(leggi("pali_armati_staffe"));
    banco.calcola();
    const std::string testo = relazione(banco);
    EXPECT_NE(testo.find("Rottura dell'armatura d'anima"), std::string::npos);
    EXPECT_EQ(testo.find("Rottura delle bielle"), std::string::npos);
    EXPECT_EQ(testo.find("NON VERIFICATE"), std::string::npos);
}

TEST(Esempi, TheOthersAreVerified) {
    for (const auto& nome : nomi()) {
        Banco banco(leggi(nome));
        banco.calcola();
        const std::string testo = relazione(banco);
        EXPECT_NE(testo.find("Condizioni di sicurezza verificate"), std::string::npos) << nome;
        EXPECT_EQ(testo.find("NON VERIFICATE"), std::string::npos) << nome;
    }
}

TEST(Esempi, ShowEverySectionEveryRestraintAndEveryMethodOfKs) {
    std::map<std::string, std::vector<double>> visti;
    int sezioni[4] = {};
    for (const auto& nome : nomi()) {
        const DatiProgetto dati = leggi(nome);
        visti["testa"].push_back(dati.vincoloTesta);
        visti["piede"].push_back(dati.vincoloPiede);
        visti["ks"].push_back(dati.metodoKs);
        const bool tipi[] = {dati.sezione.tipoDiaframma, dati.sezione.tipoPali,
                             dati.sezione.tipoPalancola, dati.sezione.tipoPaliArmati};
        for (int i = 0; i < 4; ++i) sezioni[i] += tipi[i];
    }
    const auto mostra = [&](const char* che, double codice) {
        const auto& codici = visti[che];
        return std::find(codici.begin(), codici.end(), codice) != codici.end();
    };
    EXPECT_TRUE(mostra("testa", 1) && mostra("testa", 2));
    EXPECT_TRUE(mostra("piede", 1) && mostra("piede", 2) && mostra("piede", 3));
    for (int metodo = 1; metodo <= 4; ++metodo) EXPECT_TRUE(mostra("ks", metodo)) << metodo;
    for (const int numero : sezioni) EXPECT_GT(numero, 0);
}

TEST(Esempi, ShowInTheirLogsAllThatADescriptionCanSay) {
    int doppie = 0, aperti = 0, aCapo = 0, senzaRichiamo = 0, passi = 0;
    std::set<int> colori;
    for (const auto& nome : nomi()) {
        const DatiProgetto dati = leggi(nome);
        for (int j = 1; j <= dati.nStrati; ++j) {
            const auto strato = drawings::leggiDescrizione(dati.descrStrato[j]);
            doppie += strato.campitura >= 1000;
            passi += static_cast<int>(strato.campitura) % 1000 / 100 > 1;
            aperti += !strato.lineaAlPiede;
            aCapo += strato.testo.find('|') != std::string::npos;
            senzaRichiamo += !strato.richiamo;
            colori.insert(strato.colore);
        }
    }
    EXPECT_GT(doppie, 0) << "two patterns, one over the other";
    EXPECT_GT(passi, 0) << "a larger step of size";
    EXPECT_GT(aperti, 0) << "an open boundary";
    EXPECT_GT(aCapo, 0) << "a forced line end";
    EXPECT_GT(senzaRichiamo, 0) << "a description without a leader";
    EXPECT_EQ(colori, (std::set<int>{1, 2, 3, 4, 5}));
}

TEST(Esempi, TheLongWallHasSixLayersAndAFixedToe) {
    const DatiProgetto dati = leggi("paratia_lunga_incastro");
    EXPECT_GE(dati.nStrati, 6);
    EXPECT_GE(dati.lunghezzaParatia, 20);
    EXPECT_EQ(dati.vincoloPiede, 3);
}

}  // namespace
}  // namespace korven
