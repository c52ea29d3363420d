#pragma once

#include <sys/types.h>

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace korven::test {

/// What a finished program left.
struct EsitoProgramma {
    int codice = -1;  ///< exit code; -1 if a signal ended it
    std::string uscita, errori;
};

/// The surroundings of a program.
struct Ambiente {
    std::string cartella = {};                                        ///< working folder
    std::vector<std::pair<std::string, std::string>> variabili = {};  ///< added to its environment
    std::optional<long> limiteFile = {};  ///< bytes that a file may grow to
    std::string uscita = {};  ///< file that takes the standard output; empty: it is kept
    /// Obeys the permissions of files even as root. Exit code 127 where that can't be had.
    bool senzaPrivilegi = false;
    bool uscitaNonLetta = false, erroriNonLetti = false;  ///< a pipe whose reader is gone
};

/// Takes what the machine says of its language out of the environment of this process.
void dimenticaLingua();

/// A program that runs beside the test and knows nothing of the machine's language. Its two outputs
/// are kept in pipes until `attendi`.
class ProgrammaInCorso {
 public:
    ProgrammaInCorso(const std::string& programma, const std::vector<std::string>& argomenti,
                     const Ambiente& ambiente = {});
    ProgrammaInCorso(const ProgrammaInCorso&) = delete;
    ProgrammaInCorso& operator=(const ProgrammaInCorso&) = delete;
    ~ProgrammaInCorso();

    void segnale(int numero) const;
    /// True once the program has a handler of its own for the signal. @return false after 10 s
    [[nodiscard]] bool aspettaSegnale(int numero) const;
    /// Reads standard error until it holds this.
    /// @return false if it ended before
    bool aspetta(std::string_view negliErrori);
    /// Reads both outputs to their ends and waits for the program.
    EsitoProgramma attendi();

 private:
    pid_t processo_ = -1;
    int uscita_ = -1, errori_ = -1;
    std::string erroriLetti_;
};

}  // namespace korven::test
