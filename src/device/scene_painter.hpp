#pragma once

#include <QFont>
#include <QImage>
#include <QPainter>
#include <map>
#include <tuple>
#include <vector>

#include "scene/picture.hpp"
#include "scene/text_measure.hpp"

namespace korven::device {

/// Measures texts in a font of the machine.
class MisuraTestiQt : public scene::MisuraTesti {
 public:
    /// @param font  its size is not looked at
    explicit MisuraTestiQt(const QFont& font) : font_(font) {}
    [[nodiscard]] double larghezza(std::string_view testo, double corpo,
                                   bool grassetto) const override;

 private:
    QFont font_;
};

/// The font of a picture's texts at a size in device-independent pixels.
[[nodiscard]] QFont fontScena(QFont font, double corpo, bool grassetto);

/// Colour of a role.
[[nodiscard]] QColor qColore(scene::Tinta tinta, scene::Tavolozza tavolozza);

/// Paints pictures. The tiles of hatches are made once for each code, colour and resolution.
class PittoreScena {
 public:
    PittoreScena(const QFont& font, scene::Tavolozza tavolozza)
        : font_(font), tavolozza_(tavolozza) {}

    void tavolozza(scene::Tavolozza tavolozza) { tavolozza_ = tavolozza; }
    [[nodiscard]] scene::Tavolozza tavolozza() const { return tavolozza_; }
    [[nodiscard]] const QFont& font() const { return font_; }

    /// On a screen or into an image: hatches as tiles.
    /// @param pittore  one unit of it is one device-independent pixel
    void dipingi(QPainter& pittore, const scene::Scena& scena);
    /// Into a file of vectors: hatches as strokes that end at the border of their area.
    void dipingiVettoriale(QPainter& pittore, const scene::Scena& scena);

 private:
    void dipingi(const scene::Scena& scena);
    void figura(const scene::Area& area);
    void figura(const scene::Campitura& campitura);
    void figura(const scene::Linea& linea);
    void figura(const scene::Freccia& freccia);
    void figura(const scene::Testo& testo);
    [[nodiscard]] QColor colore(scene::Tinta tinta) const { return qColore(tinta, tavolozza_); }
    const std::vector<QImage>& piastrelle(const scene::Campitura& campitura, double rapporto);

    QFont font_;
    scene::Tavolozza tavolozza_;
    QPainter* pittore_ = nullptr;
    bool vettoriale_ = false;
    // By code, colour of the strokes and pixels of the device in one of ours.
    std::map<std::tuple<double, QRgb, double>, std::vector<QImage>> piastrelle_;
};

}  // namespace korven::device
