#pragma once

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "base/code_page.hpp"
#include "commands/rescue/kept_rescue.hpp"
#include "project/project_file.hpp"
#include "support/document_ports.hpp"
#include "support/environment_variable.hpp"
#include "support/sample_projects.hpp"

namespace korven::test {

/// A project with unsaved work, open as "muro.kvd" in a folder of its own, and a folder of the
/// user's data of its own; everything is put back at the end.
class AmbienteRecupero : public AmbienteDocumento {
 public:
    AmbienteRecupero() {
        project::Progetto = progettoSemplice();
        project::fileCorrente = muro;
        project::modificato = true;
    }
    /// The names in a folder, but those of locks, sorted.
    [[nodiscard]] static std::vector<std::string> nomiIn(const std::string& cartella) {
        std::vector<std::string> nomi;
        std::error_code errore;
        for (const auto& voce : std::filesystem::directory_iterator(cartella, errore))
            if (!voce.path().filename().string().ends_with(".lock"))
                nomi.push_back(voce.path().filename().string());
        std::sort(nomi.begin(), nomi.end());
        return nomi;
    }
    [[nodiscard]] std::vector<std::string> nomi() const { return nomiIn(lavori.percorso()); }

    /// The text of a project as it stands in its file.
    [[nodiscard]] static std::string byte(const project::DatiProgetto& dati) {
        return base::inCp1252(project::testoProgetto(dati));
    }

    CartellaProvvisoria dati;
    const std::string muro = lavori / "muro.kvd";
    const std::string recuperato = lavori / "muro_recuperato.kvd";

 private:
    VariabileAmbiente cartellaDati_{"XDG_DATA_HOME", dati / "share"};
};

}  // namespace korven::test
