#include "python/language.hpp"

#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/folders/program_folder.hpp"
#include "base/language.hpp"
#include "base/text_table.hpp"
#include "base/translated_texts.hpp"
#include "python/errors.hpp"

namespace korven::python {

std::shared_mutex& parole() {
    static std::shared_mutex chiave;
    return chiave;
}

void scegliLingua(const std::string& sigla) {
    const int codice = base::codiceLingua(sigla);
    if (codice == 0) {
        std::string sigle;
        for (int altra = 1; altra <= base::numeroLingue; ++altra)
            sigle.append(altra == 1 ? "" : ", ").append(base::siglaLingua(altra));
        throw ErroreCampo(base::conDuePunti(
            "lingua = " + sigla, base::riempito(base::traduttore("valori ammessi: %1"), {sigle})));
    }
    if (codice != base::colonnaItaliano)
        base::caricaTesti(base::fileProgramma("texts01.txt"), base::fileProgramma("texts06.txt"),
                          base::fileProgramma("texts32.txt"));
    base::impostaLingua(codice);
}

std::string linguaScelta() { return std::string(base::siglaLingua(base::linguaCorrente())); }

}  // namespace korven::python
