#pragma once

#include <cstddef>
#include <optional>
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
enum class Grado { nota, asse, carico, estremo, tirante, fase, acqua, quota, strato };

/// A text to be placed.
struct Scritta {
    Grado grado = Grado::nota;
    Elemento elemento = Elemento::nota;
    int numero = 0;
    std::string testo;
    std::vector<std::string> inBreve = {};  ///< taken in turn where the whole finds no place
    Tinta tinta;
    bool piastra = true;
    double corpo = 12;
    bool grassetto = false;
    bool verticale = false;
    std::vector<Posto> posti;            ///< the first that is free is taken
    std::optional<Linea> richiamo = {};  ///< leads from the text to what it names
};

/// A picture in the making. Texts lie over all else and never over each other: one that finds no
/// place is left out. Nor do they lie over lines of another part of the project, as long as one of
/// their places is clear of them.
class Tela {
 public:
    Tela(double larghezza, double altezza, const MisuraTesti& misura)
        : tutto_{0, 0, larghezza, altezza}, misura_(misura) {}

    void disegna(Elemento elemento, int numero, Figura figura);
    void scrivi(Scritta scritta) { scritte_.push_back(std::move(scritta)); }

    /// Keeps texts out of a place.
    void occupa(const Riquadro& posto) { occupati_.push_back(posto); }

    /// How many lines of other parts of the project, of those drawn so far, go through a place.
    [[nodiscard]] std::ptrdiff_t attraversamenti(const Riquadro& posto, Elemento elemento,
                                                 int numero) const;

    [[nodiscard]] double larghezza(const std::string& testo, double corpo,
                                   bool grassetto = false) const {
        return misura_.larghezza(testo, corpo, grassetto);
    }
    [[nodiscard]] const MisuraTesti& misura() const { return misura_; }

    /// All figures in their order, then the texts that have found a place.
    [[nodiscard]] std::vector<Primitiva> concludi();

 private:
    [[nodiscard]] bool libero(const Riquadro& posto) const;
    [[nodiscard]] bool colloca(const Scritta& scritta, const std::string& parole, bool libera);
    void colloca(const Scritta& scritta);
    void segnaTratti(Elemento elemento, int numero, const std::vector<Punto>& punti);

    Riquadro tutto_;
    const MisuraTesti& misura_;
    std::vector<Primitiva> figure_;
    std::vector<Scritta> scritte_;
    std::vector<Riquadro> occupati_;
    std::vector<Primitiva> collocate_;

    struct Tratto {
        Punto da, a;
        Elemento elemento;
        int numero;
    };
    std::vector<Tratto> tratti_;  // that texts keep clear of
};

}  // namespace korven::scene
