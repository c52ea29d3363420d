#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/process/program_questions.hpp"

namespace korven::commands {

/// What the command line of the desktop program asks for before a window is opened.
struct ArgomentiDesktop {
    base::Richiesta richiesta = base::Richiesta::nessuna;
    std::string sconosciuto;  ///< an argument that looks like an option and is none; empty if all
                              ///< is well
};

/// Looks through the arguments after the program's name, up to the first that is no option. The
/// options of the window system are none of the program's and pass.
/// @param esiste  tells whether a file exists: a project may have any name, "--help" too
[[nodiscard]] ArgomentiDesktop leggiArgomenti(
    const std::vector<std::string>& argomenti,
    const std::function<bool(const std::string&)>& esiste);

/// The arguments with which a program starts again: its own, the project that is open in place of
/// the one that it was started with.
/// @param argomenti  as the program got them, its name the first
/// @param iniziale   the project among them; empty if they name none
/// @param progetto   path of the open project; empty: none
[[nodiscard]] std::vector<std::string> argomentiRiavvio(std::vector<std::string> argomenti,
                                                        const std::string& iniziale,
                                                        const std::string& progetto);

/// Answers a question on standard output and a wrong argument on standard error.
/// @return the exit code with which the program ends; -1 if it goes on
[[nodiscard]] int rispondi(const ArgomentiDesktop& argomenti);

}  // namespace korven::commands
