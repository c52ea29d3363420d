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
    /// What the remarks on results are computed of.
    struct Domanda {
        int numero = 0;  ///< by which the answer is known
        project::DatiProgetto dati;
        int nSeg = 0;
    };

    /// Looks at `Progetto` and its file: after each command that may have changed them, and never
    /// during a run, while `fileCorrente` names another file. Remarks on results stay as long as
    /// what they were computed of.
    void guarda();

    /// What is to be computed; nothing while all is known, or where a run would be refused.
    [[nodiscard]] const std::optional<Domanda>& domanda() const { return domanda_; }
    /// Takes the remarks on the results of a question. Those of an earlier one are dropped.
    void rispondi(int numero, review::Osservazioni risultati);

    /// All that are known, by weight.
    [[nodiscard]] const review::Osservazioni& tutte() const { return tutte_; }

    /// How many there are: "1 pericolo, 2 da vedere", with "…" while more may come; empty without a
    /// project.
    [[nodiscard]] std::string conteggio() const;

 private:
    void guardaFile();
    void chiedi();
    void raccogli();

    bool aperto_ = false;
    int numero_ = 0;               // of the last question
    project::DatiProgetto letti_;  // as the file has them, while its odd lines are remarked
    review::Osservazioni delFile_, deiDati_, deiRisultati_, tutte_;
    std::optional<Domanda> domanda_;
    std::optional<Domanda> ultima_;  // asked last, whether answered or not
};

/// Where the field of a remark is edited: of several the first that a form shows; nothing for one
/// without.
[[nodiscard]] std::optional<masks::PostoCampo> postoDi(const review::Osservazione& osservazione);

}  // namespace korven::commands
