#pragma once

#include <string>

// The project is the one file that nobody can compute anew. The names of the outputs follow from
// its name by rules that cut characters, so that a name ("muro.OUT"), a link or the choice of
// another folder may lead an output to the project itself. Every output asks here before it begins.

namespace korven::project {

/// The projects that no output may replace; empty names protect nothing.
struct ProgettiProtetti {
    std::string letto;  ///< the file that `Progetto` was read from, wherever its results go
    std::string
        corrente;  ///< the project of the run in progress, while `fileCorrente` names results
};
extern ProgettiProtetti progettiProtetti;

/// The file of the open project, also while a run makes results and `fileCorrente` names them.
/// Empty: none is open.
[[nodiscard]] const std::string& progettoAperto();

/// The project whose place a file written under this name would take: the same name, a link to it,
/// or another name that leads there (`base::stessoFile`). Empty if there is none.
[[nodiscard]] std::string progettoColpito(const std::string& percorso);

/// True if there is such a project.
[[nodiscard]] bool prendeIlPostoDelProgetto(const std::string& percorso);

/// Refuses a name under which a project or another file that the output is made from would be lost.
/// @param origine  the file that the output is made from
/// @throws base::ErroreFile that names `percorso` and what would be lost; nothing is written
void controllaUscita(const std::string& percorso, const std::string& origine);

/// Refuses one of two names that lead to one file.
/// @throws base::ErroreFile that names both
void controllaCoppia(const std::string& percorso, const std::string& altro);

/// Why a run of the project named `progetto` can't put its result file beside it, as an Italian
/// key; empty if it can. A name of less than three characters would lose some of its folder's to
/// the rule that replaces the last three.
[[nodiscard]] std::string motivoNome(const std::string& progetto);

}  // namespace korven::project
