#include "document/contents_strips.hpp"

#include <gtest/gtest.h>

#include <algorithm>

#include "document/layout.hpp"
#include "support/page_boxes.hpp"

namespace korven::document {
namespace {

Impaginato posto(std::vector<Blocco> blocchi) {
    Documento d;
    d.blocchi = std::move(blocchi);
    return impagina(d, Formato{}, CaratteriStimati());
}

// What stands at the height of a text, from the left.
std::vector<std::string> riga(const Pagina& pagina, const std::string& testo) {
    const auto voce = std::find_if(pagina.scritte.begin(), pagina.scritte.end(),
                                   [&](const Scritta& s) { return s.testo == testo; });
    std::vector<Scritta> tutte;
    for (const Scritta& s : pagina.scritte)
        if (voce != pagina.scritte.end() && std::abs(s.y - voce->y) < 0.01) tutte.push_back(s);
    std::sort(tutte.begin(), tutte.end(),
              [](const Scritta& a, const Scritta& b) { return a.x < b.x; });
    std::vector<std::string> testi;
    for (const Scritta& s : tutte) testi.push_back(s.testo);
    return testi;
}

TEST(Indice, TellsThePageOfEachHeadingOfTwoLevelsBehindIt) {
    const Impaginato fatto = posto({Titolo{1, "Copertina"}, Indice{"Indice"}, SaltoPagina{},
                                    Titolo{1, "Dati"}, Titolo{3, "Misure"}, SaltoPagina{},
                                    Titolo{2, "Strati"}, SaltoPagina{}, Titolo{1, "Fasi"}});
    ASSERT_EQ(fatto.pagine.size(), 4U);
    // Two columns: Dati and Strati, beside them Fasi.
    EXPECT_EQ(riga(fatto.pagine[0], "Dati"), (std::vector<std::string>{"Dati", "2", "Fasi", "4"}));
    EXPECT_EQ(riga(fatto.pagine[0], "Strati"), (std::vector<std::string>{"Strati", "3"}));
    EXPECT_TRUE(riga(fatto.pagine[0], "Misure").empty());
    EXPECT_EQ(fatto.pagine[0].rimandi.size(), 3U);
    for (const Rimando& r : fatto.pagine[0].rimandi)
        EXPECT_NE(fatto.segnalibri.at(r.segnalibro).testo, "Misure");
}

TEST(Indice, OfManyAndLongHeadingsGoesOnAndOverlapsNothing) {
    std::vector<Blocco> blocchi{Indice{"Indice"}};
    for (int i = 0; i < 300; ++i)
        blocchi.emplace_back(Titolo{1 + i % 2, std::string(100, 'x') + std::to_string(i)});
    const Impaginato fatto = posto(std::move(blocchi));
    EXPECT_EQ(test::difetti(fatto), "");
    EXPECT_FALSE(fatto.pagine[1].rimandi.empty());
}

TEST(Indice, OfNoHeadingIsNothing) {
    const Impaginato fatto = posto({Indice{"Indice"}, Paragrafo{"testo"}});
    EXPECT_TRUE(riga(fatto.pagine[0], "Indice").empty());
}

}  // namespace
}  // namespace korven::document
