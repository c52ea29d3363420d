#pragma once

#include <string>
#include <vector>

#include "support/temporary_folder.hpp"

// Masks with the fields that the five editors need and nothing to trip over: numbers without narrow
// limits, choices of three.

namespace korven::test {

inline std::string campiSemplici(int quanti, const std::string& testa,
                                 const std::string& tipo = "0") {
    std::string testo = testa + std::to_string(quanti) + "\n";
    for (int i = 0; i < quanti; ++i) testo += "x\n" + tipo + "\n-1e9\n1e9\nh\n";
    return testo + "\n2\na\nb\n";
}

/// Writes the five mask files into a folder. @return their paths, in the order of the masks
inline std::vector<std::string> maschereSemplici(const CartellaProvvisoria& cartella) {
    const std::string scelta = "s\n0\n1\n3\nh\n";
    std::string paratia = campiSemplici(11, "1\nD\n7\n1|2\n1|2|3\n1|2\n1|2\n1|2\n1|2|3\n1|2|3|4\n");
    const auto dopo = paratia.find("11\n") + 3;
    for (int i = 0; i < 7; ++i) paratia.insert(dopo, scelta);
    const std::string testi[] = {campiSemplici(7, "1\nT\n0\n", "80"), paratia,
                                 campiSemplici(8, "4\nS\n"), campiSemplici(5, "2\nA\n"),
                                 campiSemplici(5, "2\nF\n")};
    std::vector<std::string> percorsi;
    for (const auto& testo : testi) {
        percorsi.push_back(cartella / ("m" + std::to_string(percorsi.size())));
        metti(percorsi.back(), testo);
    }
    return percorsi;
}

}  // namespace korven::test
