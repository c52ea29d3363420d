#pragma once

#include <string>
#include <vector>

#include "scene/canvas.hpp"

namespace korven::drawings {

/// A value of an axis with a name: of a field that has a few values alone.
struct NomeAsse {
    double valore;
    std::string nome;
};

/// What is written at an axis.
struct TestiAsse {
    std::string titolo;            ///< translated, or a code name, with its unit
    bool interi = false;           ///< between whole numbers there is nothing
    std::vector<NomeAsse> nomi{};  ///< in the place of numbers; none: numbers
};

/// What the numbers of an axis go from and to.
struct Estensione {
    double minimo = 0, massimo = 0;
    bool vuota = true;

    /// Makes room for a number; one that is none needs none.
    void comprendi(double v);
    /// With some air at both ends, and of some length where all numbers are one.
    [[nodiscard]] Estensione conAria() const;
};

/// A field of numbers with an axis below and one at its left.
class Assi {
 public:
    /// @param posto   of the field with the numbers and titles of its axes [px]
    /// @param fascia  height of a strip below the field, through which its grid goes on [px]
    Assi(const scene::Riquadro& posto, const Estensione& x, const Estensione& y, TestiAsse testiX,
         TestiAsse testiY, double fascia = 0);

    [[nodiscard]] const scene::Riquadro& campo() const { return campo_; }
    [[nodiscard]] double x(double v) const;
    [[nodiscard]] double y(double v) const;
    [[nodiscard]] scene::Punto punto(double vx, double vy) const { return {x(vx), y(vy)}; }

    /// The height of the title below.
    [[nodiscard]] double yTitoloX() const;

    /// Grid, numbers, titles, border.
    void disegna(scene::Tela& tela) const;

 private:
    void verticali(scene::Tela& tela) const;
    void orizzontali(scene::Tela& tela) const;

    scene::Riquadro campo_;
    double sinistra_;  // of the place
    Estensione x_, y_;
    TestiAsse testiX_, testiY_;
    double fascia_;
};

/// A text of a chart at a place of its own, or none where another text is already.
void scriviNota(scene::Tela& tela, std::string testo, scene::Punto punto, scene::Ancora ancora,
                scene::Ruolo ruolo = scene::Ruolo::testo, bool grassetto = false);

}  // namespace korven::drawings
