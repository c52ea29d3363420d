#include "masks/history.hpp"

#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"

namespace korven::masks {

std::string annullato(const std::string& nome) {
    return nome.empty() ? base::traduttore("Nulla da annullare")
                        : base::conDuePunti(base::traduttore("Annullato"), nome);
}

std::string ripetuto(const std::string& nome) {
    return nome.empty() ? base::traduttore("Nulla da ripetere")
                        : base::conDuePunti(base::traduttore("Ripetuto"), nome);
}

std::string senzaUnita(const std::string& didascalia) {
    return didascalia.substr(0, didascalia.rfind(" ["));
}

std::string passoCampo(const std::string& didascalia) {
    const std::string valori[] = {senzaUnita(didascalia)};
    return base::riempito(base::traduttore("campo %1"), valori);
}

}  // namespace korven::masks
