#include "workbook/anchor_sheet.hpp"

#include "base/translated_texts.hpp"
#include "tables/anchor_table.hpp"

namespace korven::workbook {

namespace {

using base::traduttore;
using dossier::StoriaTirante;
using tables::Cella;
namespace unita = project::unita;

std::vector<Cella> celle(const StoriaTirante* storia) {
    if (storia == nullptr || storia->posa == 0) {
        const Cella mai =
            tables::senza(traduttore("Non è in opera in nessuna fase in equilibrio."));
        return {mai, mai, mai};
    }
    return {tables::cella(storia->faseMassimo), tables::cella(storia->posa),
            tables::forza(storia->allaPosa)};
}

}  // namespace

tables::Prospetto prospettoTiranti(const dossier::Fascicolo& f) {
    tables::Prospetto p = tables::prospettoTiranti(f.parete, f.margine ? &*f.margine : nullptr);
    const auto primaDellaRelazione = [](auto& riga) { return riga.end() - 1; };
    const std::vector<tables::Colonna> nuove = {
        tables::colonna(unita::nessuna, "Fase della massima", "Fase in cui la forza è massima"),
        tables::colonna(unita::nessuna, "Fase di posa", "Fase che mette in opera il tirante"),
        tables::colonna(unita::forzaAlMetro, "A fine fase di posa",
                        "Forza alla fine della fase che mette in opera il tirante")};
    p.colonne.insert(primaDellaRelazione(p.colonne), nuove.begin(), nuove.end());
    for (std::size_t j = 0; j < p.righe.size(); ++j) {
        const auto sue = celle(j < f.tiranti.size() ? &f.tiranti[j] : nullptr);
        p.righe[j].insert(primaDellaRelazione(p.righe[j]), sue.begin(), sue.end());
    }
    if (f.margine) return p;
    // Nobody is computing a report: it has none.
    p.colonne.pop_back();
    for (auto& riga : p.righe) riga.pop_back();
    return p;
}

}  // namespace korven::workbook
