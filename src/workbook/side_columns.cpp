#include "workbook/side_columns.hpp"

#include <utility>

namespace korven::workbook {

namespace {

using tables::Cella;
using tables::Prospetto;

// The depth of a cell without its words.
Cella senzaLato(const Cella& cella) {
    Cella nuda = tables::profondita(*cella.numero);
    nuda.peso = cella.peso;
    return nuda;
}

void separa(Prospetto& p, std::size_t colonna) {
    using Posto = std::ptrdiff_t;
    const auto dopo = static_cast<Posto>(colonna) + 1;
    p.colonne.insert(p.colonne.begin() + dopo,
                     tables::colonnaParole("Lato", "Subito sopra o subito sotto il nodo"));
    for (auto& riga : p.righe) {
        Cella lato = riga[colonna].lato.empty() ? Cella{} : tables::parola(riga[colonna].lato);
        if (!riga[colonna].lato.empty()) riga[colonna] = senzaLato(riga[colonna]);
        riga.insert(riga.begin() + dopo, std::move(lato));
    }
}

}  // namespace

Prospetto conLati(Prospetto p, const std::set<std::size_t>& quali) {
    // From behind: a column put in moves those that follow it.
    for (auto i = quali.rbegin(); i != quali.rend(); ++i) separa(p, *i);
    return p;
}

}  // namespace korven::workbook
