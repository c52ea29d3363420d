#include "commands/start/example_folders.hpp"

#include <filesystem>
#include <vector>

#include "base/code_page.hpp"
#include "base/files.hpp"
#include "base/folders/program_folder.hpp"

namespace korven::commands {

namespace {

namespace fs = std::filesystem;

struct Prefisso {
    std::string_view inizio, sigla;
};
constexpr Prefisso prefissi[] = {
    {"esem", "ita"}, {"exam", "eng"}, {"exem", "fra"}, {"ejem", "esp"}};

// Copied and then removed, so that a full disk leaves the file where it was.
void sposta(const fs::path& da, const fs::path& cartella, const base::Disco& disco) {
    base::scriviFile((cartella / da.filename()).string(), base::leggiFile(da.string()), disco);
    base::cancellaFile(da.string());
}

std::vector<fs::path> fileDellaCartella(const fs::path& cartella) {
    std::vector<fs::path> file;
    std::error_code errore;
    fs::directory_iterator voce(cartella, errore);
    for (; !errore && voce != fs::directory_iterator(); voce.increment(errore))
        if (voce->is_regular_file()) file.push_back(voce->path());
    return file;
}

}  // namespace

bool maiUsata() {
    return !base::esisteFile(base::fileProgramma("language.cfg")) &&
           !base::esisteFile(base::fileProgramma("path"));
}

std::string cartellaEsempi(std::string_view sigla) {
    return (fs::path(base::cartellaDati()) / "data" / sigla).string();
}

void preparaEsempi(const base::Disco& disco) {
    for (const auto& prefisso : prefissi) base::creaCartella(cartellaEsempi(prefisso.sigla));
    for (const auto& file : fileDellaCartella(base::cartellaProgramma())) {
        const std::string nome = base::minuscolo(file.filename().string());
        for (const auto& prefisso : prefissi)
            if (nome.starts_with(prefisso.inizio))
                sposta(file, cartellaEsempi(prefisso.sigla), disco);
    }
}

}  // namespace korven::commands
