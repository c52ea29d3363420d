#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "scene/polygon.hpp"
#include "scene/scene.hpp"

namespace korven::test {

/// The figures of one kind that show one part of the project.
template <class F>
std::vector<F> figure(const scene::Scena& scena, scene::Elemento elemento, int numero = -1) {
    std::vector<F> trovate;
    for (const auto& p : scena.primitive)
        if (const F* f = std::get_if<F>(&p.figura);
            f != nullptr && p.elemento == elemento && (numero < 0 || p.numero == numero))
            trovate.push_back(*f);
    return trovate;
}

template <class F>
std::vector<F> figure(const scene::Scena& scena) {
    std::vector<F> trovate;
    for (const auto& p : scena.primitive)
        if (const F* f = std::get_if<F>(&p.figura)) trovate.push_back(*f);
    return trovate;
}

/// The box around the wall.
inline scene::Riquadro pianta(const scene::Scena& scena) {
    return intorno(figure<scene::Area>(scena, scene::Elemento::muro).at(0).punti);
}

/// The texts on one part of the project.
inline std::vector<std::string> testi(const scene::Scena& scena, scene::Elemento elemento,
                                      int numero = -1) {
    std::vector<std::string> trovati;
    for (const auto& t : figure<scene::Testo>(scena, elemento, numero)) trovati.push_back(t.testo);
    return trovati;
}

inline bool dice(const std::vector<std::string>& testi, const std::string& uno) {
    return std::find(testi.begin(), testi.end(), uno) != testi.end();
}

/// As the desktop asks for it, with estimated widths of texts.
inline scene::Scena scenaDi(const project::DatiProgetto& dati, live::Vista vista = {},
                            scene::Misura misura = {900, 580}) {
    return scene::scena(live::calcola(dati, 40), vista, misura, scene::MisuraStimata());
}

}  // namespace korven::test
