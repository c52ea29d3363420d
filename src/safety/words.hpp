#pragma once

#include <string>

#include "base/twin_names.hpp"
#include "safety/diagnosis.hpp"

// A verdict in words, translated: forces in kN/m, moments in kN m/m, displacements in mm: per metre
// of wall. Lower case and without a full stop, as parts of a line.

namespace korven::safety {

/// The command that computes the equilibrium solution.
inline constexpr base::Gemelli comandoEquilibrio{"equilibrio", "equilibrium"};

/// Where the user of a program finds the equilibrium solution, as sentences say it.
enum class LuogoEquilibrio {
    comando,  ///< the command above, of the command line
    finestra  ///< the window of the desktop
};

/// That of this program: set once, at its start.
extern LuogoEquilibrio luogoEquilibrio;

/// A depth or a length to the centimetre, without zeros at its end: "4.2".
[[nodiscard]] std::string metri(double m);

/// The same with both decimals, as in the columns of a table: "4.20".
[[nodiscard]] std::string metriAllineati(double m);

/// How the wall moves: "ruota attorno alla profondità di 4.20 m, il piede verso lo scavo".
/// @param paratia  length of the wall [m]
[[nodiscard]] std::string parole(const equilibrium::Meccanismo& moto, double paratia);

/// What holds too little: "mancano 35.1 kN m/m", of a translation "mancano 12.0 kN/m".
[[nodiscard]] std::string mancante(const equilibrium::Meccanismo& moto);

/// "al limite: monte attivo 0.00-10.00 m, valle passivo 8.00-10.00 m; tirante lento 2"; empty if
/// nothing is.
[[nodiscard]] std::string parole(const equilibrium::PartiAlLimite& parti);

/// The value for which no equilibrium is certain, and what to look at. Empty for none.
[[nodiscard]] std::string parole(const equilibrium::DatoInstabile& dato);

/// Why there are no displacements, and what to look at. Empty where they were found.
[[nodiscard]] std::string parole(equilibrium::EsitoNewton esito);

/// What is known of a stage: "in equilibrio", "meccanismo", "non definito", "nessun numero".
[[nodiscard]] std::string parole(equilibrium::EsitoFase esito);

/// The short form: the stage, the movement and what is missing; of a wall that stands how far it
/// moves; or what makes it no equilibrium or no number.
[[nodiscard]] std::string inBreve(const Diagnosi& diagnosi);

/// The stage and what is wrong with it, in words that have room in a status line.
[[nodiscard]] std::string inPocheParole(const Diagnosi& diagnosi);

/// The whole form, one line: the short one, the parts at their limits, what helps.
[[nodiscard]] std::string frase(const Diagnosi& diagnosi);

}  // namespace korven::safety
