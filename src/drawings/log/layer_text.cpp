#include "drawings/log/layer_text.hpp"

#include <algorithm>

#include "base/colon.hpp"
#include "base/file_error.hpp"
#include "base/translated_texts.hpp"
#include "drawings/log/graphic_code.hpp"
#include "drawings/log/hatch_choice.hpp"
#include "drawings/log/layer_name.hpp"

namespace korven::drawings {

namespace {

std::string nomeCampitura(int numero) {
    try {
        return drawings::nomeCampitura(numero);
    } catch (const base::ErroreFile&) {
        return std::to_string(numero);
    }
}

// The lowest first; empty for a code that draws nothing.
std::string campiture(std::string_view descrStrato) {
    std::string nomi;
    for (const auto& gruppo : leggiCodice(descrStrato).gruppi)
        if (gruppo.campitura != 0)
            nomi += (nomi.empty() ? "" : ", ") + nomeCampitura(gruppo.campitura);
    return nomi;
}

}  // namespace

std::string testoStrato(std::string_view descrStrato) {
    std::string testo = descrizioneMostrata(descrStrato).testo;
    std::replace(testo.begin(), testo.end(), '|', '\n');
    if (const std::string nomi = campiture(descrStrato); !nomi.empty())
        testo += (testo.empty() ? "[" : "\n[") +
                 base::conDuePunti(base::traduttore("campitura"), nomi) + "]";
    return testo;
}

}  // namespace korven::drawings
