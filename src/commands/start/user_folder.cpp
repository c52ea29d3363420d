#include "commands/start/user_folder.hpp"

#include <filesystem>

#include "base/file_error.hpp"
#include "base/files.hpp"
#include "base/folders/program_folder.hpp"
#include "base/folders/user_data.hpp"
#include "commands/start/example_folders.hpp"

namespace korven::commands {

namespace {

namespace fs = std::filesystem;

bool presso() { return base::cartellaProgramma() == base::cartellaDati(); }

void copiaEsempi(const fs::path& da, const fs::path& a, const base::Disco& disco) {
    base::creaCartella(a.string());
    std::error_code errore;
    fs::directory_iterator voce(da, errore);
    for (; !errore && voce != fs::directory_iterator(); voce.increment(errore)) {
        const fs::path meta = a / voce->path().filename();
        if (voce->is_regular_file() && !base::esisteFile(meta.string()))
            base::scriviFile(meta.string(), base::leggiFile(voce->path().string()), disco);
    }
}

}  // namespace

void scegliCartellaProgramma() {
    base::seguiCartellaUtente();
    if (presso()) return;
    try {
        base::creaCartella(base::cartellaProgramma());
    } catch (const base::ErroreFile&) {
        base::impostaCartellaUtente({});
    }
}

std::string preparaCartellaProgetti(std::string_view sigla, const base::Disco& disco) {
    if (presso()) {
        preparaEsempi(disco);
        return cartellaEsempi(sigla);
    }
    const std::string progetti = base::cartellaProgetti();
    try {
        copiaEsempi(cartellaEsempi(sigla), progetti, disco);
    } catch (const base::ErroreFile&) {
        return cartellaEsempi(sigla);
    }
    return progetti;
}

}  // namespace korven::commands
