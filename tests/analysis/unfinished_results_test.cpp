#include "analysis/unfinished_results.hpp"

#include <gtest/gtest.h>

#include "base/code_page.hpp"
#include "project/project_file.hpp"
#include "support/run_harness.hpp"
#include "support/sample_projects.hpp"

namespace korven::analysis {
namespace {

std::string finito(int nFasi, int nSeg) {
    auto dati = test::progettoSemplice();
    dati.nFasi = nFasi;
    test::Banco banco(dati, nSeg);
    banco.calcola();
    return test::contenuto(banco.risultati());
}

TEST(RisultatiIncompiuti, AreThoseCutAnywhereBeforeTheirLastNumberIsWhole) {
    for (const int nFasi : {1, 2}) {
        const std::string tutto = finito(nFasi, 4);
        ASSERT_TRUE(tutto.ends_with("\r\n1.4\r\n"));
        const std::size_t intero = tutto.size() - 2;  // without the end of the last line
        for (std::size_t n = 0; n < intero; ++n)
            ASSERT_TRUE(risultatiIncompiuti(tutto.substr(0, n))) << nFasi << ' ' << n;
        for (std::size_t n = intero; n <= tutto.size(); ++n)
            EXPECT_FALSE(risultatiIncompiuti(tutto.substr(0, n))) << nFasi << ' ' << n;
    }
}

TEST(RisultatiIncompiuti, AreNotThoseOfAnyMeshThatEndAsTheyMust) {
    for (const int nSeg : {3, 10, 50}) EXPECT_FALSE(risultatiIncompiuti(finito(2, nSeg))) << nSeg;
}

// What is broken otherwise may be another's work: its reader refuses it, and the user decides.
TEST(RisultatiIncompiuti, AreNoFilesThatBreakTheRulesBeforeTheirEnd) {
    const std::string tutto = finito(2, 4);
    const std::size_t secondi = tutto.rfind("sigmaVv");
    const std::string dopo = tutto + "appunti\r\n";
    std::string virgola = tutto;  // a value too few in the first table
    virgola.erase(virgola.find(',', virgola.find("sigmaVv") + 160), 1);
    const std::string altraMaglia =  // a table of fewer nodes than the first
        tutto.substr(0, secondi) + "sigmaVv\r\n" + tutto.substr(tutto.size() - 40);
    for (const std::string& testo : {dopo, virgola, virgola.substr(0, secondi), altraMaglia})
        EXPECT_FALSE(risultatiIncompiuti(testo)) << testo.substr(testo.size() - 60);
    EXPECT_FALSE(risultatiIncompiuti("una lettera\r\na qualcuno\r\n"));
}

TEST(RisultatiIncompiuti, AreAnEmptyFileAndAHeadAlone) {
    EXPECT_TRUE(risultatiIncompiuti(""));
    EXPECT_TRUE(
        risultatiIncompiuti(base::inCp1252(project::testoProgetto(test::progettoSemplice()))));
}

}  // namespace
}  // namespace korven::analysis
