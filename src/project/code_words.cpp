#include "project/code_words.hpp"

#include <cassert>

#include "base/translated_texts.hpp"

namespace korven::project {

std::string voceTradotta(const Campo& campo, const Codice& codice) {
    assert(&codice >= campo.codici.data() && &codice < campo.codici.data() + campo.codici.size());
    std::string voci;
    for (const Codice& c : campo.codici) voci.append(voci.empty() ? "" : "|").append(c.voce);
    const std::string tradotte = base::traduttore(voci);
    if (tradotte == voci) return base::traduttore(codice.voce);
    std::size_t da = 0;
    for (auto posto = &codice - campo.codici.data(); posto > 0; --posto)
        da = tradotte.find('|', da) + 1;
    return tradotte.substr(da, tradotte.find('|', da) - da);
}

std::string descrizioneTradotta(const Campo& campo, int riga) {
    const bool bandiera = std::holds_alternative<bool Sezione::*>(campo.membro);
    std::string cosa = base::traduttore(bandiera ? campo.didascalia : campo.cosa);
    if (colonna(campo)) cosa += ' ' + std::to_string(riga);
    return cosa;
}

}  // namespace korven::project
