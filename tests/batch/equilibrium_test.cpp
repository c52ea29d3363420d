// The command `equilibrio` from outside.

#include <array>
#include <charconv>
#include <cmath>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>

#include "batch/batch_bench.hpp"

namespace korven::batch {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::json;
using test::dice;
using test::progettoSemplice;

class Equilibrio : public test::BancoConsole {
 protected:
    void prendi(const std::string& nome) {
        fs::copy_file(std::string(KORVEN_WALLS) + "/" + nome + ".kvd", progetto,
                      fs::copy_options::overwrite_existing);
    }
    [[nodiscard]] test::EsitoProgramma comando(std::vector<std::string> altri = {}) const {
        altri.insert(altri.begin(), {"equilibrio", progetto});
        return console(altri);
    }
    [[nodiscard]] Json rispostaJson() const {
        return Json::parse(comando({"--json", "--silenzioso"}).uscita);
    }
};

// Largest displacements of a stage by an independent calculation, where one is known.
TEST_F(Equilibrio, HasAVerdictForEachWallOfWhichTheReportTellsLess) {
    const struct {
        const char *nome, *causa;
        double millimetri;
    } muri[] = {
        {"acqua_1000", "eseguito", 0},          {"acqua_a_zero", "eseguito", 0},
        {"acqua_fase_a_zero", "eseguito", 0},   {"banchina", "eseguito", 100},
        {"meccanismo", "meccanismo", 0},        {"oscilla_1", "eseguito", 2.75},
        {"oscilla_2", "eseguito", 3.46},        {"oscilla_3", "eseguito", 3.06},
        {"puntone_rigidissimo", "eseguito", 0}, {"quasi_meccanismo", "eseguito", 910},
        {"singolare_1", "eseguito", 2.14},      {"singolare_2", "eseguito", 10.2},
        {"singolare_3", "eseguito", 1.88},      {"tensioni_totali_sabbia", "eseguito", 0},
    };
    for (const auto& [nome, causa, millimetri] : muri) {
        SCOPED_TRACE(nome);
        prendi(nome);
        const auto esito = comando({"--json", "--silenzioso"});
        EXPECT_EQ(esito.codice, std::string_view(causa) == "eseguito" ? 0 : 1);
        const Json j = Json::parse(esito.uscita);
        EXPECT_EQ(j["causa"], causa);
        double massimo = 0;
        for (const Json& fase : j["equilibrio"]["fasi"]) {
            if (fase["esito"] != "equilibrio") continue;
            massimo = std::max(massimo, fase["spostamento_massimo_m"].get<double>());
        }
        if (millimetri > 0) {
            EXPECT_NEAR(1000 * massimo, millimetri, 0.01 * millimetri);
        }
    }
    EXPECT_EQ(nomi(), "muro.kvd ");
}

TEST_F(Equilibrio, HoldsTheNumbersOfEachStageInJsonAndOfTheRunWhereItEnds) {
    prendi("puntone_rigidissimo");
    const Json corsa = Json::parse(console({"calcola", progetto, "--json", "--silenzioso"}).uscita);
    const Json j = rispostaJson();
    EXPECT_EQ(j["comando"], "equilibrio");
    EXPECT_EQ(j["equilibrio"]["segmenti"], 50);
    const Json& fasi = j["equilibrio"]["fasi"];
    ASSERT_EQ(fasi.size(), corsa["calcolo"]["fasi"].size());
    for (std::size_t k = 0; k < fasi.size(); ++k) {
        const Json& sua = corsa["calcolo"]["fasi"][k];
        std::set<std::string> nomi;
        for (const auto& [nome, valore] : fasi[k].items()) nomi.insert(nome);
        EXPECT_EQ(nomi, (std::set<std::string>{"fase", "esito", "scavo_m", "spostamento_massimo_m",
                                               "momento_massimo_kNm", "momento_minimo_kNm",
                                               "taglio_massimo_kN", "tiri_kN", "passi",
                                               "spiegazione", "nodi"}));
        EXPECT_EQ(fasi[k]["fase"], k + 1);
        EXPECT_EQ(fasi[k]["esito"], "equilibrio");
        EXPECT_GT(fasi[k]["passi"].get<int>(), 0);
        EXPECT_TRUE(fasi[k]["spiegazione"].is_null());
        for (const char* campo : {"scavo_m", "spostamento_massimo_m"})
            EXPECT_NEAR(fasi[k][campo], sua[campo], 2e-7) << campo;
        for (const char* campo : {"momento_massimo_kNm", "momento_minimo_kNm"})
            EXPECT_NEAR(fasi[k][campo], sua[campo], 1e-3) << campo;
    }
    ASSERT_EQ(fasi[1]["tiri_kN"].size(), 1u);
}

// One row of the CSV, its numbers read back.
struct Riga {
    std::array<double, 10> numeri{};
    std::string monte, valle;
};

std::vector<Riga> righe(const std::string& testo) {
    std::vector<Riga> tutte;
    std::istringstream flusso(testo);
    std::string linea;
    std::getline(flusso, linea);
    EXPECT_EQ(linea,
              "fase,nodo,z_m,y_m,M_kNm,T_kN,p_monte_kPa,p_valle_kPa,acqua_kPa,costante_kPa,"
              "stato_monte,stato_valle\r");
    while (std::getline(flusso, linea)) {
        EXPECT_EQ(linea.back(), '\r');
        linea.pop_back();
        std::istringstream campi(linea);
        Riga riga;
        std::string campo;
        for (double& numero : riga.numeri) {
            std::getline(campi, campo, ',');
            const char* fine = campo.data() + campo.size();
            EXPECT_EQ(std::from_chars(campo.data(), fine, numero).ptr, fine) << campo;
            char ancora[32];
            EXPECT_EQ(campo, std::string(ancora, std::to_chars(ancora, ancora + 32, numero).ptr));
        }
        std::getline(campi, riga.monte, ',');
        std::getline(campi, riga.valle);
        tutte.push_back(riga);
    }
    return tutte;
}

// The quay wall hangs on nothing: pressures and head force alone hold it.
TEST_F(Equilibrio, WritesTheNodesOfAllStagesWithPressuresThatBalance) {
    prendi("banchina");
    const std::string csv = cartella / "banchina.csv";
    const auto esito = comando({"--csv", csv});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_TRUE(dice(esito.uscita, "File scritto: " + csv)) << esito.uscita;
    const auto tutte = righe(test::contenuto(csv));
    ASSERT_EQ(tutte.size(), 2u * 51);
    const std::set<std::string> stati{"attivo", "elastico", "passivo"};
    for (int fase = 1; fase <= 2; ++fase) {
        double forza = 0, momento = 0, massima = 0;
        const double h = tutte[1].numeri[2];
        for (int nodo = 1; nodo <= 51; ++nodo) {
            const Riga& r = tutte[static_cast<std::size_t>((fase - 1) * 51 + nodo - 1)];
            EXPECT_EQ(r.numeri[0], fase);
            EXPECT_EQ(r.numeri[1], nodo);
            EXPECT_DOUBLE_EQ(r.numeri[2], (nodo - 1) * h);
            EXPECT_GE(r.numeri[6], 0);
            EXPECT_LE(r.numeri[7], 0);
            EXPECT_TRUE(stati.contains(r.monte) && stati.contains(r.valle));
            const double netta = r.numeri[6] + r.numeri[7] + r.numeri[8] + r.numeri[9];
            const double peso = nodo == 1 || nodo == 51 ? h / 2 : h;
            forza += peso * netta;
            momento += peso * netta * r.numeri[2];
            massima = std::max(massima, std::fabs(netta));
        }
        EXPECT_NEAR(forza, 0, 1e-8 * massima) << fase;
        EXPECT_NEAR(momento, 0, 1e-7 * massima) << fase;
    }
    EXPECT_EQ(nomi(), "banchina.csv muro.kvd ");
}

// A prop of 1E9 kN/m: half a digit of a displacement of seven decimals is 50 kN of its force.
TEST_F(Equilibrio, HasTheForceOfAPropThatBalancesThePressures) {
    prendi("puntone_rigidissimo");
    const std::string csv = cartella / "p.csv";
    const Json j = Json::parse(comando({"--csv", csv, "--json", "--silenzioso"}).uscita);
    const auto tutte = righe(test::contenuto(csv));
    ASSERT_EQ(tutte.size(), 2u * 51);
    double forza = 0;
    const double h = tutte[1].numeri[2];
    for (std::size_t i = 51; i < 102; ++i) {
        const auto& n = tutte[i].numeri;
        forza += (i == 51 || i == 101 ? h / 2 : h) * (n[6] + n[7] + n[8] + n[9]);
    }
    const Json& tiri = j["equilibrio"]["fasi"][1]["tiri_kN"];
    ASSERT_EQ(tiri.size(), 1u);
    EXPECT_GT(forza, 10);
    EXPECT_NEAR(tiri[0], forza, 1e-5);
    EXPECT_TRUE(j["equilibrio"]["fasi"][0]["tiri_kN"].empty());
}

TEST_F(Equilibrio, PrintsTheVerdictOfEachStageAndWhatIsSaidOfOneThatFalls) {
    prendi("meccanismo");
    const auto esito = comando();
    EXPECT_EQ(esito.codice, 1);
    std::istringstream testo(esito.uscita);
    std::string titoli, fase, frase;
    std::getline(testo, titoli);
    std::getline(testo, fase);
    std::getline(testo, frase);
    EXPECT_EQ(titoli,
              "Fase  Passi  Scavo [m]  Spostamento max. [mm]  Momento max. [kN m/m]  "
              "Momento min. [kN m/m]  Esito");
    EXPECT_TRUE(fase.starts_with("   1      0       5.00  ")) << fase;
    EXPECT_TRUE(fase.ends_with("-  meccanismo")) << fase;
    EXPECT_TRUE(frase.starts_with("la paratia è un meccanismo nella fase 1: ")) << frase;
    const auto silenzioso = comando({"--silenzioso"});
    EXPECT_EQ(silenzioso.codice, 1);
    EXPECT_EQ(silenzioso.uscita, "");
    EXPECT_TRUE(dice(silenzioso.errori, frase)) << silenzioso.errori;
}

TEST_F(Equilibrio, IsCalledEquilibriumToo) {
    const auto esito = console({"equilibrium", progetto, "--language", "eng", "--segments", "20"});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_TRUE(dice(esito.uscita, "in equilibrium\n")) << esito.uscita;
}

TEST_F(Equilibrio, RefusesWhatAReportRefusesWithTheSameWords) {
    const std::pair<const char*, std::function<void(project::DatiProgetto&)>> casi[] = {
        {"length", [](auto& d) { d.lunghezzaParatia = 0; }},
        {"layers", [](auto& d) { d.nStrati = 0; }},
        {"stages", [](auto& d) { d.nFasi = 0; }},
        {"stiffness", [](auto& d) { d.rigidezzaEJ = 0; }},
        {"Bowles", [](auto& d) { d.metodoKs = 1, d.phiStrato[1] = 0; }},
        {"anchors", [](auto& d) { d.tirantiFase[2] = 30; }},
        {"slope", [](auto& d) { d.inclinazioneMonte = 60; }},
    };
    for (const auto& [nome, guasta] : casi) {
        auto dati = progettoSemplice();
        guasta(dati);
        scrivi(dati);
        const auto prima = file();
        const auto relazione = esegui("relazione", {"--json"});
        const auto equilibrio = esegui("equilibrio", {"--json"});
        EXPECT_EQ(relazione.codice, 1) << nome;
        EXPECT_EQ(equilibrio.codice, relazione.codice) << nome;
        const Json r = Json::parse(relazione.uscita), e = Json::parse(equilibrio.uscita);
        EXPECT_FALSE(r["messaggi"].empty()) << nome;
        EXPECT_EQ(e["messaggi"], r["messaggi"]) << nome;
        EXPECT_EQ(e["causa"], "rifiutato") << nome;
        EXPECT_TRUE(e["equilibrio"].is_null()) << nome;
        EXPECT_EQ(file(), prima) << nome;
    }
    scrivi(progettoSemplice());
    for (const char* nSeg : {"2", "250", "1.5"}) {
        const auto relazione = console({"relazione", progetto, "--nseg", nSeg});
        const auto equilibrio = console({"equilibrio", progetto, "--nseg", nSeg});
        EXPECT_EQ(equilibrio.codice, relazione.codice) << nSeg;
        EXPECT_EQ(equilibrio.errori, relazione.errori) << nSeg;
    }
    test::metti(progetto, "due\r\n");
    EXPECT_EQ(comando().codice, 3);
    EXPECT_EQ(comando().errori, console({"relazione", progetto}).errori);
}

TEST_F(Equilibrio, WritesNoTableInThePlaceOfTheProjectItsResultsOrItsReport) {
    ASSERT_EQ(esegui("relazione", {"--txt"}).codice, 0);
    const auto prima = file();
    for (const auto& [nome, codice] : {std::pair{"muro.kvd", 3},
                                       {"muro.OUT", 3},
                                       {"muro.TAB", 2},
                                       {"muro.txt", 2},
                                       {"manca/e.csv", 3}})
        EXPECT_EQ(esegui("equilibrio", {"--csv", cartella / nome}).codice, codice) << nome;
    EXPECT_EQ(file(), prima);
}

// The wall without peace stands for the certain method; the specified run is of no account here.
TEST_F(Equilibrio, LeavesNothingBehindAndNeedsNoRunThatEnds) {
    scrivi(test::progettoSenzaPace());
    const auto esito = esegui("equilibrio", {"--uscita", cartella / "fuori"});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_EQ(nomi(), "muro.kvd ");
    EXPECT_FALSE(fs::exists(cartella / "fuori"));
}

TEST_F(Equilibrio, TellsNoNumberWhereNumbersEnd) {
    auto dati = progettoSemplice();
    dati.momentoTesta = 1e306;
    dati.rigidezzaEJ = 1e300;
    dati.vincoloTesta = 2;
    dati.vincoloPiede = 3;
    scrivi(dati);
    const auto esito = esegui("equilibrio", {"--json", "--csv", cartella / "e.csv"});
    EXPECT_EQ(esito.codice, 1);
    const Json j = Json::parse(esito.uscita);
    EXPECT_EQ(j["causa"], "nessun_numero");
    const Json& fasi = j["equilibrio"]["fasi"];
    ASSERT_EQ(fasi.size(), 2u);
    EXPECT_EQ(fasi[0]["esito"], "nessun_numero");
    EXPECT_TRUE(fasi[0]["spostamento_massimo_m"].is_null());
    EXPECT_EQ(fasi[1]["esito"], "non_definito");
    EXPECT_TRUE(righe(test::contenuto(cartella / "e.csv")).empty());
}

}  // namespace
}  // namespace korven::batch
