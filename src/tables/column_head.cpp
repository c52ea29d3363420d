#include "tables/column_head.hpp"

#include <algorithm>
#include <sstream>
#include <vector>

namespace korven::tables {

namespace {

std::vector<std::string> pezzi(const Colonna& colonna) {
    std::istringstream titolo(colonna.titolo);
    std::vector<std::string> tutti;
    for (std::string parola; titolo >> parola;) tutti.push_back(parola);
    if (!colonna.unita.empty()) tutti.push_back("[" + colonna.unita + "]");
    return tutti;
}

}  // namespace

int larghezzaMinimaTesta(const Colonna& colonna, const LarghezzaTesto& larga) {
    int massima = 0;
    for (const std::string& pezzo : pezzi(colonna)) massima = std::max(massima, larga(pezzo));
    return massima;
}

std::string testaInRighe(const Colonna& colonna, int spazio, const LarghezzaTesto& larga) {
    std::string finite, riga;
    for (const std::string& pezzo : pezzi(colonna)) {
        const std::string insieme = riga.empty() ? pezzo : riga + " " + pezzo;
        if (riga.empty() || larga(insieme) <= spazio) {
            riga = insieme;
            continue;
        }
        finite += riga + "\n";
        riga = pezzo;
    }
    return finite + riga;
}

}  // namespace korven::tables
