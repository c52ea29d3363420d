#include "analysis/progress.hpp"

#include <thread>

#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "project/units.hpp"

namespace korven::analysis {

void Avanzamento::attendi(std::string_view) { std::this_thread::sleep_for(pausaAttesa); }

std::string didascaliaAvanzamento(int fase, int iterazione, double yMax, double mMax) {
    return base::traduttore("fase") + "=" + std::to_string(fase) +
           "   iter.=" + std::to_string(iterazione) + "   Ymax=" + base::testoNumero(yMax) +
           "   Mmax=" + base::testoNumero(project::inKilonewton(mMax));
}

}  // namespace korven::analysis
