#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "drawings/log/graphic_code.hpp"
#include "plot/colour.hpp"

namespace korven::drawings {

/// A pattern that can be chosen.
struct VoceCampitura {
    int numero = 0;    ///< 0: none
    std::string nome;  ///< with its number, in the language in force
};

/// "5 Argilla"; says so where there is no such pattern, or none at all for 0.
/// @param numero  0 to 99
/// @throws base::ErroreFile when the library is missing or broken
[[nodiscard]] std::string nomeCampitura(int numero);

/// No pattern, then all patterns of the library that a code can name.
/// @throws base::ErroreFile when the library is missing or broken
[[nodiscard]] std::vector<VoceCampitura> vociCampitura();

/// The number that `disegnaCampitura` takes for one pattern.
[[nodiscard]] double codiceCampitura(GruppoCampitura gruppo);

/// True when a pattern is what somebody looks for: each word of `cercato` stands in its name or
/// number, whatever the case. Empty finds all.
[[nodiscard]] bool trovata(const VoceCampitura& voce, std::string_view cercato);

/// A colour of a hatch, as the pens have it.
struct VoceColore {
    int numero = 1;                    ///< as it stands behind "C"
    plot::Colore valore = plot::nero;  ///< as it is drawn
    std::string nome;                  ///< of the colour among the pens; empty if they have none
};

/// The colours 1 to 21 with the pens of the language in force; black without a name where the pens
/// cannot be read.
[[nodiscard]] std::vector<VoceColore> vociColore();

/// The hatch of a description as a picture shows it.
struct FiguraCampitura {
    double codice = 0;
    plot::Colore colore = plot::nero;
    std::string nome;  ///< numbers and names of its patterns, the lowest first
};

/// @throws base::ErroreFile when the library is missing or broken
[[nodiscard]] FiguraCampitura figura(std::string_view descrStrato);

/// The hatch of a layer while it is being chosen: up to two patterns over each other, colour, line
/// at the foot. What else the code has stays as it is.
class SceltaCampitura {
 public:
    enum Livello : std::size_t { sotto, sopra };

    explicit SceltaCampitura(std::string descrStrato);

    /// Number and size step of a pattern; 0 and the normal step where there is none.
    [[nodiscard]] GruppoCampitura gruppo(Livello livello) const;
    void scegli(Livello livello, GruppoCampitura gruppo);

    [[nodiscard]] int colore() const { return codice_.colore; }
    void colora(int colore) { codice_.colore = colore; }
    [[nodiscard]] bool lineaAlPiede() const { return codice_.lineaAlPiede; }
    void traccia(bool lineaAlPiede) { codice_.lineaAlPiede = lineaAlPiede; }
    /// False without a hatch: the line is left out by a sign before its number, and 0 has none.
    [[nodiscard]] bool puoTogliereLinea() const;

    /// The number that `disegnaCampitura` takes.
    [[nodiscard]] double campitura() const;
    /// The description with the code chosen.
    [[nodiscard]] std::string descrizione() const;

 private:
    [[nodiscard]] CodiceGrafico scelto() const;

    std::string iniziale_;
    CodiceGrafico codice_;
};

}  // namespace korven::drawings
