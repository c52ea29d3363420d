#pragma once

#include <QWidget>
#include <functional>
#include <optional>

#include "drawings/section_sketch.hpp"

namespace korven::shell {

/// Paints the sketch of a section, with the dimension of one field in the colour of selections. A
/// click on a text is a click on its field.
class VistaSchizzo : public QWidget {
    Q_OBJECT

 public:
    /// @param scelto  called with the field of a dimension whose text is clicked
    VistaSchizzo(std::function<void(std::size_t)> scelto, QWidget* genitore);

    void mostra(drawings::Schizzo schizzo);
    /// @param campo  of `masks::campiSezione`; none when the field with the focus is not here
    void evidenzia(std::optional<std::size_t> campo);
    [[nodiscard]] const drawings::Schizzo& schizzo() const { return schizzo_; }
    [[nodiscard]] std::optional<std::size_t> evidenziato() const { return evidenziato_; }
    /// The place of a text of the sketch in the widget.
    [[nodiscard]] QRectF postoTesto(const drawings::QuotaSchizzo& quota) const;

    [[nodiscard]] QSize sizeHint() const override { return {432, 360}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {312, 260}; }

 protected:
    void paintEvent(QPaintEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;

 private:
    [[nodiscard]] double scala() const;
    [[nodiscard]] QPointF sulWidget(plot::Punto punto) const;
    [[nodiscard]] QFont carattere(bool grassetto) const;
    void dipingiSezione(QPainter& pittore) const;
    void dipingiQuota(QPainter& pittore, const drawings::QuotaSchizzo& quota) const;
    void dipingiLati(QPainter& pittore) const;

    std::function<void(std::size_t)> scelto_;
    // Translated once: a box of the translators' test mode must not open while a window is painted.
    const QString monte_, valle_;
    drawings::Schizzo schizzo_;
    std::optional<std::size_t> evidenziato_;
};

}  // namespace korven::shell
