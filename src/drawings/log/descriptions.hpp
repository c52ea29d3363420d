#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "project/project_data.hpp"

namespace korven::drawings {

/// Where the log puts the text of a layer.
struct DescrizioneDisposta {
    int strato = 0;
    double altezza = 0;         ///< of its block of lines [cm]
    bool oltreLaTesta = false;  ///< pushed up into the heads of the columns, for want of room
};

/// Width [cm] of a text of that height [cm].
using MisuraAltezza = std::function<double(double altezza, std::string_view testo)>;

/// Lays out the descriptions of all layers, as the log does on a page of A4 upright,
/// and draws nothing.
/// @pre the last layer ends below 0: asserted
/// @throws base::ErroreIndice when a description needs more than 100 lines; it names the layer
[[nodiscard]] std::vector<DescrizioneDisposta> disponiDescrizioni(const project::DatiProgetto& dati,
                                                                  const MisuraAltezza& misura);

}  // namespace korven::drawings
