// The foot of the report in the texts that are delivered, in each language.

#include <gtest/gtest.h>

#include "base/folders/program_folder.hpp"
#include "base/translated_texts.hpp"
#include "markup/estimated_width.hpp"
#include "report/footer.hpp"

namespace korven::report {
namespace {

const std::string cartella = KORVEN_PROGRAM_FOLDER;

class PiedeConsegnato : public testing::TestWithParam<int> {
 protected:
    PiedeConsegnato() {
        base::caricaTesti(cartella + "/texts01.txt", cartella + "/texts06.txt",
                          cartella + "/texts32.txt");
        base::impostaLingua(GetParam());
    }
    ~PiedeConsegnato() override {
        base::tabellaTesti.nTesti = 0;
        base::impostaLingua(1);
    }

    // Both ends at least 4 mm inside the page: its middle is 283 points from its nearer end.
    static bool sullaPagina(const std::string& riga) {
        return markup::estimatedWidth({"Arial", 12}, riga) / 2 <= 283 - 4 / 25.4 * 72;
    }
};

TEST_P(PiedeConsegnato, LiesOnTheSheetWhateverTheProjectIsCalled) {
    for (const double metodo : {0.0, 1.0, 2.0, 3.0})
        for (const std::size_t lettere : {1u, 4u, 20u, 60u, 250u}) {
            const std::string riga = testoPiede({std::string(lettere, 'm') + ".kvd", metodo, 249});
            EXPECT_TRUE(sullaPagina(riga)) << riga;
        }
}

TEST_P(PiedeConsegnato, SaysAllOfItForAShortName) {
    const std::string riga = testoPiede({"muro.kvd", 2, 50});
    EXPECT_NE(riga.find(base::traduttore("nessun coefficiente di sicurezza sul terreno")),
              std::string::npos)
        << riga;
}

INSTANTIATE_TEST_SUITE_P(Lingue, PiedeConsegnato, testing::Range(1, 7));

}  // namespace
}  // namespace korven::report
