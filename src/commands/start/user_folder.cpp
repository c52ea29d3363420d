#include "commands/start/user_folder.hpp"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <string_view>

#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "base/files.hpp"
#include "base/folders/program_folder.hpp"
#include "base/folders/user_data.hpp"

namespace korven::commands {

namespace {

namespace fs = std::filesystem;

// The program's own files, which a newer version brings anew: by the end of their names, texts by
// the beginning too, for the user may keep texts of his own here, the profiles of the catalogue
// and partial factors among them.
bool delProgramma(const fs::path& file) {
    const std::string nome = base::minuscolo(file.filename().string());
    const std::string tipo = base::minuscolo(file.extension().string());
    constexpr std::string_view tipi[] = {".rtn", ".mav", ".hlp"};
    return std::find(std::begin(tipi), std::end(tipi), tipo) != std::end(tipi) ||
           (nome.starts_with("texts") && tipo == ".txt") || nome == "profili.txt" ||
           nome == "combinazioni.txt";
}

bool programma(const fs::directory_entry& voce) {
    constexpr auto eseguibile =
        fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;
    return (voce.status().permissions() & eseguibile) != fs::perms::none;
}

void copia(const fs::path& da, const fs::path& a, const base::Disco& disco) {
    const bool esiste = base::esisteFile(a.string());
    if (esiste && !delProgramma(a)) return;
    const std::string contenuto = base::leggiFile(da.string());
    if (!esiste || base::leggiFile(a.string()) != contenuto)
        base::scriviFile(a.string(), contenuto, disco);
}

void copiaCartella(const fs::path& da, const fs::path& a, bool anchePrivate,
                   const base::Disco& disco) {
    base::creaCartella(a.string());
    std::error_code errore;
    fs::directory_iterator voce(da, errore);
    for (; !errore && voce != fs::directory_iterator(); voce.increment(errore)) {
        const fs::path meta = a / voce->path().filename();
        if (voce->is_directory()) {
            if (anchePrivate || voce->path().filename() == "data")
                copiaCartella(voce->path(), meta, true, disco);
        } else if (voce->is_regular_file() && !programma(*voce)) {
            copia(voce->path(), meta, disco);
        }
    }
}

}  // namespace

void copiaDati(const std::string& installata, const std::string& utente, const base::Disco& disco) {
    copiaCartella(installata, utente, false, disco);
}

void scegliCartellaProgramma(const base::Disco& disco) {
    if (!base::serveCartellaUtente()) return;
    const std::string utente = base::cartellaDatiUtente();
    std::error_code errore;
    const bool cEra = fs::exists(utente, errore);
    try {
        copiaDati(base::cartellaProgramma(), utente, disco);
    } catch (const base::ErroreFile&) {
        if (!cEra) {
            fs::remove_all(utente, errore);
            return;
        }
    }
    base::impostaCartellaProgramma(utente);
}

}  // namespace korven::commands
