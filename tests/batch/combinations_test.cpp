// The command `combinazioni` from outside.

#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>

#include "batch/batch_bench.hpp"
#include "support/user_folder.hpp"
#include "support/wall_files.hpp"

namespace korven::batch {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::json;
using test::dice;

class CombinazioniConsole : public test::BancoConsole {
 protected:
    void esempio(const std::string& nome) {
        fs::copy_file(std::string(KORVEN_EXAMPLES) + "/" + nome + ".kvd", progetto,
                      fs::copy_options::overwrite_existing);
    }
    [[nodiscard]] test::EsitoProgramma comando(const std::string& norma,
                                               std::vector<std::string> altri = {}) const {
        altri.insert(altri.begin(), {"combinazioni", progetto, "--norma", norma});
        return console(altri);
    }
    [[nodiscard]] Json rispostaJson(const std::string& norma,
                                    std::vector<std::string> altri = {}) const {
        altri.insert(altri.end(), {"--json", "--silenzioso"});
        return Json::parse(comando(norma, altri).uscita)["combinazioni"];
    }

    test::CartellaUtente utente;
};

double piuGrande(const Json& fasi, const char* nome) {
    double massimo = 0;
    for (const Json& fase : fasi) massimo = std::max(massimo, fase[nome].get<double>());
    return massimo;
}

// DA1-1 has no factor on the ground, so that a project file can hold its wall: variable surcharge
// behind it with 1.5/1.35, none in front of it, every stage dug deeper. With 1.35 the moments of
// that file by `equilibrio` are those of the combination.
TEST_F(CombinazioniConsole, HasTheMomentsOfAProjectThatHoldsItsLoadsAndExcavations) {
    for (const char* nome : {"diaframma_due_ordini", "palancola_mensola", "trincea_puntellata"}) {
        SCOPED_TRACE(nome);
        esempio(nome);
        const Json una = rispostaJson("en1997-da1")["combinazioni"][0];
        auto dati = test::leggiMuro(progetto);
        dati.sovraccMonte *= 1.5 / 1.35;
        for (int k = 1; k <= dati.nFasi; ++k) {
            dati.sovraccFase[k] = 0;
            double sostegno = 0;
            for (int a = 1; a <= static_cast<int>(dati.tirantiFase[k]); ++a)
                if (dati.profTirante[a] < dati.profFase[k]) sostegno = dati.profTirante[a];
            const double inPiu = std::min(0.5, 0.1 * (dati.profFase[k] - sostegno));
            EXPECT_NEAR(una["fasi"][static_cast<std::size_t>(k - 1)]["scavo_in_piu_m"], inPiu,
                        1e-6);
            dati.profFase[k] += inPiu;
            if (dati.faldaFase[k] >= dati.profFase[k] - inPiu)
                dati.faldaFase[k] = std::max(dati.faldaFase[k], dati.profFase[k]);
        }
        scrivi(dati);
        const Json fasi =
            Json::parse(console({"equilibrio", progetto, "--json"}).uscita)["equilibrio"]["fasi"];
        EXPECT_NEAR(una["momento_massimo_kNm"]["valore"],
                    1.35 * piuGrande(fasi, "momento_massimo_kNm"), 1e-3);
        EXPECT_NEAR(std::fabs(una["spostamento_m"]["valore"].get<double>()),
                    piuGrande(fasi, "spostamento_massimo_m"), 2e-7);
    }
}

TEST_F(CombinazioniConsole, TellsTheFactorsWithTheirSources) {
    esempio("diaframma_due_ordini");
    const Json j = rispostaJson("ntc2018", {"--sovraccarico", "permanente"});
    EXPECT_EQ(j["titolo"], "NTC 2018, 6.5.3");
    EXPECT_EQ(j["origine"], "combinazioni.txt");
    EXPECT_EQ(j["sovraccarico"], "permanente");
    EXPECT_EQ(j["carichi_testa"], "variabile");
    ASSERT_EQ(j["combinazioni"].size(), 2U);
    const Json& una = j["combinazioni"][0];
    EXPECT_EQ(una["nome"], "A1+M1+R1");
    EXPECT_EQ(una["carichi"]["sovraccMonte"], 1);
    EXPECT_EQ(una["coefficienti"][0]["nome"], "attrito");
    EXPECT_EQ(j["combinazioni"][1]["coefficienti"][0]["valore"], 1.25);
    EXPECT_EQ(j["combinazioni"][1]["coefficienti"][0]["fonte"], "NTC 2018, tab. 6.2.II, M2");
    // the surcharge variable: 1.5 over the 1.3 on effects
    EXPECT_NEAR(rispostaJson("ntc2018")["combinazioni"][0]["carichi"]["sovraccMonte"], 1.153846,
                1e-6);
}

TEST_F(CombinazioniConsole, WritesNoResultsAndEndsWithOneWhereACheckIsNotMet) {
    esempio("diaframma_due_ordini");
    const auto esito = comando("en1997-da2", {"--csv", cartella / "c.csv"});
    EXPECT_EQ(nomi(), "c.csv muro.kvd ");
    const Json j = rispostaJson("en1997-da2");
    EXPECT_EQ(esito.codice, j["verificate"] ? 0 : 1) << esito.uscita << esito.errori;
    const std::string csv = test::contenuto(cartella / "c.csv");
    EXPECT_EQ(std::count(csv.begin(), csv.end(), '\n'), 3);  // head, DA2, envelope
    EXPECT_TRUE(dice(csv, "\nen1997-da2,DA2,1,"));
    EXPECT_TRUE(dice(csv, "\nen1997-da2,inviluppo,1,"));

    auto dati = test::leggiMuro(progetto);
    dati.sezione.fyk /= 20;
    scrivi(dati);
    const auto debole = comando("en1997-da2");
    EXPECT_EQ(debole.codice, 1);
    EXPECT_TRUE(dice(debole.uscita, "NON verificata"));
    EXPECT_TRUE(dice(debole.uscita, "Il coefficiente 1.4 delle verifiche senza norma"));
}

// Sand of 30 degrees that hardly holds a cantilever falls with tan phi / 1.25.
TEST_F(CombinazioniConsole, SaysWhichCombinationDoesNotStandAndWhy) {
    auto dati = test::progettoSemplice();
    dati.nTiranti = 0;
    dati.nFasi = 1;
    dati.tirantiFase[1] = 0;
    double sta = 0, cade = dati.lunghezzaParatia;
    const auto regge = [&](double scavo) {
        dati.profFase[1] = scavo;
        scrivi(dati);
        return console({"equilibrio", progetto}).codice == 0;
    };
    for (int i = 0; i < 12; ++i) (regge((sta + cade) / 2) ? sta : cade) = (sta + cade) / 2;
    dati.profFase[1] = sta * 0.97;
    scrivi(dati);
    const auto esito = comando("en1997-da1");
    EXPECT_EQ(esito.codice, 1);
    EXPECT_TRUE(dice(esito.uscita, "nessun equilibrio"));
    EXPECT_TRUE(dice(esito.uscita, "DA1-2: la paratia è un meccanismo nella fase 1"));
    EXPECT_FALSE(dice(esito.uscita, "L'inviluppo è delle sole"));  // both fall: there is none
    dati.profFase[1] = sta * 0.85;
    scrivi(dati);
    const auto una = comando("en1997-da1");
    EXPECT_FALSE(dice(una.uscita, "DA1-1: la paratia è un meccanismo")) << una.uscita;
    EXPECT_TRUE(dice(una.uscita, "DA1-2: la paratia è un meccanismo nella fase 1"));
    EXPECT_TRUE(dice(una.uscita, "L'inviluppo è delle sole combinazioni in equilibrio."));
    const auto muto = comando("en1997-da1", {"--silenzioso"});
    EXPECT_TRUE(muto.uscita.empty());
    EXPECT_TRUE(dice(muto.errori, "DA1-2: la paratia è un meccanismo nella fase 1"));
}

TEST_F(CombinazioniConsole, RefusesACodeThatIsNotThereAndFilesWithFaults) {
    const auto ignota = comando("en1998");
    EXPECT_EQ(ignota.codice, 2);
    EXPECT_TRUE(dice(ignota.errori,
                     "nessuna norma ha il nome «en1998»; ci sono: en1997-da1, en1997-da2, "
                     "en1997-da3, ntc2018"));
    EXPECT_EQ(console({"combinazioni", progetto}).codice, 2);
    fs::create_directories(utente.percorso());
    test::metti(utente / "combinazioni_utente.txt", "norma; mia; Mia\nattrito; 1,25; f\n");
    const auto guasta = comando("ntc2018");
    EXPECT_EQ(guasta.codice, 3);
    EXPECT_TRUE(dice(guasta.errori, "combinazioni_utente.txt, riga 1: «mia» non ha combinazioni"));
    EXPECT_TRUE(dice(guasta.errori,
                     "combinazioni_utente.txt, riga 2: un coefficiente sta sotto la riga della sua "
                     "combinazione"));
}

TEST_F(CombinazioniConsole, TellsTheEarthResistanceOfARestrainedToeAndDoesNotJudgeIt) {
    esempio("diaframma_piede_roccia");
    const auto esito = comando("en1997-da2");
    EXPECT_EQ(esito.codice, 0) << esito.uscita;
    EXPECT_TRUE(dice(esito.uscita, "DA2: della resistenza del terreno a valle si usa il "));
    EXPECT_TRUE(dice(esito.uscita, " % (ammesso 71.4 %). Non è una verifica"));
    EXPECT_FALSE(dice(esito.uscita, "NON verificata")) << esito.uscita;
}

TEST_F(CombinazioniConsole, RefusesWhatAReportRefuses) {
    auto dati = test::progettoSemplice();
    dati.nFasi = 0;
    scrivi(dati);
    const auto esito = comando("ntc2018");
    EXPECT_EQ(esito.codice, 1);
    EXPECT_TRUE(esito.uscita.empty());
    EXPECT_EQ(comando("ntc2018", {"--csv", progetto}).codice, 1);
}

}  // namespace
}  // namespace korven::batch
