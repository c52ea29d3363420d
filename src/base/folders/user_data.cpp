#include "base/folders/user_data.hpp"

#include <cstdlib>
#include <filesystem>

#include "base/files.hpp"
#include "base/folders/program_folder.hpp"

namespace korven::base {

namespace fs = std::filesystem;

std::string cartellaDatiUtente() {
    const char* dati = std::getenv("XDG_DATA_HOME");
    if (dati != nullptr && fs::path(dati).is_absolute())
        return (fs::path(dati) / "korven32").string();
    const char* casa = std::getenv("HOME");
    return (fs::path(casa != nullptr ? casa : "/tmp") / ".local" / "share" / "korven32").string();
}

bool serveCartellaUtente() {
    return !cartellaProgrammaNominata() && !accettaFile(cartellaProgramma());
}

void seguiCartellaUtente() {
    std::error_code errore;
    if (serveCartellaUtente() && fs::is_directory(cartellaDatiUtente(), errore))
        impostaCartellaProgramma(cartellaDatiUtente());
}

}  // namespace korven::base
