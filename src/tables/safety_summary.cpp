#include "tables/safety_summary.hpp"

#include "base/code_page.hpp"
#include "base/colon.hpp"
#include "base/translated_texts.hpp"
#include "tables/margin_table.hpp"

namespace korven::tables {

namespace {

Riassunto nulla(const std::string& perche) {
    return {.verdetto = base::conDuePunti(base::traduttore("Niente da calcolare"), perche)};
}

}  // namespace

Riassunto riassunto(const live::ProgettoVivo& vivo) {
    if (!vivo.aperto())
        return nulla(base::conMinuscola(base::traduttore("Nessun progetto aperto")));
    if (vivo.lenti() == nullptr)
        return {.stato = Riassunto::Stato::inCorso,
                .verdetto = base::traduttore("Calcolo in corso") + "..."};
    if (const auto& margine = vivo.lenti()->margine)
        return {.stato = Riassunto::Stato::noto,
                .verdetto = verdetto(*margine),
                .frasi = frasi(*margine),
                .margine = &*margine};
    const std::string& rifiuto = vivo.parete().rifiuto;
    return nulla(rifiuto.empty() ? base::traduttore("nessun numero") : rifiuto);
}

}  // namespace korven::tables
