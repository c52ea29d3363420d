#include "base/folders/user_data.hpp"

#include <cstdlib>
#include <filesystem>

#include "base/files.hpp"
#include "base/folders/program_folder.hpp"

namespace korven::base {

namespace fs = std::filesystem;

std::string cartellaCasa() {
    const char* casa = std::getenv("HOME");
    return casa != nullptr ? casa : "/tmp";
}

std::string cartellaDatiUtente() {
    const char* dati = std::getenv("XDG_DATA_HOME");
    if (dati != nullptr && fs::path(dati).is_absolute())
        return (fs::path(dati) / "korven32").string();
    return (fs::path(cartellaCasa()) / ".local" / "share" / "korven32").string();
}

bool serveCartellaUtente() {
    return !cartellaProgrammaNominata() && (programmaInstallato() || !accettaFile(cartellaDati()));
}

void seguiCartellaUtente() {
    if (serveCartellaUtente()) impostaCartellaUtente(cartellaDatiUtente());
}

std::string cartellaProgetti() {
    const fs::path programma = cartellaProgramma();
    const bool apparte = programma != cartellaDati();
    return (apparte ? fs::path(cartellaCasa()) / "korven32" : programma / "data").string();
}

}  // namespace korven::base
