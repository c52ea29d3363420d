#include "drawings/hatch_code.hpp"

#include <cmath>

namespace korven::drawings {

std::vector<GruppoCampitura> gruppiCampitura(double codice) {
    constexpr double cifreCampitura = 100, cifreGruppo = 1000;
    std::vector<GruppoCampitura> gruppi;
    for (bool altri = std::isfinite(codice); altri; codice = std::floor(codice / cifreGruppo)) {
        altri = codice >= cifreGruppo;
        const double gruppo = std::fmod(codice, cifreGruppo);
        gruppi.push_back({static_cast<int>(std::fmod(gruppo, cifreCampitura)),
                          static_cast<int>(std::floor(gruppo / cifreCampitura))});
    }
    return gruppi;
}

double unitaTratto(const Campitura& campitura, double passo) {
    return campitura.unita * std::pow(2, (passo - 1) / 4);
}

}  // namespace korven::drawings
