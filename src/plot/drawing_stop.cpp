#include "plot/drawing_stop.hpp"

#include "base/translated_texts.hpp"

namespace korven::plot {

DisegnoInterrotto::DisegnoInterrotto()
    : std::runtime_error(base::traduttore("Disegno interrotto dall'utente.")) {}

}  // namespace korven::plot
