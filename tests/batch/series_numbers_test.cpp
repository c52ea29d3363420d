// The numbers of the command `serie` beside those of the commands for one wall.

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <map>
#include <nlohmann/json.hpp>
#include <random>
#include <sstream>

#include "batch/series_bench.hpp"

namespace korven::batch {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::json;
using test::linee;
using test::Serie;

// What the command `equilibrio` says of a wall, over all its stages.
struct NumeriDiEquilibrio {
    double spostamento = 0, massimo = 0, minimo = 0, taglio = 0, z = 0;
    int fase = 0;
    std::vector<double> tiri = {0, 0};

    explicit NumeriDiEquilibrio(const Json& fasi) {
        for (const Json& f : fasi) {
            if (const double y = f["spostamento_massimo_m"]; y > spostamento) {
                spostamento = y;
                fase = f["fase"];
                const auto nodi = f["nodi"]["spostamento_m"].get<std::vector<double>>();
                const auto maggiore =
                    std::ranges::max_element(nodi, {}, [](double v) { return std::fabs(v); });
                z = f["nodi"]["z_m"][static_cast<std::size_t>(maggiore - nodi.begin())];
            }
            massimo = std::max(massimo, f["momento_massimo_kNm"].get<double>());
            minimo = std::min(minimo, f["momento_minimo_kNm"].get<double>());
            taglio = std::max(taglio, f["taglio_massimo_kN"].get<double>());
            for (std::size_t t = 0; t < f["tiri_kN"].size(); ++t)
                tiri.at(t) = std::max(tiri.at(t), f["tiri_kN"][t].get<double>());
        }
    }
};

// Random values, of which some make walls that fall, and some none at all.
TEST_F(Serie, HasTheNumbersOfEquilibrioOnFilesWrittenByImposta) {
    constexpr int quante = 200;
    struct Varia {
        const char* campo;
        std::uniform_real_distribution<double> valore;
    };
    Varia campi[] = {{"phiStrato[1]", std::uniform_real_distribution<double>(20, 40)},
                     {"pretTirante[1]", std::uniform_real_distribution<double>(0, 300)},
                     {"lunghezzaParatia", std::uniform_real_distribution<double>(6, 20)},
                     {"profTirante[1]", std::uniform_real_distribution<double>(2, 6.5)},
                     {"sovraccMonte", std::uniform_real_distribution<double>(0, 50)}};
    std::mt19937 caso(14);
    std::string piano;
    for (const auto& c : campi) piano += std::string(piano.empty() ? "" : ";") + c.campo;
    std::vector<std::vector<std::string>> assegnati(quante);
    for (auto& suoi : assegnati) {
        piano += '\n';
        for (auto& c : campi) {
            std::ostringstream valore;
            valore << std::setprecision(17) << c.valore(caso);
            piano += (suoi.empty() ? "" : ";") + valore.str();
            suoi.push_back(c.campo + ("=" + valore.str()));
        }
    }
    test::metti(cartella / "piano.csv", piano + '\n');
    const auto righe =
        linee(serie({"--piano", cartella / "piano.csv", "--json", "--silenzioso"}).uscita);
    ASSERT_EQ(righe.size(), assegnati.size());

    const std::string muro = cartella / "variante.kvd";
    std::map<std::string, int> cause;
    for (std::size_t i = 0; i < assegnati.size(); ++i) {
        SCOPED_TRACE(i);
        const Json r = Json::parse(righe[i]);
        ++cause[r["causa"].get<std::string>()];
        std::vector<std::string> imposta = {"imposta", progetto, "--uscita", muro, "--silenzioso"};
        imposta.insert(imposta.end(), assegnati[i].begin(), assegnati[i].end());
        fs::remove(muro);
        const int codice = console(imposta).codice;
        ASSERT_EQ(codice, r["causa"] == "rifiutato" ? 3 : 0);
        if (codice != 0) continue;
        const Json j = Json::parse(console({"equilibrio", muro, "--json", "--silenzioso"}).uscita);
        ASSERT_EQ(r["causa"], j["causa"]);
        if (r["causa"] != "eseguito") continue;
        const NumeriDiEquilibrio n(j["equilibrio"]["fasi"]);
        EXPECT_EQ(r["spostamento_massimo_m"], n.spostamento);
        EXPECT_EQ(r["fase_spostamento"], n.fase);
        EXPECT_NEAR(r["z_spostamento_m"].get<double>(), n.z, 1e-6);
        EXPECT_EQ(r["momento_massimo_kNm"], n.massimo);
        EXPECT_EQ(r["momento_minimo_kNm"], n.minimo);
        EXPECT_EQ(r["taglio_massimo_kN"], n.taglio);
        EXPECT_EQ(r["tiro_1_kN"], n.tiri[0]);
        EXPECT_EQ(r["tiro_2_kN"], n.tiri[1]);
    }
    EXPECT_GT(cause["eseguito"], 100);
    EXPECT_GT(cause["meccanismo"], 5);
    EXPECT_GT(cause["rifiutato"], 5);
}

}  // namespace
}  // namespace korven::batch
