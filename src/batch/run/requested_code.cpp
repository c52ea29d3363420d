#include "batch/run/requested_code.hpp"

#include <string>

#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "batch/run/failure.hpp"
#include "factors/catalogue.hpp"

namespace korven::batch {

namespace {

std::string elencoNorme(const factors::Catalogo& catalogo) {
    std::string nomi;
    for (const factors::Norma& norma : catalogo.norme)
        nomi.append(nomi.empty() ? "" : ", ").append(norma.nome);
    return nomi;
}

}  // namespace

std::optional<factors::NormaChiesta> normaChiesta(const Opzioni& opzioni, Esito& esito) {
    const factors::Catalogo catalogo = factors::leggiCombinazioni();
    for (const factors::RigaGuasta& guasta : catalogo.guaste)
        fallisci(ingressoRotto, guasta.frase(), esito);
    if (!catalogo.guaste.empty()) return {};
    const factors::Norma* norma = catalogo.norma(opzioni.norma);
    if (norma != nullptr) return factors::NormaChiesta{*norma, opzioni.natura};
    fallisci(usoErrato,
             base::riempito(base::traduttore("nessuna norma ha il nome «%1»; ci sono: %2"),
                            {opzioni.norma, elencoNorme(catalogo)}),
             esito);
    return {};
}

}  // namespace korven::batch
