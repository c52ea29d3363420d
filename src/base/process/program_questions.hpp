#pragma once

#include <string>
#include <string_view>

// What every program of the house answers before it does any work.

namespace korven::base {

enum class Richiesta { nessuna, versione, aiuto };

/// What an argument of the command line asks for: "--version" and "--help", their Italian twins
/// "--versione" and "--aiuto", and "-h".
[[nodiscard]] Richiesta richiesta(std::string_view argomento);

/// The help of a program that has no options of its own: name and version, `uso` as the way it is
/// called, the two questions with the names that belong to the language. Lines, in the language in
/// force.
[[nodiscard]] std::string testoAiuto(std::string_view uso);

/// The language that `language.cfg` of the program folder names, for what is told before anything
/// else is ready: where it can't be had the texts are Italian, and nobody is told.
void scegliLinguaSilenziosa();

}  // namespace korven::base
