// One wall told in three ways: JSON, CSV and the annex hold the same numbers.

#include <algorithm>
#include <charconv>
#include <cmath>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <sstream>
#include <variant>

#include "batch/batch_bench.hpp"
#include "dossier/dossier.hpp"
#include "report/annex/annex.hpp"
#include "support/wall_files.hpp"

namespace korven::batch {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::json;
using tables::Prospetto;

// Half of the last digit of the JSON, in kN.
constexpr double arrotondamento = 6e-7;

// The quantities of a node in the JSON, and what they are multiplied by in the tables of people.
struct Grandezza {
    const char* json;
    double fattore;
};
constexpr Grandezza grandezze[] = {{"spostamento_m", 1000},    {"momento_kNm", 1},
                                   {"taglio_kN", 1},           {"pressione_monte_kPa", 1},
                                   {"pressione_valle_kPa", 1}, {"acqua_kPa", 1}};

class StessiNumeri : public test::BancoConsole {
 protected:
    void leggi(const std::string& file) {
        fs::copy_file(file, progetto, fs::copy_options::overwrite_existing);
        const std::string csv = cartella / "e.csv";
        const auto esito = console({"equilibrio", progetto, "--json", "--silenzioso", "--csv", csv},
                                   base::discoDiSistema());
        fasi = Json::parse(esito.uscita)["equilibrio"]["fasi"];
        tabella = test::contenuto(csv);
        f = dossier::fascicolo(test::leggiMuro(file));
    }

    // The numbers of a node in a row of a table that begins with node and depth at column `da`.
    void uguale(const std::vector<tables::Cella>& riga, std::size_t da, const Json& nodi) const {
        const auto i = static_cast<std::size_t>(riga[da].numero.value() - 1);
        EXPECT_EQ(riga[da + 1].numero, nodi["z_m"][i].get<double>());
        std::size_t colonna = da + 2;
        for (const auto& [nome, fattore] : grandezze)
            EXPECT_NEAR(riga.at(colonna++).numero.value(), fattore * nodi[nome][i].get<double>(),
                        arrotondamento)
                << nome << " nodo " << i + 1;
    }

    Json fasi;
    std::string tabella;
    dossier::Fascicolo f;
};

// The tables of an annex whose first columns are those.
std::vector<Prospetto> tavole(const document::Documento& documento,
                              const std::vector<std::string>& colonne) {
    std::vector<Prospetto> trovate;
    for (const auto& blocco : documento.blocchi) {
        const auto* tavola = std::get_if<document::Tavola>(&blocco);
        if (tavola == nullptr || tavola->prospetto.colonne.size() < colonne.size()) continue;
        if (std::equal(colonne.begin(), colonne.end(), tavola->prospetto.colonne.begin(),
                       [](const auto& titolo, const auto& c) { return titolo == c.titolo; }))
            trovate.push_back(tavola->prospetto);
    }
    return trovate;
}

TEST_F(StessiNumeri, StandInJsonAndAnnexForEveryNodeOfEveryExample) {
    for (const std::string& file : test::muriIn(KORVEN_EXAMPLES)) {
        SCOPED_TRACE(file);
        leggi(file);
        const auto annesso = tavole(report::allegato(f), {"Nodo", "z", "Spostamento"});
        ASSERT_EQ(annesso.size(), fasi.size());
        for (std::size_t k = 0; k < fasi.size(); ++k) {
            EXPECT_GE(annesso[k].righe.size(), 51U);
            for (const auto& riga : annesso[k].righe) uguale(riga, 0, fasi[k]["nodi"]);
        }
    }
}

TEST_F(StessiNumeri, StandInTheTableOfTheEquilibriumWithAllTheirDigits) {
    for (const std::string& file : test::muriIn(KORVEN_EXAMPLES)) {
        SCOPED_TRACE(file);
        leggi(file);
        std::istringstream righe(tabella);
        std::string riga;
        std::getline(righe, riga);
        EXPECT_EQ(riga.substr(0, 30), "fase,nodo,z_m,y_m,M_kNm,T_kN,p");
        for (const auto& fase : f.parete.fasi)
            for (std::size_t i = 0; i < fase.y.size(); ++i) {
                ASSERT_TRUE(std::getline(righe, riga));
                const double attesi[] = {static_cast<double>(fase.fase),
                                         static_cast<double>(i + 1),
                                         static_cast<double>(i) * f.parete.h,
                                         fase.y[i],
                                         10 * fase.momento[i],
                                         10 * fase.taglio[i],
                                         10 * fase.monte[i],
                                         10 * fase.valle[i],
                                         10 * fase.acqua[i],
                                         10 * fase.costante};
                const char* da = riga.data();
                for (const double atteso : attesi) {
                    double letto = -1;
                    da = std::from_chars(da, riga.data() + riga.size(), letto).ptr + 1;
                    EXPECT_EQ(letto, atteso) << riga;
                }
            }
        EXPECT_FALSE(std::getline(righe, riga));
    }
}

TEST_F(StessiNumeri, AreThoseOfTheAnchorsInEachStageAndAtTheirLargest) {
    int tiranti = 0;
    for (const std::string& file : test::muriIn(KORVEN_EXAMPLES)) {
        SCOPED_TRACE(file);
        leggi(file);
        if (f.tiranti.empty()) continue;
        const auto documento = report::allegato(f);
        const auto perFase = tavole(documento, {"Fase", "Tirante 1"});
        const auto elenco = tavole(documento, {"Tirante", "z", "Tipo"});
        ASSERT_EQ(perFase.size(), 1U);
        ASSERT_EQ(elenco.size(), 1U);
        for (std::size_t t = 0; t < f.tiranti.size(); ++t) {
            double massimo = 0;
            for (std::size_t k = 0; k < fasi.size(); ++k) {
                const Json& tiri = fasi[k]["tiri_kN"];
                const auto& cella = perFase[0].righe.at(k).at(t + 1);
                EXPECT_EQ(cella.numero.has_value(), t < tiri.size());
                if (t >= tiri.size()) continue;
                EXPECT_NEAR(*cella.numero, tiri[t].get<double>(), arrotondamento);
                massimo = std::max(massimo, tiri[t].get<double>());
                ++tiranti;
            }
            const auto massima = [&](const Prospetto& p) {
                for (std::size_t c = 0; c < p.colonne.size(); ++c)
                    if (p.colonne[c].titolo.rfind("Massima", 0) == 0)
                        return p.righe.at(t)[c].numero.value_or(-1);
                ADD_FAILURE() << "nessuna colonna";
                return -1.0;
            };
            EXPECT_NEAR(massima(elenco[0]), massimo, arrotondamento);
        }
    }
    EXPECT_GT(tiranti, 10);
}

TEST_F(StessiNumeri, AreThoseOfTheEnvelopes) {
    for (const std::string& file : test::muriIn(KORVEN_EXAMPLES)) {
        SCOPED_TRACE(file);
        leggi(file);
        const auto annesso = tavole(report::allegato(f), {"Nodo", "z", "Spostamento min."});
        ASSERT_EQ(annesso.size(), 1U);
        ASSERT_EQ(annesso[0].righe.size(), 51U);
        for (std::size_t i = 0; i < 51; ++i) {
            std::size_t colonna = 2;
            for (const auto& [nome, fattore] : {grandezze[0], grandezze[1], grandezze[2]}) {
                double minimo = 1e30, massimo = -1e30;
                for (const Json& fase : fasi) {
                    const double valore = fattore * fase["nodi"][nome][i].get<double>();
                    minimo = std::min(minimo, valore);
                    massimo = std::max(massimo, valore);
                }
                EXPECT_NEAR(annesso[0].righe[i][colonna++].numero.value(), minimo, arrotondamento);
                EXPECT_NEAR(annesso[0].righe[i][colonna++].numero.value(), massimo, arrotondamento);
            }
        }
    }
}

}  // namespace
}  // namespace korven::batch
