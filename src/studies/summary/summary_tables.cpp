#include "studies/summary/summary_tables.hpp"

#include <algorithm>

#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "project/units.hpp"

namespace korven::studies {

namespace {

using base::traduttore;
using Riga = TavolaRiassunto::Riga;

TavolaRiassunto distribuzioni(const std::vector<Statistica>& tutte,
                              std::span<const ValoreMostrato> valori) {
    TavolaRiassunto tavola{{traduttore("varianti"), traduttore("media"), "s", "min"}, {}};
    for (const double p : quoteQuantili) tavola.testa.push_back(nomeQuantile(p));
    tavola.testa.emplace_back("max");
    for (const Statistica& s : tutte) {
        const Momenti& m = s.momenti;
        if (m.numero() == 0) continue;
        const ValoreMostrato& valore = valori[s.posto];
        Riga riga{valore.testa(), {static_cast<double>(m.numero())}};
        for (const double v : {m.media(), m.scartoTipo(), m.minimo()})
            riga.valori.emplace_back(valore.mostrato(v));
        for (std::size_t k = 0; k < quoteQuantili.size(); ++k)
            riga.valori.push_back(s.quantili ? std::optional(valore.mostrato((*s.quantili)[k]))
                                             : std::nullopt);
        riga.valori.emplace_back(valore.mostrato(m.massimo()));
        tavola.righe.push_back(std::move(riga));
    }
    return tavola;
}

TavolaRiassunto correlazioni(const std::vector<Statistica>& tutte, std::size_t campi,
                             std::span<const ValoreMostrato> valori) {
    TavolaRiassunto tavola;
    for (const ValoreMostrato& campo : valori.first(campi)) tavola.testa.push_back(campo.titolo);
    for (const Statistica& s : tutte) {
        const bool una = std::ranges::any_of(s.ranghi, [](const auto& r) { return r.has_value(); });
        if (s.posto >= campi && una) tavola.righe.push_back({valori[s.posto].titolo, s.ranghi});
    }
    return tavola;
}

}  // namespace

std::string nomeQuantile(double quota) {
    return base::testoNumero(mostrato(project::unita::percento, quota)) + " %";
}

TavoleRiassunto tavoleRiassunto(const Riassunto& riassunto, const FormaRiga& forma,
                                std::span<const ValoreMostrato> valori) {
    const auto tutte = riassunto.statistiche();
    return {distribuzioni(tutte, valori), correlazioni(tutte, forma.campi, valori)};
}

}  // namespace korven::studies
