// The command `sicurezza` from outside.

#include <functional>
#include <nlohmann/json.hpp>
#include <sstream>

#include "batch/batch_bench.hpp"
#include "support/sample_sections.hpp"

namespace korven::batch {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::json;
using test::dice;
using test::progettoSemplice;

class Sicurezza : public test::BancoConsole {
 protected:
    void prendi(const std::string& percorso) {
        fs::copy_file(percorso, progetto, fs::copy_options::overwrite_existing);
    }
    void muro(const std::string& nome) { prendi(std::string(KORVEN_WALLS) + "/" + nome + ".kvd"); }
    void esempio(const std::string& nome) {
        prendi(std::string(KORVEN_EXAMPLES) + "/" + nome + ".kvd");
    }
    [[nodiscard]] test::EsitoProgramma comando(std::vector<std::string> altri = {}) const {
        altri.insert(altri.begin(), {"sicurezza", progetto});
        return console(altri);
    }
    [[nodiscard]] Json rispostaJson() const {
        return Json::parse(comando({"--json", "--silenzioso"}).uscita);
    }
    [[nodiscard]] static std::vector<std::string> righe(const std::string& testo) {
        std::vector<std::string> tutte;
        std::istringstream flusso(testo);
        for (std::string riga; std::getline(flusso, riga);) tutte.push_back(riga);
        return tutte;
    }
};

// The factors by an independent calculation.
TEST_F(Sicurezza, HasTheFactorOfEachStageAndWritesNoResults) {
    esempio("diaframma_due_ordini");
    const auto esito = comando({"--json"});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    const Json j = Json::parse(esito.uscita);
    EXPECT_EQ(j["comando"], "sicurezza");
    EXPECT_EQ(j["causa"], "eseguito");
    const Json& s = j["sicurezza"];
    EXPECT_EQ(s["segmenti"], 50);
    ASSERT_EQ(s["fasi"].size(), 4u);
    const double attesi[] = {2.98, 2.51, 1.96, 1.64};
    for (std::size_t k = 0; k < 4; ++k) {
        const Json& fase = s["fasi"][k];
        EXPECT_EQ(fase["fase"], k + 1);
        EXPECT_EQ(fase["esito"], "equilibrio");
        EXPECT_NEAR(fase["riduzione"], attesi[k], 0.006);
        EXPECT_EQ(fase["riduzione_oltre_10"], false);
        EXPECT_FALSE(fase["meccanismo"]["traslazione"].get<bool>());
        const double uso = fase["passiva_usata"];
        EXPECT_TRUE(uso > 0 && uso < 1) << uso;
        EXPECT_EQ(fase["z_passiva_m"].size() % 2, 0u);
        EXPECT_GE(fase["z_passiva_m"][0], fase["scavo_m"]);
    }
    EXPECT_EQ(s["lunghezza_m"], 18);
    EXPECT_EQ(s["lunghezza_minima_m"], 10);
    EXPECT_EQ(s["lunghezza_minima_esito"], "sempre");
    for (const char* nome : {"momento", "taglio", "spostamento", "tiro"}) {
        EXPECT_GT(s["errore_maglia"][nome], 0) << nome;
        EXPECT_LT(s["errore_maglia"][nome], 0.1) << nome;
    }
    EXPECT_EQ(s["errore_maglia"]["momento"], s["errore_maglia"]["momento_positivo"]);
    ASSERT_EQ(s["usi_maglia"].size(), 2u);
    EXPECT_EQ(s["usi_maglia"][0]["verifica"], "momento_positivo");
    EXPECT_EQ(s["usi_maglia"][1]["verifica"], "momento_negativo");
    for (const Json& verifica : s["usi_maglia"])
        for (int maglia = 0; maglia < 3; ++maglia)
            EXPECT_EQ(verifica["uso"][maglia].get<double>() < 1,
                      verifica["verificata"][maglia].get<bool>());
    EXPECT_EQ(nomi(), "muro.kvd ");
}

TEST_F(Sicurezza, HasTheMomentsOfTheRunAndTheForcesOfItsReport) {
    esempio("trincea_puntellata");
    const Json corsa = Json::parse(console({"calcola", progetto, "--json"}).uscita)["calcolo"];
    const Json s = rispostaJson()["sicurezza"];
    for (std::size_t k = 0; k < s["fasi"].size(); ++k) {
        const Json& momento = s["fasi"][k]["momento_kNm"];
        const Json& sua = corsa["fasi"][k];
        const double piu = sua["momento_massimo_kNm"], meno = sua["momento_minimo_kNm"];
        EXPECT_EQ(momento["relazione"], piu >= -meno ? piu : meno);
        EXPECT_EQ(momento["fase_relazione"], k + 1);
        EXPECT_NEAR(momento["statica"], momento["relazione"], 0.01);
        EXPECT_LT(momento["scarto"], 1e-3);
    }
    const Json& ultima = s["fasi"].back()["tiri_kN"];
    ASSERT_EQ(ultima.size(), corsa["tiranti"].size());
    EXPECT_NEAR(ultima[0]["statica"], ultima[0]["relazione"], 0.1);
}

TEST_F(Sicurezza, SaysOfAFixedToeThatNothingOvercomesItAndThatTheReportsShearIsNone) {
    esempio("paratia_lunga_incastro");
    const Json s = rispostaJson()["sicurezza"];
    for (const Json& fase : s["fasi"]) {
        EXPECT_TRUE(fase["riduzione"].is_null());
        EXPECT_EQ(fase["riduzione_oltre_10"], true);
        EXPECT_TRUE(fase["meccanismo"].is_null());
    }
    EXPECT_TRUE(s["lunghezza_minima_m"].is_null());
    EXPECT_EQ(s["lunghezza_minima_esito"], "vincolata");
    EXPECT_GT(s["taglio_kN"]["scarto"], 1);
    const auto testo = righe(comando({"--silenzioso"}).uscita + comando().uscita);
    ASSERT_GT(testo.size(), 2u);
    EXPECT_TRUE(dice(testo[1], "> 10")) << testo[1];
    EXPECT_TRUE(dice(testo[1], "nessun meccanismo fino a F = 10: vincoli, tiranti o puntoni "))
        << testo[1];
}

TEST_F(Sicurezza, TellsOfAMechanismWhatItIsShortOfAndEndsWithOne) {
    muro("meccanismo");
    const auto esito = comando();
    EXPECT_EQ(esito.codice, 1);
    const auto testo = righe(esito.uscita);
    ASSERT_EQ(testo.size(), 5u) << esito.uscita;
    EXPECT_EQ(testo[0], "Fase  Scavo [m]     F  Passiva [%]  Al limite [m]  Moto con F");
    EXPECT_EQ(testo[1],
              "   1       5.00  0.98            -              -  ruota attorno alla profondità di "
              "8.93 m, la testa verso lo scavo");
    EXPECT_TRUE(testo[2].starts_with("la paratia è un meccanismo nella fase 1: ")) << testo[2];
    EXPECT_TRUE(testo[3].starts_with("Lunghezza minima: 9.4")) << testo[3];
    EXPECT_TRUE(
        testo[3].ends_with("; la paratia è lunga 9.30 m; non è una lunghezza da costruire: "
                           "F = 1"))
        << testo[3];
    EXPECT_TRUE(dice(esito.errori, "di solito aiuta una paratia più lunga")) << esito.errori;
    const Json j = rispostaJson();
    EXPECT_EQ(j["causa"], "meccanismo");
    EXPECT_TRUE(dice(j["spiegazione"], "meccanismo nella fase 1"));
    const Json& fase = j["sicurezza"]["fasi"][0];
    EXPECT_EQ(fase["esito"], "meccanismo");
    EXPECT_LT(fase["riduzione"], 1);
    for (const char* nome : {"passiva_usata", "spostamento_massimo_m", "momento_kNm", "taglio_kN"})
        EXPECT_TRUE(fase[nome].is_null()) << nome;
    EXPECT_TRUE(j["sicurezza"]["errore_maglia"].is_null());
    for (const char* nome : {"momento_kNm", "taglio_kN"})
        for (const auto& [campo, valore] : j["sicurezza"][nome].items())
            EXPECT_TRUE(valore.is_null()) << nome << ' ' << campo;
}

TEST_F(Sicurezza, HasNoNumbersOfTheStagesAfterOneWithoutEquilibrium) {
    auto dati = progettoSemplice();
    dati.profFase[1] = 11.9;  // of 12 m, before the anchor is there
    scrivi(dati);
    const auto esito = esegui("sicurezza", {"--json", "--csv", cartella / "s.csv"});
    EXPECT_EQ(esito.codice, 1);
    const Json fasi = Json::parse(esito.uscita)["sicurezza"]["fasi"];
    ASSERT_EQ(fasi.size(), 2u);
    EXPECT_TRUE(fasi[1]["esito"].is_null());
    EXPECT_TRUE(fasi[1]["riduzione"].is_null());
    EXPECT_EQ(fasi[1]["riduzione_oltre_10"], false);
    EXPECT_TRUE(fasi[1]["passiva_usata"].is_null());
    const auto csv = righe(test::contenuto(cartella / "s.csv"));
    ASSERT_EQ(csv.size(), 3u);
    EXPECT_EQ(csv[2], "2,,5,,0,0,,,,,,,,,,,,,,,\r");
}

// A prop of 1E9 kN/m, whose force the report takes from seven decimals of a displacement.
TEST_F(Sicurezza, SetsTheTrueForceOfAStiffPropBesideThatOfTheReport) {
    muro("puntone_rigidissimo");
    const Json j = rispostaJson();
    const Json& tiro = j["sicurezza"]["fasi"][1]["tiri_kN"][0];
    EXPECT_EQ(tiro["tirante"], 1);
    EXPECT_NEAR(tiro["statica"], 42.2, 0.05);
    EXPECT_EQ(tiro["relazione"], 0);
}

TEST_F(Sicurezza, HasNoReportToCompareWithWhereTheIterationFlips) {
    muro("oscilla_1");
    const auto esito = comando();
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_TRUE(dice(esito.uscita, "l'iterazione del calcolo per fasi non converge nella fase 2"))
        << esito.uscita;
    const Json s = rispostaJson()["sicurezza"];
    EXPECT_TRUE(s["momento_kNm"]["relazione"].is_null());
    EXPECT_TRUE(s["momento_kNm"]["scarto"].is_null());
    EXPECT_NE(s["momento_kNm"]["statica"], 0);
}

TEST_F(Sicurezza, TellsASingularSystemFromARunThatDoesNotComeToRest) {
    muro("singolare_3");
    const auto esito = comando();
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_TRUE(dice(esito.uscita, "il calcolo per fasi trova un sistema singolare nella fase 7"))
        << esito.uscita;
}

TEST_F(Sicurezza, LeavesTheFieldOfForcesEmptyWithoutAReport) {
    muro("singolare_1");
    const std::string csv = cartella / "s.csv";
    const auto esito = comando({"--csv", csv, "--json"});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    const Json fasi = Json::parse(esito.uscita)["sicurezza"]["fasi"];
    const auto tabella = righe(test::contenuto(csv));
    ASSERT_EQ(tabella.size(), fasi.size() + 1);
    bool tiranti = false;
    for (std::size_t k = 0; k < fasi.size(); ++k) {
        EXPECT_TRUE(tabella[k + 1].ends_with(",\r")) << tabella[k + 1];
        for (const Json& tiro : fasi[k]["tiri_kN"]) {
            tiranti = true;
            EXPECT_FALSE(tiro["statica"].is_null());
            EXPECT_TRUE(tiro["relazione"].is_null());
        }
    }
    EXPECT_TRUE(tiranti);
}

TEST_F(Sicurezza, WritesTheDepthsOfItsTableWithTwoDecimals) {
    esempio("diaframma_piede_roccia");
    const auto testo = righe(comando().uscita);
    ASSERT_GT(testo.size(), 3u);
    EXPECT_TRUE(dice(testo[1], " 2.60-3.20  ruota attorno alla profondità di 10.00 m")) << testo[1];
    EXPECT_TRUE(dice(testo[3], " 7.60-8.20, 8.60 ")) << testo[3];
}

TEST_F(Sicurezza, WritesARowAStageWithAllDigits) {
    muro("banchina");
    const std::string csv = cartella / "s.csv";
    const auto esito = comando({"--csv", csv, "--json"});
    EXPECT_EQ(esito.codice, 0);
    const auto tabella = righe(test::contenuto(csv));
    ASSERT_EQ(tabella.size(), 3u);
    EXPECT_TRUE(tabella[0].starts_with("fase,esito,scavo_m,riduzione,riduzione_oltre_10,"));
    EXPECT_TRUE(tabella[2].starts_with("2,equilibrio,3.5,1.0"));
    const Json j = Json::parse(esito.uscita);
    EXPECT_EQ(j["file"]["scritti"], Json::array({csv}));
    const Json& fase = j["sicurezza"]["fasi"][1];
    std::istringstream campi(tabella[2]);
    std::vector<std::string> riga;
    for (std::string campo; std::getline(campi, campo, ',');) riga.push_back(campo);
    ASSERT_EQ(riga.size(), 21u);
    EXPECT_NEAR(std::stod(riga[3]), fase["riduzione"], 1e-6);
    EXPECT_NEAR(std::stod(riga[8]), fase["passiva_usata"], 1e-6);
    EXPECT_NEAR(std::stod(riga[11]), fase["momento_kNm"]["statica"], 1e-5);
    EXPECT_NEAR(std::stod(riga[17]), fase["taglio_kN"]["relazione"], 1e-5);
}

TEST_F(Sicurezza, DrawsTheMarginInEveryFormat) {
    const auto esito =
        esegui("sicurezza", {"--pdf", cartella / "s.pdf", "--svg", cartella / "s.svg", "--png",
                             cartella / "s.png", "--dxf", cartella / "s.dxf"});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_EQ(nomi(), "muro.kvd s.dxf s.pdf s.png s.svg ");
    EXPECT_TRUE(dice(test::contenuto(cartella / "s.svg"), "PASSIVA USATA"));
    EXPECT_TRUE(test::contenuto(cartella / "s.pdf").starts_with("%PDF"));
}

TEST_F(Sicurezza, RefusesWhatAReportRefusesWithTheSameWordsAndCodes) {
    const std::pair<const char*, std::function<void(project::DatiProgetto&)>> casi[] = {
        {"length", [](auto& d) { d.lunghezzaParatia = 0; }},
        {"stages", [](auto& d) { d.nFasi = 0; }},
        {"stiffness", [](auto& d) { d.rigidezzaEJ = 0; }},
        {"Bowles", [](auto& d) { d.metodoKs = 1, d.phiStrato[1] = 0; }},
        {"anchors", [](auto& d) { d.tirantiFase[2] = 30; }},
        {"slope", [](auto& d) { d.inclinazioneMonte = 60; }},
        {"too large", [](auto& d) { d.rigidezzaEJ = 1e308; }},
    };
    for (const auto& [nome, guasta] : casi) {
        SCOPED_TRACE(nome);
        auto dati = progettoSemplice();
        guasta(dati);
        scrivi(dati);
        const auto prima = file();
        const auto relazione = esegui("relazione", {"--json"});
        const auto sicurezza = esegui("sicurezza", {"--json", "--csv", cartella / "s.csv"});
        EXPECT_EQ(relazione.codice, 1);
        EXPECT_EQ(sicurezza.codice, relazione.codice);
        const Json r = Json::parse(relazione.uscita), s = Json::parse(sicurezza.uscita);
        EXPECT_FALSE(r["messaggi"].empty());
        EXPECT_EQ(s["messaggi"], r["messaggi"]);
        EXPECT_EQ(s["causa"], r["causa"]);
        EXPECT_TRUE(s["sicurezza"].is_null());
        EXPECT_EQ(file(), prima);
    }
    test::metti(progetto, "due\r\n");
    EXPECT_EQ(comando().codice, 3);
    EXPECT_EQ(comando().errori, console({"relazione", progetto}).errori);
}

TEST_F(Sicurezza, WritesNothingInThePlaceOfTheProjectItsResultsItsReportOrTwice) {
    ASSERT_EQ(esegui("relazione", {"--txt"}).codice, 0);
    const auto prima = file();
    for (const char* opzione : {"--csv", "--dxf"})
        for (const auto& [nome, codice] :
             {std::pair{"muro.kvd", 3}, {"muro.OUT", 3}, {"muro.TAB", 2}, {"manca/s.dat", 3}})
            EXPECT_EQ(esegui("sicurezza", {opzione, cartella / nome}).codice, codice)
                << opzione << ' ' << nome;
    const std::string uno = cartella / "s.dat";
    EXPECT_EQ(esegui("sicurezza", {"--csv", uno, "--dxf", uno}).codice, 2);
    EXPECT_EQ(esegui("sicurezza", {"--dxf", uno, "--png", uno}).codice, 3);
    EXPECT_EQ(file(), prima);
}

TEST_F(Sicurezza, LeavesAnOlderResultFileAloneAndMakesNoFolder) {
    ASSERT_EQ(esegui("calcola").codice, 0);
    const auto prima = file();
    EXPECT_EQ(esegui("sicurezza", {"--uscita", cartella / "fuori"}).codice, 0);
    EXPECT_EQ(esegui("sicurezza", {"--metodo-spinte", "rankine"}).codice, 0);
    EXPECT_EQ(file(), prima);
    EXPECT_FALSE(fs::exists(cartella / "fuori"));
}

TEST_F(Sicurezza, TakesTheMethodTheSegmentsAndTheStiffnessOfTheCommandLine) {
    auto dati = progettoSemplice();
    dati.sezione = structure::diaframmaSimmetrico();
    scrivi(dati);
    const auto con = [&](std::vector<std::string> altri) {
        altri.emplace_back("--json");
        return Json::parse(comando(altri).uscita)["sicurezza"];
    };
    const Json prima = con({});
    EXPECT_EQ(prima["segmenti"], 50);
    EXPECT_EQ(con({"--nseg", "24"})["segmenti"], 24);
    // Bell knows no cohesion.
    EXPECT_LT(con({"--metodo-spinte", "bell"})["fasi"][1]["riduzione"],
              prima["fasi"][1]["riduzione"]);
    const Json rigida = con({"--ej", "ricalcola"});
    EXPECT_NE(rigida["fasi"][1]["spostamento_massimo_m"],
              prima["fasi"][1]["spostamento_massimo_m"]);
    EXPECT_EQ(rigida["fasi"][1]["riduzione"], prima["fasi"][1]["riduzione"]);
}

TEST_F(Sicurezza, IsCalledSafetyTooAndSpeaksTheLanguageInUse) {
    const auto esito = console({"safety", progetto, "--language", "eng", "--segments", "20"});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_TRUE(dice(esito.uscita, "Smallest F: ")) << esito.uscita;
    EXPECT_TRUE(dice(esito.uscita, "not of the result file; segments: 20\n")) << esito.uscita;
    EXPECT_EQ(comando({"--silenzioso"}).uscita, "");
}

}  // namespace
}  // namespace korven::batch
