#include "batch/options/language_in_use.hpp"

#include <cstdlib>

#include "base/file_error.hpp"
#include "base/files.hpp"
#include "base/folders/program_folder.hpp"
#include "base/language.hpp"
#include "base/text_table.hpp"
#include "base/translated_texts.hpp"

namespace korven::batch {

namespace {

using base::colonnaItaliano;

int linguaScelta(const std::string& file) {
    const int codice = base::leggiLingua(file);
    if (base::siglaLingua(codice).empty())
        throw base::ErroreFile(file, 1, std::string(base::attesoCodiceLingua));
    return codice;
}

int linguaAmbiente() {
    if (!base::esisteFile(base::fileProgramma("texts01.txt"))) return colonnaItaliano;
    for (const char* nome : {"LC_ALL", "LC_MESSAGES", "LANG"})
        if (const char* locale = std::getenv(nome); locale != nullptr && *locale != '\0')
            return linguaDiLocale(locale);
    return colonnaItaliano;
}

int linguaInUso(const std::string& sigla) {
    if (const int chiesta = base::codiceLingua(sigla); chiesta != 0) return chiesta;
    const std::string scelta = base::fileProgramma("language.cfg");
    return base::esisteFile(scelta) ? linguaScelta(scelta) : linguaAmbiente();
}

}  // namespace

int linguaDiLocale(std::string_view locale) {
    struct Voce {
        std::string_view locale, sigla;
    };
    constexpr Voce voci[] = {{"it", "ita"}, {"de", "deu"}, {"fr", "fra"},
                             {"es", "esp"}, {"en", "eng"}, {"pt", "por"}};
    const auto parola = locale.substr(0, locale.find_first_of("_.@"));
    for (const auto& voce : voci)
        if (parola == voce.locale) return base::codiceLingua(voce.sigla);
    return colonnaItaliano;
}

// Italian is the language of the keys and needs no tables.
void scegliLingua(const std::string& sigla) {
    const int codice = linguaInUso(sigla);
    if (codice == colonnaItaliano || base::siglaLingua(codice).empty()) return;
    base::caricaTesti(base::fileProgramma("texts01.txt"), base::fileProgramma("texts06.txt"),
                      base::fileProgramma("texts32.txt"));
    base::impostaLingua(codice);
}

}  // namespace korven::batch
