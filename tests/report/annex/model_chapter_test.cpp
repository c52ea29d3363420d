#include <gtest/gtest.h>

#include <regex>

#include "support/chapter_bench.hpp"
#include "support/sample_projects.hpp"

namespace korven::report {
namespace {

// Sources are printed as they are in all languages: clauses by sign and number, no words of one.
TEST(CapitoloModello, NamesClausesOfItsSourcesInNoLanguage) {
    const auto b = test::blocchi(capitoloModello, test::contesto(test::progettoSemplice()));
    const std::regex parole("\\b(section|annex|with the|chapter|clause)\\b", std::regex::icase);
    for (const char* titolo : {"Che cosa si calcola", "Che cosa non si calcola"}) {
        const auto p = test::tavola(b, titolo);
        EXPECT_GT(p.righe.size(), 5U);
        for (const auto& riga : p.righe)
            EXPECT_FALSE(std::regex_search(riga.back().testo, parole)) << riga.back().testo;
    }
}

}  // namespace
}  // namespace korven::report
