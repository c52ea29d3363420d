#pragma once

#include <string>
#include <utility>
#include <vector>

#include "scene/picture.hpp"
#include "scene/text_measure.hpp"

namespace korven::scene {

/// A place for a text.
struct Posto {
    Punto punto;
    Ancora ancora = Ancora::sinistra;
    Tinta fondo{Ruolo::sfondo};  ///< what is behind it there
};

/// Which texts find a place first.
enum class Grado { nota, asse, carico, estremo, acqua, tirante, quota, fase, strato };

/// A text to be placed.
struct Scritta {
    Grado grado = Grado::nota;
    Elemento elemento = Elemento::nota;
    int numero = 0;
    std::string testo;
    std::string inBreve = {};  ///< taken where the whole text finds no place
    Tinta tinta;
    bool piastra = true;
    double corpo = 12;
    bool grassetto = false;
    bool verticale = false;
    std::vector<Posto> posti;  ///< the first that is free is taken
};

/// A picture in the making. Texts lie over all else and never over each other: one that finds no
/// place is left out.
class Tela {
 public:
    Tela(double larghezza, double altezza, const MisuraTesti& misura)
        : tutto_{0, 0, larghezza, altezza}, misura_(misura) {}

    void disegna(Elemento elemento, int numero, Figura figura);
    void scrivi(Scritta scritta) { scritte_.push_back(std::move(scritta)); }

    /// Keeps texts out of a place.
    void occupa(const Riquadro& posto) { occupati_.push_back(posto); }

    [[nodiscard]] double larghezza(const std::string& testo, double corpo,
                                   bool grassetto = false) const {
        return misura_.larghezza(testo, corpo, grassetto);
    }
    [[nodiscard]] const MisuraTesti& misura() const { return misura_; }

    /// All figures in their order, then the texts that have found a place.
    [[nodiscard]] std::vector<Primitiva> concludi();

 private:
    [[nodiscard]] bool libero(const Riquadro& posto) const;
    [[nodiscard]] bool colloca(const Scritta& scritta, const std::string& parole);

    Riquadro tutto_;
    const MisuraTesti& misura_;
    std::vector<Primitiva> figure_;
    std::vector<Scritta> scritte_;
    std::vector<Riquadro> occupati_;
};

}  // namespace korven::scene
