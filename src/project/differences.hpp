#pragma once

#include <string>
#include <vector>

#include "project/field_table.hpp"
#include "project/project_data.hpp"

namespace korven::project {

/// A field, or a row of one, that differs between two states of a project.
struct CampoDiverso {
    const Campo* campo;
    int riga;           ///< 1 for one that is no table
    bool prima = true;  ///< the first has this row
    bool dopo = true;   ///< so has the second

    bool operator==(const CampoDiverso&) const = default;
};

/// All of them, in the order of the project file. Numbers are compared as the file holds them, with
/// seven decimals, texts and headings letter by letter; rows above the counts do not count.
[[nodiscard]] std::vector<CampoDiverso> campiDiversi(const DatiProgetto& prima,
                                                     const DatiProgetto& dopo);

/// A value in which two states of a project differ, in the words and units that people see.
struct Differenza {
    std::string cosa;  ///< "pretensione del tirante 2 [kN/m]", translated
    std::string prima,
        dopo;  ///< a number, the name of a code, a text; empty where there is no such row

    bool operator==(const Differenza&) const = default;
};

/// One of them in words. What acts on a metre of wall has its unit (`unitaAlMetro`); what both
/// states, or the one that has it, know as a strut is called so.
/// @param nome  what people call the row beside its number: "sabbia limosa"; empty: nothing
/// @pre found between these two
[[nodiscard]] Differenza inParole(const CampoDiverso& diverso, const DatiProgetto& prima,
                                  const DatiProgetto& dopo, const std::string& nome = {});

/// All of `campiDiversi` in words.
[[nodiscard]] std::vector<Differenza> differenze(const DatiProgetto& prima,
                                                 const DatiProgetto& dopo);

}  // namespace korven::project
