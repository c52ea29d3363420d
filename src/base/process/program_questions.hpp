#pragma once

#include <array>
#include <string>
#include <string_view>

#include "base/twin_names.hpp"

// What every program of the house answers before it does any work.

namespace korven::base {

enum class Richiesta { nessuna, versione, aiuto };

/// A question with its names on the command line.
struct Domanda {
    Richiesta richiesta;
    std::string_view breve;  ///< "-h"; empty for none
    Gemelli nome;
    std::string_view spiegazione;  ///< for the help, the key of a text

    /// The name that the help leaves out: the Italian one. In Italian it shows both, and this is
    /// empty.
    [[nodiscard]] std::string_view taciuto() const;
};

/// In the order of the help.
inline constexpr std::array<Domanda, 2> domande = {{
    {Richiesta::aiuto, "-h", {"--aiuto", "--help"}, "mostra questo aiuto"},
    {Richiesta::versione, {}, {"--versione", "--version"}, "mostra la versione"},
}};

/// What a program says of wrong usage after the reason: how its help is called, in the language in
/// use: "Per l'aiuto: korven32c --aiuto".
[[nodiscard]] std::string perAiuto(std::string_view programma);

/// What the helps call the project that a program is given.
inline constexpr Gemelli argomentoProgetto{"PROGETTO.kvd", "PROJECT.kvd"};

/// What an argument of the command line asks for, by any name of a question.
[[nodiscard]] Richiesta richiesta(std::string_view argomento);

/// The help of a program that has no options of its own: name and version, `uso` as the way it is
/// called, the two questions with the names that belong to the language. Lines, in the language in
/// force.
[[nodiscard]] std::string testoAiuto(std::string_view uso);

/// The language that `language.cfg` of the program folder names, for what is told before anything
/// else is ready: where it can't be had the texts are Italian, and nobody is told.
void scegliLinguaSilenziosa();

}  // namespace korven::base
