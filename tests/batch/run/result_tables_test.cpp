// The tables of the windows beside what the commands tell of the same wall.

#include <gtest/gtest.h>

#include <cmath>
#include <nlohmann/json.hpp>

#include "answers/equilibrium_json.hpp"
#include "answers/margin_json.hpp"
#include "base/number_text.hpp"
#include "batch/run/equilibrium_outcome.hpp"
#include "batch/run/margin_outcome.hpp"
#include "safety/short_margin.hpp"
#include "support/wall_files.hpp"
#include "tables/margin_table.hpp"
#include "tables/stage_table.hpp"

namespace korven::batch {
namespace {

using Json = nlohmann::ordered_json;
using tables::Cella;
using tables::Prospetto;

// The JSON has six decimals, a cell all: they are the same number.
void stesso(const Cella& cella, const Json& numero, double fattore = 1) {
    if (numero.is_null())
        EXPECT_FALSE(cella.numero) << cella.testo;
    else
        EXPECT_NEAR(cella.numero.value(), numero.get<double>() * fattore, 1e-6 * fattore);
}

void confrontaFase(const std::vector<Cella>& riga, const Json& fase) {
    EXPECT_EQ(riga[0].numero, fase["fase"].get<int>());
    stesso(riga[1], fase["scavo_m"]);
    stesso(riga[2], fase["riduzione"]);
    EXPECT_EQ(riga[2].ordine.has_value(), fase["riduzione_oltre_10"].get<bool>());
    stesso(riga[3], fase["passiva_usata"], 100);
}

void confrontaStatica(const Prospetto& statica, const Json& fase) {
    std::size_t tiro = 0;
    for (const auto& riga : statica.righe) {
        if (riga[0].numero != fase["fase"].get<int>()) continue;
        const bool momento = riga[1].testo.starts_with("Momento");
        if (momento || riga[1].testo.starts_with("Taglio")) {
            const Json& j = fase[momento ? "momento_kNm" : "taglio_kN"];
            stesso(riga[2], j["statica"]);
            stesso(riga[3], j["z_statica_m"]);
            stesso(riga[4], j["relazione"]);
            stesso(riga[5], j["z_relazione_m"]);
        } else {
            stesso(riga[2], fase["tiri_kN"][tiro]["statica"]);
            stesso(riga[4], fase["tiri_kN"][tiro]["relazione"]);
            ++tiro;
        }
    }
    EXPECT_EQ(tiro, fase["tiri_kN"].size());
}

void confrontaEquilibrio(const std::vector<Cella>& riga, const Json& fase) {
    EXPECT_EQ(riga[0].numero, fase["fase"].get<int>());
    stesso(riga[2], fase["scavo_m"]);
    const auto grandezza = [](const Cella& cella) {
        Cella c = cella;
        if (c.numero) c.numero = std::fabs(*c.numero);
        return c;
    };
    stesso(grandezza(riga[3]), fase["spostamento_massimo_m"], 1000);
    stesso(grandezza(riga[7]), fase["taglio_massimo_kN"]);
}

TEST(Prospetti, TellTheNumbersOfTheCommandsOnEveryExampleAndWall) {
    std::vector<std::string> muri = test::muriIn(KORVEN_EXAMPLES);
    for (std::string& muro : test::muriIn(KORVEN_WALLS)) muri.push_back(std::move(muro));
    for (const std::string& muro : muri) {
        SCOPED_TRACE(muro);
        const live::PareteViva parete = live::calcola(test::leggiMuro(muro));
        const auto breve = safety::margineBreve(parete.dati, parete.nSeg);
        ASSERT_TRUE(breve);
        const Json margine = answers::jsonMargine(breve->margine);
        const Json equilibrio =
            answers::jsonEquilibrio(safety::raccontaFasi(parete.dati, parete.nSeg))["fasi"];
        const Prospetto fasi = tables::prospettoMargine(breve->margine);
        const Prospetto statica = tables::prospettoStatica(breve->margine, parete.dati),
                        viste = tables::prospettoFasi(parete);
        ASSERT_EQ(fasi.righe.size(), margine["fasi"].size());
        ASSERT_EQ(viste.righe.size(), equilibrio.size());
        for (std::size_t i = 0; i < fasi.righe.size(); ++i) {
            confrontaFase(fasi.righe[i], margine["fasi"][i]);
            confrontaStatica(statica, margine["fasi"][i]);
            confrontaEquilibrio(viste.righe[i], equilibrio[i]);
        }
    }
}

}  // namespace
}  // namespace korven::batch
