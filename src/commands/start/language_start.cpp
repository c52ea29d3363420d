#include "commands/start/language_start.hpp"

#include <filesystem>

#include "base/file_error.hpp"
#include "base/files.hpp"
#include "base/folders/program_folder.hpp"
#include "base/language.hpp"
#include "base/translated_texts.hpp"
#include "commands/last_folder.hpp"
#include "commands/start/example_folders.hpp"
#include "commands/start/user_folder.hpp"

namespace korven::commands {

std::string fileGuida;

namespace {

namespace fs = std::filesystem;

std::string fileModulo(std::string_view sigla, std::string_view estensione) {
    return base::fileProgramma(
        std::string("module").append(numeroModulo).append(sigla).append(".").append(estensione));
}

bool chiediLingua(const PorteLingua& porte) {
    const int codice = porte.scegli(lingueOfferte());
    if (codice == 0) return false;
    scriviLingua(codice, porte.disco);
    return true;
}

// A code without a tag names files that nobody has.
int codiceValido() {
    const int codice = base::leggiLingua(fileLingua());
    if (base::siglaLingua(codice).empty())
        throw base::ErroreFile(fileLingua(), 1, std::string(base::attesoCodiceLingua));
    return codice;
}

std::string trovaGuida(std::string_view sigla) {
    const auto esiste = [](std::string_view s) { return base::esisteFile(fileModulo(s, "hlp")); };
    return fileModulo(base::siglaDisponibile(sigla, esiste), "hlp");
}

}  // namespace

std::string fileLingua() { return base::fileProgramma("language.cfg"); }

void scriviLingua(int codice, const base::Disco& disco) {
    base::scriviFile(fileLingua(), std::to_string(codice) + "\r\n", disco);
}

std::vector<int> lingueOfferte() {
    std::vector<int> codici;
    for (const char* sigla : {"eng", "fra", "deu", "ita", "esp", "por"})
        if (base::esisteFile(fileModulo(sigla, "cfg"))) codici.push_back(base::codiceLingua(sigla));
    return codici;
}

bool iniziaLingua(const PorteLingua& porte) {
    const bool prova = base::esisteFile((fs::path(porte.radice) / "testmode.tra").string());
    const bool primaVolta = maiUsata();
    if ((prova || !base::esisteFile(fileLingua())) && !chiediLingua(porte)) return false;
    const int codice = codiceValido();
    const std::string sigla(base::siglaLingua(codice));
    std::string progetti;
    if (primaVolta) progetti = preparaCartellaProgetti(sigla, porte.disco);
    base::caricaTesti(base::fileProgramma("texts01.txt"),
                      base::fileProgramma(std::string("texts").append(numeroModulo) + ".txt"),
                      base::fileProgramma("texts32.txt"));
    base::impostaLingua(codice);
    base::impostaModoProva(prova ? &porte.dialogo : nullptr);
    fileGuida = trovaGuida(sigla);
    if (primaVolta) scriviUltimaCartella(progetti, porte.disco);
    return true;
}

}  // namespace korven::commands
