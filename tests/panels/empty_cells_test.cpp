#include "panels/empty_cells.hpp"

#include <gtest/gtest.h>

#include "project/codes.hpp"
#include "support/dialog_double.hpp"

namespace korven::panels {
namespace {

using masks::PostoGriglia;

// A table as that of the layers is.
class CelleVuoteDegliStrati : public ::testing::Test {
 protected:
    CelleVuoteDegliStrati() {
        maschera.genere = masks::GenereMaschera::grigliaLibera;
        for (const char* nome : {"", "z", "g", "gs", "phi", "c", "ks", "testo"}) {
            masks::CampoMaschera colonna;
            colonna.etichetta = nome;
            colonna.tipo = colonna.etichetta == "testo" ? "/@" : "########";
            colonna.massimo = 10000;
            maschera.campi.push_back(colonna);
        }
        dati.metodoKs = project::valore(project::MetodoKs::costante);
    }
    std::optional<CelleVuote> vuote(const std::vector<std::string>& celle, PostoGriglia qui = {}) {
        std::vector<std::string> testi{std::to_string(celle.size() / 7)};
        testi.insert(testi.end(), celle.begin(), celle.end());
        masks::ModelloGriglia griglia(maschera, testi);
        griglia.comincia(qui);
        return celleVuote(griglia, masks::NumeroMaschera::strati, dati);
    }
    masks::Maschera maschera;
    project::DatiProgetto dati;
};

TEST_F(CelleVuoteDegliStrati, AreNoneWhereEachNumberIsThereAndInRowsWithoutData) {
    EXPECT_FALSE(vuote({"3", "18", "19", "30", "0", "5000", ""}));
    EXPECT_FALSE(vuote({"3", "18", "19", "30", "0", "5000", "", "", "", "", "", " ", "", ""}));
    EXPECT_FALSE(vuote({}));
}

TEST_F(CelleVuoteDegliStrati, AreNamedInTheFirstRowThatHasSomeAndCountedInTheOthers) {
    EXPECT_EQ(vuote({"3", "", "19", " ", "0", "5000", ""})->parole,
              "Celle vuote nella riga 1: g, phi. La conferma legge una cella vuota come 0.");
    EXPECT_EQ(vuote({"3", "1", "1", "1", "1", "1", "",  "4", "1", "1", "1",
                     "",  "",  "",  "5", "",  "",  "1", "1", "1", ""})
                  ->parole,
              "Celle vuote nella riga 2: c, ks. Altre righe con celle vuote: 1. La conferma legge "
              "una cella vuota come 0.");
}

TEST_F(CelleVuoteDegliStrati, AreNotThoseOfKsWhereAnotherRuleGivesIt) {
    dati.metodoKs = project::valore(project::MetodoKs::lancellotta);
    EXPECT_FALSE(vuote({"3", "18", "19", "30", "0", "", ""}));
}

TEST_F(CelleVuoteDegliStrati, AreGoneThroughFromTheCurrentCellOnAndThenFromTheFirst) {
    const std::vector<std::string> celle{"3", "",  "1", "", "1", "1", "",
                                         "4", "1", "1", "", "1", "1", ""};
    const std::pair<PostoGriglia, PostoGriglia> vie[] = {
        {{1, 1}, {1, 2}}, {{1, 2}, {1, 4}}, {{1, 6}, {2, 4}}, {{2, 4}, {1, 2}}, {{9, 1}, {1, 2}}};
    for (const auto& [qui, la] : vie) EXPECT_EQ(vuote(celle, qui)->prossima, la);
}

}  // namespace
}  // namespace korven::panels
