#include "panels/anchor_kind.hpp"

#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "panels/grid_rows.hpp"
#include "project/codes.hpp"

namespace korven::panels {

namespace {

constexpr int tipologia = 4;  // column of the table of anchors

}  // namespace

std::string tipologiaDiscorde(const masks::ModelloGriglia& griglia, int riga,
                              GenereAncoraggio genere) {
    if (genere == GenereAncoraggio::tirante || !rigaHaDati(griglia, riga)) return {};
    // An empty cell is read as 0.
    const double tipo = base::leggiNumero(digitato(griglia, {riga, tipologia})).value_or(0);
    if (tipo != project::valore(project::TipoTirante::soloTrazione)) return {};
    return base::riempito(base::traduttore("Riga %1: con la tipologia 0 agisce solo in trazione. "
                                           "Un puntone ha la tipologia 1."),
                          {std::to_string(riga)});
}

}  // namespace korven::panels
