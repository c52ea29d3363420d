#include "commands/user_folder.hpp"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <string_view>

#include "base/code_page.hpp"
#include "base/files.hpp"
#include "base/program_folder.hpp"
#include "commands/project_commands.hpp"

namespace korven::commands {

namespace {

namespace fs = std::filesystem;

// The program's own files, which a newer version brings anew: by the end of their names, texts by
// the beginning too, for the user may keep texts of his own here.
bool delProgramma(const fs::path& file) {
    const std::string nome = base::minuscolo(file.filename().string());
    const std::string tipo = base::minuscolo(file.extension().string());
    constexpr std::string_view tipi[] = {".rtn", ".mav", ".hlp"};
    return std::find(std::begin(tipi), std::end(tipi), tipo) != std::end(tipi) ||
           (nome.starts_with("texts") && tipo == ".txt");
}

bool programma(const fs::directory_entry& voce) {
    constexpr auto eseguibile =
        fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;
    return (voce.status().permissions() & eseguibile) != fs::perms::none;
}

void copia(const fs::path& da, const fs::path& a) {
    const bool esiste = base::esisteFile(a.string());
    if (esiste && !delProgramma(a)) return;
    const std::string contenuto = base::leggiFile(da.string());
    if (!esiste || base::leggiFile(a.string()) != contenuto)
        base::scriviFile(a.string(), contenuto);
}

void copiaCartella(const fs::path& da, const fs::path& a, bool anchePrivate) {
    creaCartella(a.string());
    std::error_code errore;
    fs::directory_iterator voce(da, errore);
    for (; !errore && voce != fs::directory_iterator(); voce.increment(errore)) {
        const fs::path meta = a / voce->path().filename();
        if (voce->is_directory()) {
            if (anchePrivate || voce->path().filename() == "data")
                copiaCartella(voce->path(), meta, true);
        } else if (voce->is_regular_file() && !programma(*voce)) {
            copia(voce->path(), meta);
        }
    }
}

}  // namespace

bool cartellaScrivibile(const std::string& cartella) { return base::accettaFile(cartella); }

std::string cartellaDatiUtente() {
    const char* dati = std::getenv("XDG_DATA_HOME");
    if (dati != nullptr && fs::path(dati).is_absolute())
        return (fs::path(dati) / "korven32").string();
    const char* casa = std::getenv("HOME");
    return (fs::path(casa != nullptr ? casa : "/tmp") / ".local" / "share" / "korven32").string();
}

void copiaDati(const std::string& installata, const std::string& utente) {
    copiaCartella(installata, utente, false);
}

void scegliCartellaProgramma() {
    const std::string installata = base::cartellaProgramma();
    if (cartellaScrivibile(installata)) return;
    copiaDati(installata, cartellaDatiUtente());
    base::impostaCartellaProgramma(cartellaDatiUtente());
}

}  // namespace korven::commands
