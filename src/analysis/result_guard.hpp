#pragma once

#include <string>

#include "analysis/progress.hpp"
#include "base/dialogo.hpp"
#include "base/folders/file_lock.hpp"

namespace korven::analysis {

/// Keeps a result file for one run and what is made of it: from the comparison to the last output
/// no other run of these programs writes, removes or reads it.
///
/// Held by whoever runs `CalcoloParatia` and writes its outputs, and let go with the object. The
/// lock is a small file beside the result file (`base::Serratura`), since the result file itself
/// is removed and made anew. Two guards of one program do not shut each other out: while an
/// export waits for its converter the user may already ask for the next output. Where no lock can
/// be had, in a folder that can't be written and on a file system without locks, a run goes on
/// without one: it finds out by itself that a folder is read-only, and runs at the same time do
/// not see one another.
class GuardiaRisultati {
 public:
    /// Waiting for another run: so many times a pause of `Avanzamento::attendi`, 10 s in all.
    static constexpr int pause = 200;

    GuardiaRisultati() = default;
    GuardiaRisultati(const GuardiaRisultati&) = delete;
    GuardiaRisultati& operator=(const GuardiaRisultati&) = delete;
    ~GuardiaRisultati() { lascia(); }

    /// Takes the result file, waiting for another run that holds it, and removes one that such a
    /// run has left unfinished (`risultatiIncompiuti`), which it tells. What is held already stays
    /// so and is not looked at again.
    /// @return false when the user gave up waiting (`stopCalcolo`)
    /// @throws base::ErroreScrittura if the other run still holds it in the end, or if something
    /// that is no lock has its name
    [[nodiscard]] bool occupa(const std::string& risultati, base::Dialogo& dialogo,
                              Avanzamento& avanzamento);

    /// Removes a result file whose numbers can't be shown, so that nobody takes it for up to date.
    /// It stays when it is a project, or another run holds it by now.
    void togliNonMostrabili(const std::string& risultati);

 private:
    [[nodiscard]] bool attendi(const std::string& risultati, const std::string& serratura,
                               Avanzamento& avanzamento);
    /// @return false when another program holds it
    [[nodiscard]] bool prova(const std::string& serratura);
    void lascia();

    base::Serratura serratura_;
};

}  // namespace korven::analysis
