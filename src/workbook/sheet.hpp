#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "base/twin_names.hpp"
#include "tables/result_table.hpp"

namespace korven::workbook {

/// One sheet of a workbook: a table with its head in the first row.
struct Foglio {
    base::Gemelli nome;  ///< by which its own file is told from those of the other sheets
    /// Its title is the name on the sheet's tab: at most 31 characters, none of them \ / ? * [ ] :
    tables::Prospetto prospetto;
    std::string fonte;  ///< whose numbers these are, a sentence; empty where there are none
    std::size_t colonneFisse = 1;  ///< columns at the left that stay in place, as the heads do
    bool aCapo = false;            ///< long words go on in further lines of their cell
};

/// A curve of a chart: two columns of a sheet, over some of its rows.
struct Serie {
    std::string nome;
    std::size_t foglio = 0;                ///< its place in the workbook
    std::size_t prima = 0, ultima = 0;     ///< rows of its table, both counted in
    std::size_t profondita = 0, dato = 0;  ///< columns: of the depth, of what is drawn over it
};

/// A quantity over depth, which runs downwards.
struct Grafico {
    std::string titolo;      ///< "Momento"
    std::string asse;        ///< "Momento [kN m/m]"
    std::string profondita;  ///< head of the other axis: "z [m]"
    double fondo = 0;        ///< end of the depths [m]
    std::vector<Serie> serie;
};

/// A computed project as sheets.
struct CartellaFogli {
    std::string titolo;   ///< of the document: "muro.kvd"
    std::string piede;    ///< at the foot of each printed page
    std::string data;     ///< "2026-11-22", of the document; empty: none is known
    std::string grafici;  ///< name of the sheet of the charts
    std::vector<Foglio> fogli;
    std::vector<Grafico>
        diagrammi;  ///< on a sheet of their own after the others; none: no such sheet
};

}  // namespace korven::workbook
