#pragma once

#include <QProxyStyle>

namespace korven::shell {

/// The toolkit's own style on dark desktops: there it draws the outline of choices and the ticks of
/// sliders darker than their dark ground, and a chosen button hardly otherwise than the others.
/// Here the outlines are light, and a chosen button has a frame in the colour of its text. Light
/// desktops are left as they are.
class StileVisibile : public QProxyStyle {
 public:
    StileVisibile();

    void drawPrimitive(PrimitiveElement pezzo, const QStyleOption* opzione, QPainter* pittore,
                       const QWidget* controllo) const override;
    void drawComplexControl(ComplexControl pezzo, const QStyleOptionComplex* opzione,
                            QPainter* pittore, const QWidget* controllo) const override;

    /// The style of the program, where the desktop has none of its own.
    static void metti();
};

}  // namespace korven::shell
