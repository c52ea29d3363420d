#include "device/drawing_extent.hpp"

#include "device/drawing_fonts.hpp"
#include "plot/text_extent.hpp"

namespace korven::device {

plot::Riquadro vistaDisegno(const plot::Riquadro& foglio, const plot::ArchivioDisegno& archivio) {
    constexpr double respiro = 0.1;
    return plot::conTesti(foglio, archivio, MetricaQt(), respiro);
}

}  // namespace korven::device
