#pragma once

#include <string>
#include <vector>

namespace korven::commands {

/// Keys of a window and what they do there.
struct RigaTasti {
    std::string tasti;  ///< as the whole world writes them, parted by ", ": "Ctrl+O", "F2, Ctrl+C"
    std::string effetto;  ///< in the language in force
};

struct TastiFinestra {
    std::string finestra;  ///< which, in the language in force
    std::vector<RigaTasti> righe;
};

/// All keys of the program, window by window: those of the menu from its tree, then those that the
/// forms and windows take by themselves.
[[nodiscard]] std::vector<TastiFinestra> tastiProgramma();

}  // namespace korven::commands
