#pragma once

#include <QPainter>
#include <QPolygonF>
#include <limits>
#include <vector>

#include "device/text_painting.hpp"
#include "plot/drawing_store.hpp"
#include "plot/geometry.hpp"

namespace korven::device {

/// Paints a stored drawing at true size: polygons, lines, texts. Lines that go on from each other
/// with the same pen become one polyline, so that corners are round and files small.
class PittoreDisegno {
 public:
    /// @param vista       the part of the sheet that the painter's surface shows [cm]: its upper
    ///                    left corner lies at the origin of the painter
    /// @param pixelPerCm  units of the painter in a centimetre
    /// @param pennaMinima thinnest line that the device shows well [units of the painter]
    PittoreDisegno(QPainter& pittore, const plot::Riquadro& vista, double pixelPerCm,
                   double pennaMinima);

    /// Leaves out lines that lie wholly above or below a strip of the sheet [cm].
    void limita(double ymin, double ymax);

    /// @throws base::ErroreFile when a spill file can't be read
    /// @throws plot::DisegnoInterrotto when `plot::statoPlot.sorveglia` wants the end
    void dipingi(const plot::ArchivioDisegno& archivio);

 private:
    void riempi(const std::vector<plot::PoligonoPlot>& poligoni);
    [[nodiscard]] QPointF punto(double x, double y) const;
    void traccia(const plot::Segmento& linea);
    void tracciaSpezzata();
    void scrivi(const plot::TestoPlot& testo, PennaTesti& penna);

    QPainter& pittore_;
    plot::Riquadro vista_;
    double pixelPerCm_;
    double pennaMinima_;
    double ymin_ = -std::numeric_limits<double>::infinity();
    double ymax_ = std::numeric_limits<double>::infinity();
    QPolygonF spezzata_;       // polyline in the making
    plot::Segmento ultima_{};  // its last line
};

}  // namespace korven::device
