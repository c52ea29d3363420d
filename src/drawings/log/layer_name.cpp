#include "drawings/log/layer_name.hpp"

#include "base/code_page.hpp"
#include "drawings/log/graphic_code.hpp"

namespace korven::drawings {

DescrizioneStrato descrizioneMostrata(std::string_view descrStrato) {
    if (haCodice(descrStrato)) return leggiDescrizione(descrStrato);
    DescrizioneStrato strato;
    strato.testo = base::senzaSpaziEsterni(descrStrato);
    return strato;
}

}  // namespace korven::drawings
