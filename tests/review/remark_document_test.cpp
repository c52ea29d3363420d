// The page for users and developers that lists all remarks, compared with the table.

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <string>

#include "review/remark_table.hpp"

namespace korven::review {
namespace {

using Pesi = std::map<std::string, std::string>;

std::string inInglese(Peso peso) {
    return peso == Peso::impedisce  ? "prevents"
           : peso == Peso::pericolo ? "danger"
                                    : "to be checked";
}

TEST(PaginaOsservazioni, ListsEveryCodeOnceWithItsWeightAndSaysWhenAndWhy) {
    Pesi attesi;
    for (const auto voci : vociOsservazioni)
        for (const auto& voce : voci) attesi[std::string(voce.codice)] = inInglese(voce.peso);

    std::ifstream file(KORVEN_DOCS "/remarks.md");
    const std::string pagina{std::istreambuf_iterator<char>(file), {}};
    const std::regex riga(R"(\n\| `([a-z0-9-]+)` \| ([a-z ]+) \| [^|\n]{3,} \| [^|\n]{3,} \|)");
    Pesi scritti;
    for (std::sregex_iterator trovata(pagina.begin(), pagina.end(), riga), fine; trovata != fine;
         ++trovata)
        EXPECT_TRUE(scritti.emplace((*trovata)[1], (*trovata)[2]).second) << (*trovata)[1];
    EXPECT_EQ(scritti, attesi);
}

}  // namespace
}  // namespace korven::review
