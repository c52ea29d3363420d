#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <sstream>

#include "base/code_page.hpp"
#include "base/number_text.hpp"
#include "project/project_file.hpp"
#include "report/calculation_report.hpp"
#include "support/run_harness.hpp"

// The examples against the golden files of an independent calculation (tests/golden/README.md).

namespace korven {
namespace {

namespace fs = std::filesystem;

constexpr int nSeg = 24;
const fs::path esempi = KORVEN_EXAMPLES;
const fs::path attesi = esempi.parent_path().parent_path() / "tests" / "golden" / "examples";

std::vector<std::string> righe(const std::string& testo) {
    std::vector<std::string> tutte;
    std::istringstream flusso(testo);
    for (std::string riga; std::getline(flusso, riga);) tutte.push_back(riga);
    return tutte;
}

project::DatiProgetto leggi(const fs::path& percorso) {
    auto file = base::LettoreRighe::apri(percorso.string());
    project::DatiProgetto dati;
    project::leggiDati(file, dati);
    return dati;
}

// The moment resistances are written in N mm with seven decimals, more digits than a double holds:
// the last ones hang on the mathematical library. All other lines must be equal to the letter.
void confrontaRisultati(const std::string& ottenuto, const std::string& atteso) {
    const auto nostre = righe(ottenuto);
    const auto loro = righe(atteso);
    ASSERT_EQ(nostre.size(), loro.size());
    for (std::size_t i = 0; i < nostre.size(); ++i) {
        const bool resistenza = i + 5 == nostre.size() || i + 4 == nostre.size();
        if (!resistenza) {
            EXPECT_EQ(nostre[i], loro[i]) << "line " << i + 1;
            continue;
        }
        const double valore = *base::leggiNumero(loro[i]);
        EXPECT_NEAR(*base::leggiNumero(nostre[i]), valore, 1e-12 * std::fabs(valore));
    }
}

class Golden : public testing::TestWithParam<std::string> {};

TEST_P(Golden, GivesTheDigitsOfAnIndependentCalculation) {
    test::Banco banco(leggi(esempi / (GetParam() + ".kvd")), nSeg);
    banco.calcola();
    confrontaRisultati(test::contenuto(banco.risultati()),
                       test::contenuto((attesi / (GetParam() + ".OUT")).string()));
    const auto dati = results::leggiRisultati(banco.risultati(), project::Progetto);
    EXPECT_EQ(base::inCp1252(report::testoRelazione(dati, GetParam() + ".kvd")),
              test::contenuto((attesi / (GetParam() + ".TAB")).string()));
}

std::vector<std::string> nomi() {
    std::vector<std::string> trovati;
    for (const auto& file : fs::directory_iterator(attesi))
        if (file.path().extension() == ".OUT") trovati.push_back(file.path().stem().string());
    std::sort(trovati.begin(), trovati.end());
    return trovati;
}

INSTANTIATE_TEST_SUITE_P(Tutti, Golden, testing::ValuesIn(nomi()),
                         [](const auto& caso) { return caso.param; });

TEST(GoldenFiles, HoldEveryExample) {
    std::vector<std::string> progetti;
    for (const auto& file : fs::directory_iterator(esempi))
        if (file.path().extension() == ".kvd") progetti.push_back(file.path().stem().string());
    std::sort(progetti.begin(), progetti.end());
    EXPECT_EQ(progetti, nomi());
}

}  // namespace
}  // namespace korven
