#pragma once

#include <string>
#include <string_view>

namespace korven::drawings {

/// What the line that describes a layer says.
struct DescrizioneStrato {
    double campitura = 0;      ///< hatch code, 0 for none
    int colore = 1;            ///< of the hatch, 1 to 21
    bool lineaAlPiede = true;  ///< false: the layer and the next one read as one
    std::string testo;         ///< "|" forces a line end
    bool richiamo = true;      ///< false: no leader ties the text to the layer's foot
};

/// Takes the description of a layer apart.
///
/// Its first word, the first run of non-blanks, is the graphic code, whatever its case: the number
/// in front of the first "C" or "A" (or at the head of the word) is the hatch; below 0 it says that
/// no line is drawn at the foot. The number after "C" is the colour, 1 when there is none. The
/// number after "A" is ignored. A word that is no code has hatch 0 and colour 1, so it draws
/// nothing. The rest is the text, without outer blanks; a "_" at its head is taken off and stops
/// the leader.
[[nodiscard]] DescrizioneStrato leggiDescrizione(std::string_view descrStrato);

}  // namespace korven::drawings
