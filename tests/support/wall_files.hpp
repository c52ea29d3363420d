#pragma once

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "base/text_lines.hpp"
#include "project/project_file.hpp"
#include "structure/offered_stiffness.hpp"

namespace korven::test {

/// A project file; a stiffness that it leaves open is that of its section.
inline project::DatiProgetto leggiMuro(const std::string& percorso) {
    auto file = base::LettoreRighe::apri(percorso);
    project::DatiProgetto dati;
    project::leggiDati(file, dati);
    if (dati.rigidezzaEJ == 0)
        dati.rigidezzaEJ = structure::rigidezzaOfferta(dati.sezione).value_or(0);
    return dati;
}

/// The project files of a folder, by name.
inline std::vector<std::string> muriIn(const std::string& cartella) {
    std::vector<std::string> nomi;
    for (const auto& voce : std::filesystem::directory_iterator(cartella))
        if (voce.path().extension() == ".kvd") nomi.push_back(voce.path().string());
    std::sort(nomi.begin(), nomi.end());
    return nomi;
}

}  // namespace korven::test
