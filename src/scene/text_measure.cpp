#include "scene/text_measure.hpp"

#include "plot/text_width.hpp"

namespace korven::scene {

double MisuraStimata::larghezza(std::string_view testo, double corpo, bool grassetto) const {
    constexpr double piuLargo = 1.08;
    return plot::larghezzaStimata(plot::carattereConsegnato, testo) * corpo *
           (grassetto ? piuLargo : 1);
}

}  // namespace korven::scene
