#pragma once

#include <optional>
#include <string>

#include "masks/field_places.hpp"
#include "project/project_data.hpp"
#include "review/remark.hpp"

namespace korven::commands {

/// The remarks on the open project, as it changes. Those on what is typed are there at once; those
/// on results take a computation, which whoever holds this makes when it suits.
class OsservazioniAperte {
 public:
    /// Looks at the file of the open project: after each command that may have changed it, and
    /// never during a run, while `fileCorrente` names another one.
    void guardaFile();

    /// Takes the data that are shown: those of the project, or what is typed into a form of it.
    void guarda(const project::DatiProgetto& dati);

    /// Takes the remarks on the results of these data; nullptr while they are computed.
    void risultati(const review::Osservazioni* trovate);

    /// All that are known, by weight; none while nothing has been typed into a new project, whose
    /// missing data are no dangers yet.
    [[nodiscard]] const review::Osservazioni& tutte() const { return tutte_; }

    /// How many there are: "1 pericolo, 2 da vedere", with "…" while more may come, and that
    /// nothing is typed yet; empty without a project.
    [[nodiscard]] std::string conteggio() const;

 private:
    void raccogli();

    bool aperto_ = false;
    bool vuoto_ = false;                  // nothing has been typed into it yet
    bool attende_ = false;                // remarks on results may come
    project::DatiProgetto letti_, dati_;  // as the file has them, and as they are shown
    review::Osservazioni delFile_, deiDati_, deiRisultati_, tutte_;
};

/// Where the field of a remark is edited: of several the first that a form shows; nothing for one
/// without.
[[nodiscard]] std::optional<masks::PostoCampo> postoDi(const review::Osservazione& osservazione);

}  // namespace korven::commands
