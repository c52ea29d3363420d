#pragma once

#include <string>
#include <variant>
#include <vector>

#include "scene/palette.hpp"

// A picture as what it is made of, in device-independent pixels: x to the right, y down, the origin
// at the upper left corner. It holds roles, not colours, and is painted in the order of its list.

namespace korven::scene {

struct Punto {
    double x = 0, y = 0;
    bool operator==(const Punto&) const = default;
};

/// An upright rectangle.
struct Riquadro {
    double sinistra = 0, alto = 0, destra = 0, basso = 0;
    [[nodiscard]] double larghezza() const { return destra - sinistra; }
    [[nodiscard]] double altezza() const { return basso - alto; }
    [[nodiscard]] bool tocca(const Riquadro& r) const {
        return sinistra < r.destra && r.sinistra < destra && alto < r.basso && r.alto < basso;
    }
    bool operator==(const Riquadro&) const = default;
};

enum class Tratteggio { nessuno, linee, punti };

/// A chain of lines.
struct Linea {
    std::vector<Punto> punti;
    Tinta tinta;
    double spessore = 1;
    Tratteggio tratteggio = Tratteggio::nessuno;
    bool operator==(const Linea&) const = default;
};

/// A chain of lines with a head at its last point.
struct Freccia {
    std::vector<Punto> punti;
    Tinta tinta;
    double spessore = 1;
    double testa = 6;  ///< length of the head
    bool operator==(const Freccia&) const = default;
};

/// The triangle of its head; empty for an arrow without length.
[[nodiscard]] std::vector<Punto> puntaFreccia(const Freccia& freccia);

/// A filled polygon.
struct Area {
    std::vector<Punto> punti;
    Tinta tinta;
    bool operator==(const Area&) const = default;
};

/// A convex polygon under a hatch of the library, whose tiles lie at the origin of the picture.
struct Campitura {
    std::vector<Punto> punti;
    double codice = 0;  ///< as `drawings::disegnaCampitura`
    Tinta tinta;
    bool operator==(const Campitura&) const = default;
};

enum class Ancora { sinistra, centro, destra };

/// One line of text.
struct Testo {
    Punto punto;                       ///< at mid height of its capitals
    Ancora ancora = Ancora::sinistra;  ///< which end of the text the point is
    double corpo = 12;                 ///< size of the font
    bool grassetto = false;
    bool verticale = false;  ///< turned by a quarter, to be read from the right
    std::string testo;       ///< translated, UTF-8
    Tinta tinta;
    /// What it stands on: painted under it as a plate where `piastra` is true.
    Tinta fondo{Ruolo::sfondo};
    bool piastra = false;
    double larghezza = 0;  ///< as measured

    /// The room that it takes, plate included.
    [[nodiscard]] Riquadro riquadro() const;
    bool operator==(const Testo&) const = default;
};

using Figura = std::variant<Area, Campitura, Linea, Freccia, Testo>;

/// Which part of the project a figure shows.
enum class Elemento {
    sfondo,
    strato,
    terreno,
    sovraccarico,
    acqua,
    muro,
    vincolo,
    caricoTesta,
    tirante,
    fase,
    quota,
    asse,
    curva,
    estremo,
    meccanismo,
    nota,
};

struct Primitiva {
    Elemento elemento = Elemento::sfondo;
    int numero = 0;  ///< of the layer, the anchor, the stage; 0 of what is not counted
    Figura figura;
    bool operator==(const Primitiva&) const = default;
};

/// A picture and what is needed to read it.
struct Scena {
    double larghezza = 0, altezza = 0;
    double corpo = 12;  ///< of its usual texts
    std::vector<Primitiva> primitive;

    double yTesta = 0;   ///< of depth 0
    double scala = 1;    ///< pixels in a metre, both ways
    double paratia = 0;  ///< length of the wall [m]; 0: none is drawn
    Riquadro lettura;    ///< where the wall and its curve can be read

    [[nodiscard]] double y(double z) const { return yTesta + scala * z; }
    /// The depth of a height, within the wall.
    [[nodiscard]] double z(double y) const;
    bool operator==(const Scena&) const = default;
};

}  // namespace korven::scene
