#include "report/annex/short_reasons.hpp"

#include <string>

#include "base/code_page.hpp"
#include "report/annex/table_pieces.hpp"
#include "safety/words.hpp"

namespace korven::report {

void conMotiviBrevi(const live::PareteViva& parete, tables::Prospetto& prospetto) {
    if (!parete.perche) return;
    const std::string lungo = base::conMaiuscola(safety::inBreve(*parete.perche));
    if (lungo.empty()) return;
    const auto abbrevia = [&](std::string& motivo) {
        if (motivo.starts_with(lungo)) motivo = percheInBreve(parete, parete.perche->fase);
    };
    for (std::string& nota : prospetto.note) abbrevia(nota);
    for (auto& riga : prospetto.righe)
        for (tables::Cella& cella : riga) abbrevia(cella.perche);
}

}  // namespace korven::report
