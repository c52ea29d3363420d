#include "commands/last_folder.hpp"

#include <filesystem>

#include "base/file_error.hpp"
#include "base/files.hpp"
#include "base/folders/program_folder.hpp"
#include "base/folders/user_data.hpp"

namespace korven::commands {

namespace {

namespace fs = std::filesystem;

std::string fileCartella() { return base::fileProgramma("path"); }

void vaiA(const fs::path& cartella) {
    std::error_code errore;
    if (!cartella.empty()) fs::current_path(cartella, errore);
}

}  // namespace

void vaiAllUltimaCartella() {
    if (!base::esisteFile(fileCartella())) scriviUltimaCartella(base::cartellaProgetti());
    try {
        const std::string contenuto = base::leggiFile(fileCartella());
        vaiA(contenuto.substr(0, contenuto.find_first_of("\r\n")));
    } catch (const base::ErroreFile&) {
        return;  // the dialog starts where the program is
    }
}

void ricordaCartella(const std::string& progetto) {
    vaiAllaCartellaDi(progetto);
    scriviUltimaCartella(fs::path(progetto).parent_path().string());
}

void vaiAllaCartellaDi(const std::string& progetto) { vaiA(fs::path(progetto).parent_path()); }

void scriviUltimaCartella(const std::string& cartella, const base::Disco& disco) {
    try {
        base::scriviFile(fileCartella(), cartella + "\r\n", disco);
    } catch (const base::ErroreFile&) {
        return;  // the next open dialog starts elsewhere
    }
}

}  // namespace korven::commands
