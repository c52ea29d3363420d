#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <regex>

#include "project/codes.hpp"
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

// A restraint has no limit in the calculation: whoever signs must know what it is asked for.
TEST(CapitoloModello, TellsTheReactionOfARestraintThatIsToBeCheckedSeparately) {
    const std::string cosa =
        "Resistenza di ciò che vincola la paratia in testa o al piede, terreno, roccia o "
        "struttura: il calcolo la prende senza limite.";
    const auto detto = [&](const project::DatiProgetto& dati) {
        const auto c = test::contesto(dati);
        const auto p = test::tavola(test::blocchi(capitoloModello, c), "Che cosa non si calcola");
        return p.righe.back()[0].testo == cosa ? p.righe.back()[1].testo : std::string();
    };
    auto dati = test::progettoSemplice();
    EXPECT_EQ(detto(dati), "");
    dati.vincoloPiede = valore(project::VincoloPiede::incastro);
    const auto c = test::contesto(dati);
    const auto maggiore = [&](auto valore) {
        const auto& b = c.fascicolo->bilanci;
        return *std::max_element(b.begin(), b.end(), [&](const auto& a, const auto& z) {
            return std::fabs(valore(a)) < std::fabs(valore(z));
        });
    };
    const auto forza = maggiore([](const auto& b) { return b.piede.forza; });
    const auto momento = maggiore([](const auto& b) { return b.incastro.momento; });
    EXPECT_EQ(detto(dati),
              "Da verificare a parte con la reazione, nella fase in cui è maggiore: al piede " +
                  tables::forza(forza.piede.forza).testo + " kN/m (fase " +
                  std::to_string(forza.fase) + "); al piede " +
                  tables::momento(momento.incastro.momento).testo + " kN m/m (fase " +
                  std::to_string(momento.fase) + ").");
    dati.vincoloPiede = valore(project::VincoloPiede::libero);
    dati.vincoloTesta = valore(project::VincoloTesta::cerniera);
    EXPECT_NE(detto(dati).find("maggiore: in testa "), std::string::npos) << detto(dati);
    dati.nFasi = 0;  // nothing is computed
    EXPECT_EQ(detto(dati), "Da verificare a parte.");
}

}  // namespace
}  // namespace korven::report
