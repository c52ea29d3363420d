#pragma once

#include <QImage>
#include <QLineF>
#include <QPainter>
#include <QPointF>
#include <functional>
#include <vector>

#include "plot/drawing_surface.hpp"

namespace korven::device {

/// A drawing on the screen. It is painted once, into a picture that a window then only copies, so
/// that a repaint costs the same whatever the number of lines.
///
/// All measures of the drawing are device pixels, those of the screen itself. A window measures in
/// pixels of its own, of which each is `rapporto` device pixels wide.
class SuperficieSchermo : public plot::SuperficieDisegno {
 public:
    /// @param spazio  makes the window, if there is none, and returns its room [device pixels]
    /// @param mostra  called when the picture is complete
    SuperficieSchermo(std::function<plot::SpazioDisegno()> spazio, std::function<void()> mostra);

    /// Device pixels to a pixel of the window, for the pictures to come.
    void impostaRapporto(double rapporto);

    plot::SpazioDisegno spazio() override { return spazio_(); }
    void prepara(const plot::Riquadro& mondo, double larghezza, double altezza) override;
    void marcaFoglio(const plot::Riquadro& foglio, plot::Colore colore) override;
    void spessore(int pixel) override;
    void poligono(const plot::PoligonoPlot& poligono) override;
    void linea(const plot::Tratto& tratto, plot::Colore colore) override;
    void testo(const plot::TestoSuperficie& testo) override;
    void aggiorna() override;

    /// The last picture, with its pixel ratio; null before the first drawing and after `svuota`.
    [[nodiscard]] const QImage& immagine() const { return immagine_; }

    /// Lets go of the picture and its memory.
    void svuota();

    /// The point of the sheet [cm] that lies at a place of the picture [window pixels].
    [[nodiscard]] plot::Punto puntoDelFoglio(QPointF posizione) const;

 private:
    [[nodiscard]] QPointF pixel(plot::Punto punto) const;
    [[nodiscard]] double mezzoSpessoreCm() const;
    void apriPittore();  // a drawing may go on after it was shown
    void tracciaLinee();

    std::function<plot::SpazioDisegno()> spazio_;
    std::function<void()> mostra_;
    double rapporto_ = 1;
    plot::Riquadro mondo_;
    double scalaX_ = 1;  // device pixels per centimetre
    double scalaY_ = 1;
    QImage immagine_;
    QPainter pittore_;
    std::vector<QLineF> linee_;  // of one pen, not painted yet
    plot::Colore colore_ = plot::nero;
    int spessore_ = 1;
};

}  // namespace korven::device
