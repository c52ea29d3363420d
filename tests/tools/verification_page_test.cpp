#include "tools/verification_page.hpp"

#include <gtest/gtest.h>

#include "base/files.hpp"
#include "base/folders/program_folder.hpp"
#include "base/language.hpp"
#include "base/translated_texts.hpp"
#include "verification/collection.hpp"

// docs/verification.md and its figures against the cases: `tools/make_verification` writes them
// anew (docs/building.md).

namespace tools {
namespace {

class VerificationPage : public ::testing::Test {
 protected:
    void SetUp() override {
        const std::string program = KORVEN_PROGRAM_FOLDER;
        korven::base::impostaCartellaProgramma(program);
        korven::base::caricaTesti(program + "/texts01.txt", program + "/texts06.txt",
                                  program + "/texts32.txt");
        korven::base::impostaLingua(korven::base::codiceLingua("eng"));
    }
    void TearDown() override {
        korven::base::impostaLingua(korven::base::codiceLingua("ita"));
        korven::base::impostaCartellaProgramma({});
    }
    const std::string data = KORVEN_DATA_FOLDER, docs = KORVEN_DOCS;
    const std::vector<korven::verification::Gruppo> groups =
        korven::verification::leggiCasi(data + "/verifica", data + "/examples");
};

TEST_F(VerificationPage, IsThatOfTheCases) {
    const std::string page = verificationPage(korven::verification::esegui(groups));
    EXPECT_TRUE(page == korven::base::leggiFile(docs + "/verification.md"))
        << "docs/verification.md is another one: run tools/make_verification";
}

TEST_F(VerificationPage, HasTheFigureOfEachGroup) {
    const auto figures = verificationFigures(groups);
    EXPECT_EQ(figures.size(), groups.size());
    for (const auto& [name, svg] : figures)
        EXPECT_TRUE(svg == korven::base::leggiFile(docs + "/verification/" + name))
            << name << " is another one: run tools/make_verification";
}

}  // namespace
}  // namespace tools
