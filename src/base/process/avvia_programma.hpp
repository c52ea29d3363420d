#pragma once

#include <optional>
#include <string>
#include <vector>

namespace korven::base {

/// How the window of a started program is to come up; a wish that a desktop may ignore.
enum class Finestra { normale, massima, minima };

/// Starts outside programs: viewers of what was exported, the converter of reports.
class AvviaProgramma {
 public:
    virtual ~AvviaProgramma() = default;

    /// Starts a program that then lives on its own.
    /// @param programma  path, or a name that is looked for where the system looks for programs
    /// @param argomenti  each reaches the program whole, whatever blanks and quotes it holds
    /// @return false if it could not be started
    virtual bool avvia(const std::string& programma, const std::vector<std::string>& argomenti,
                       Finestra finestra) = 0;

    /// Starts a program and waits until it has ended; the window system is served meanwhile.
    /// @return its exit code; nothing if it could not be started or was ended by force
    virtual std::optional<int> esegui(const std::string& programma,
                                      const std::vector<std::string>& argomenti) = 0;

    /// Shows a file with the program that the desktop has for its kind.
    /// @return false if there is none
    virtual bool apri(const std::string& file) = 0;
};

}  // namespace korven::base
