#include "studies/summary/summary_tables.hpp"

#include <algorithm>

#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "project/units.hpp"

namespace korven::studies {

namespace {

using base::traduttore;
using Riga = TavolaRiassunto::Riga;

TavolaRiassunto distribuzioni(const std::vector<Statistica>& tutte) {
    TavolaRiassunto tavola{{traduttore("varianti"), traduttore("media"), "s", "min"}, {}};
    for (const double p : quoteQuantili) tavola.testa.push_back(nomeQuantile(p));
    tavola.testa.emplace_back("max");
    for (const Statistica& s : tutte) {
        const Momenti& m = s.momenti;
        if (m.numero() == 0) continue;
        Riga riga{s.posto,
                  {static_cast<double>(m.numero()), m.media(), m.scartoTipo(), m.minimo()}};
        for (std::size_t k = 0; k < quoteQuantili.size(); ++k)
            riga.valori.push_back(s.quantili ? std::optional((*s.quantili)[k]) : std::nullopt);
        riga.valori.emplace_back(m.massimo());
        tavola.righe.push_back(std::move(riga));
    }
    return tavola;
}

TavolaRiassunto correlazioni(const std::vector<Statistica>& tutte,
                             std::span<const std::string> campi) {
    TavolaRiassunto tavola{{campi.begin(), campi.end()}, {}};
    for (const Statistica& s : tutte) {
        const bool una = std::ranges::any_of(s.ranghi, [](const auto& r) { return r.has_value(); });
        if (s.posto >= campi.size() && una) tavola.righe.push_back({s.posto, s.ranghi});
    }
    return tavola;
}

}  // namespace

std::string nomeQuantile(double quota) {
    return base::testoNumero(mostrato(project::unita::percento, quota)) + " %";
}

TavoleRiassunto tavoleRiassunto(const Riassunto& riassunto, std::span<const std::string> campi) {
    const auto tutte = riassunto.statistiche();
    return {distribuzioni(tutte), correlazioni(tutte, campi)};
}

}  // namespace korven::studies
