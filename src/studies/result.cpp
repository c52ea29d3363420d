#include "studies/result.hpp"

namespace korven::studies {

const std::vector<std::string_view>& paroleMotivo() {
    static const std::vector<std::string_view> parole = {
        "",          "valore",    "riga",          "ordine",       "lunghezza",     "strati",
        "fasi",      "metodo_ks", "tiranti",       "ferri",        "rigidezza",     "segmenti",
        "suolo",     "tabella",   "traslazione",   "rotazione",    "modulo",        "limiti",
        "tirante",   "parete",    "nessun_numero", "senza_misura", "non_raggiunto", "oscillazione",
        "singolare", "limite"};
    return parole;
}

const std::vector<std::string_view>& paroleCausa() {
    using enum safety::Causa;
    static const std::vector<std::string_view> parole = [] {
        std::vector<std::string_view> tutte;
        for (const auto causa :
             {eseguito, rifiutato, meccanismo, oscilla, fermato, nonDefinito, nessunNumero})
            tutte.push_back(safety::parola(causa));
        return tutte;
    }();
    return parole;
}

}  // namespace korven::studies
