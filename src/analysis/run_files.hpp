#pragma once

#include <string>
#include <string_view>

#include "analysis/progress.hpp"
#include "base/disk.hpp"

// What a run does with files and their names: guards that put things back, whatever ends the run.

namespace korven::analysis {

/// Puts the name of the result file in the place of the project's in `fileCorrente`, for as long as
/// it lives. A project that is saved while events are served, as when the session ends, keeps the
/// name it was given.
class NomeRisultati {
 public:
    NomeRisultati();
    NomeRisultati(const NomeRisultati&) = delete;
    NomeRisultati& operator=(const NomeRisultati&) = delete;
    ~NomeRisultati();

    /// `fileCorrente` stays at the result file's name. It is no project's, and the next run, which
    /// writes its results there, knows by `nomeLasciato`.
    void lascia();

 private:
    std::string progetto_, risultati_;
    bool lasciato_ = false;
};

/// Keeps outputs from the place of the project of this name, for as long as it lives; a name at
/// which a run has left `fileCorrente` is none.
class ProgettoAlSicuro {
 public:
    explicit ProgettoAlSicuro(const std::string& progetto);
    ProgettoAlSicuro(const ProgettoAlSicuro&) = delete;
    ProgettoAlSicuro& operator=(const ProgettoAlSicuro&) = delete;
    ~ProgettoAlSicuro();

 private:
    std::string prima_;
};

/// A result file in the making and the progress display beside it: begun with `Progetto` as the
/// head of `fileCorrente`, and both gone unless the run ends well. It keeps its own name:
/// `fileCorrente` may become that of a project that is saved meanwhile.
class FileInCorso {
 public:
    /// @throws base::ErroreScrittura if the head can't be written; no file stays
    /// @param disco  must outlive the file
    FileInCorso(Avanzamento& avanzamento, const base::Disco& disco);
    FileInCorso(const FileInCorso&) = delete;
    FileInCorso& operator=(const FileInCorso&) = delete;
    ~FileInCorso();

    void aggiungi(std::string_view testo);
    /// The file stays.
    void finito() { finito_ = true; }

 private:
    Avanzamento& avanzamento_;
    const base::Disco& disco_;
    std::string nome_;
    bool finito_ = false;
};

/// Whether the file of `fileCorrente` holds results of the very `Progetto`.
[[nodiscard]] bool risultatiAggiornati();

}  // namespace korven::analysis
