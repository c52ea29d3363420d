#include <gtest/gtest.h>

#include "review/bench.hpp"

namespace korven::review {
namespace {

std::string parole(int quante) {
    std::string testo = "1 ";
    for (int i = 0; i < quante; ++i) testo += "sabbia|";
    return testo;
}

const std::string entra =
    ": nella stratigrafia la descrizione entra nella testata della tabella: abbreviare le "
    "descrizioni, la più lunga è quella dello strato ";

// A line is 0.375 high, and the column 20 cm: 52 lines in all, with 0.125 below each block.
TEST(ControlloDescrizioni, NamesTheLayerWhoseTextRunsThroughTheHeadsAndTheLongestText) {
    aspetta({
        {[](DatiProgetto& d) { d.descrStrato[2] = parole(60); },
         {"strato 1" + entra + "2", "strato 2" + entra + "2"}},
        {[](DatiProgetto& d) { d.descrStrato[2] = parole(52); }, {"strato 1" + entra + "2"}},
        {[](DatiProgetto& d) { d.descrStrato[2] = parole(48); }, {}},
        // 4 of 20 m: the first text has 4 cm above its foot, and more below it.
        {[](DatiProgetto& d) { d.descrStrato[1] = parole(30); }, {}},
    });
}

TEST(ControlloDescrizioni, TellsATextOfMoreLinesThanTheLogTakesAndNamesItsLayer) {
    const auto trovati =
        righe(conModifica([](DatiProgetto& d) { d.descrStrato[2] = parole(120); }));
    ASSERT_EQ(trovati.size(), 1u);
    EXPECT_TRUE(trovati[0].starts_with("strato 2: ")) << trovati[0];
}

}  // namespace
}  // namespace korven::review
