#pragma once

#include <string>
#include <vector>

#include "scene/picture.hpp"

namespace korven::scene {

/// Marks of a stage in a picture, which go by one number.
struct SegniFase {
    int fase = 0;
    std::vector<Punto> punti;  ///< of all stages equally many
    Tinta tinta;
};

/// Stages whose marks lie together and have one colour, so that one number serves all of them.
struct GruppoFasi {
    std::vector<int> fasi;     ///< ascending
    std::vector<Punto> punti;  ///< the middle of theirs
    Tinta tinta;
};

/// @param vicini  marks of a group are no farther apart [px]
[[nodiscard]] std::vector<GruppoFasi> gruppiFasi(std::vector<SegniFase> segni, double vicini);

/// "3"; of several "fasi 1, 3–7", translated.
[[nodiscard]] std::string nomeFasi(const std::vector<int>& fasi);

}  // namespace korven::scene
