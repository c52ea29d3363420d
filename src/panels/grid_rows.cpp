#include "panels/grid_rows.hpp"

#include "base/code_page.hpp"
#include "base/number_text.hpp"

namespace korven::panels {

using masks::ModelloGriglia;
using masks::PostoGriglia;

const std::string& digitato(const ModelloGriglia& griglia, PostoGriglia posto) {
    const bool inCorso = griglia.editoreAperto() && posto == griglia.corrente();
    return inCorso ? griglia.testoEditore() : griglia.testo(posto);
}

bool rigaHaDati(const ModelloGriglia& griglia, int riga) {
    for (int c = 1; c <= griglia.colonne(); ++c)
        if (!base::senzaSpaziEsterni(digitato(griglia, {riga, c})).empty()) return true;
    return false;
}

namespace {

// As it is read when the table is taken back.
double profondita(const ModelloGriglia& griglia, int riga) {
    return base::leggiNumero(digitato(griglia, {riga, 1})).value_or(0);
}

}  // namespace

std::optional<int> rigaConDati(const ModelloGriglia& griglia, int riga) {
    if (!rigaHaDati(griglia, riga)) return {};
    int n = 1;
    for (int r = 1; r < riga; ++r) n += rigaHaDati(griglia, r);
    return n;
}

std::optional<int> ultimaSopra(const ModelloGriglia& griglia, int riga) {
    for (int r = riga - 1; r >= 1; --r)
        if (rigaHaDati(griglia, r)) return rigaConDati(griglia, r);
    return {};
}

// Rows of equal depth stay in the order in which they were typed.
std::optional<int> tiranteDellaRiga(const ModelloGriglia& griglia, int riga) {
    if (!rigaHaDati(griglia, riga)) return {};
    const double z = profondita(griglia, riga);
    int n = 1;
    for (int r = 1; r <= masks::CelleGriglia::righe; ++r) {
        if (r == riga || !rigaHaDati(griglia, r)) continue;
        const double altra = profondita(griglia, r);
        n += altra < z || (altra == z && r < riga);
    }
    return n;
}

}  // namespace korven::panels
