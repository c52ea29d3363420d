#pragma once

#include <string>
#include <utility>
#include <vector>

#include "document/layout.hpp"

// What the tests of pages set down: blocks under a head and above a foot, and texts of so many
// lines.

namespace korven::test {

inline document::Impaginato posto(std::vector<document::Blocco> blocchi) {
    document::Documento d;
    d.testata = {"Muro", "KORVEN 32"};
    d.piede = "muro.kvd";
    d.blocchi = std::move(blocchi);
    return impagina(d, document::Formato{}, document::CaratteriStimati());
}

inline document::Paragrafo righe(int quante) {
    std::string testo = "1";
    for (int i = 2; i <= quante; ++i) testo += "\n" + std::to_string(i);
    return {testo};
}

/// Lines of usual text that fill a page but for some.
inline int righePerPagina() {
    const double alta = 9.5 * 1.32;
    return static_cast<int>(document::Formato{}.altezzaTesto() / alta);
}

}  // namespace korven::test
