#pragma once

#include <string>
#include <vector>

#include "project/project_data.hpp"

namespace korven::project {

/// A value in which two states of a project differ, in the words and units that people see.
struct Differenza {
    std::string cosa;  ///< "pretensione del tirante 2 [kN]", translated
    std::string prima,
        dopo;  ///< a number, the name of a code, a text; empty where there is no such row

    bool operator==(const Differenza&) const = default;
};

/// All of them, in the order of the project file. Numbers are compared as the file holds them, with
/// seven decimals, texts and headings letter by letter; rows above the counts do not count.
[[nodiscard]] std::vector<Differenza> differenze(const DatiProgetto& prima,
                                                 const DatiProgetto& dopo);

}  // namespace korven::project
