#include "shell/visible_controls.hpp"

#include <QApplication>
#include <QPainter>
#include <QStyleOption>

namespace korven::shell {

namespace {

const QString diQt = QStringLiteral("fusion");

bool scura(const QPalette& tinte) {
    return tinte.color(QPalette::Window).lightness() <
           tinte.color(QPalette::WindowText).lightness();
}

// The style takes a darker ground for its outlines, and the colour of a selection for ticks.
QPalette contornata(QPalette tinte) {
    for (const auto ruolo : {QPalette::Window, QPalette::Highlight})
        tinte.setColor(ruolo, Qt::white);
    return tinte;
}

}  // namespace

StileVisibile::StileVisibile() : QProxyStyle(diQt) {}

void StileVisibile::metti() {
    if (QApplication::style()->name() == diQt) QApplication::setStyle(new StileVisibile);
}

void StileVisibile::drawPrimitive(PrimitiveElement pezzo, const QStyleOption* opzione,
                                  QPainter* pittore, const QWidget* controllo) const {
    const bool segno = pezzo == PE_IndicatorRadioButton || pezzo == PE_IndicatorCheckBox;
    const auto* bottone = qstyleoption_cast<const QStyleOptionButton*>(opzione);
    if (segno && bottone != nullptr && scura(opzione->palette)) {
        QStyleOptionButton con(*bottone);
        con.palette = contornata(opzione->palette);
        // Smoothing takes some of the colour of a round line away: it is drawn twice.
        const int volte = pezzo == PE_IndicatorRadioButton ? 2 : 1;
        for (int i = 0; i < volte; ++i) QProxyStyle::drawPrimitive(pezzo, &con, pittore, controllo);
        return;
    }
    QProxyStyle::drawPrimitive(pezzo, opzione, pittore, controllo);
    if (pezzo != PE_PanelButtonTool || !opzione->state.testFlag(State_On) ||
        !scura(opzione->palette))
        return;
    pittore->save();
    constexpr int spessore = 2;
    pittore->setPen({opzione->palette.color(QPalette::ButtonText), spessore});
    pittore->setBrush(Qt::NoBrush);
    pittore->drawRect(opzione->rect.adjusted(1, 1, -1, -1));
    pittore->restore();
}

void StileVisibile::drawComplexControl(ComplexControl pezzo, const QStyleOptionComplex* opzione,
                                       QPainter* pittore, const QWidget* controllo) const {
    const auto* cursore = qstyleoption_cast<const QStyleOptionSlider*>(opzione);
    if (pezzo != CC_Slider || cursore == nullptr || !scura(opzione->palette))
        return QProxyStyle::drawComplexControl(pezzo, opzione, pittore, controllo);
    QStyleOptionSlider con(*cursore);
    con.palette = contornata(opzione->palette);
    QProxyStyle::drawComplexControl(pezzo, &con, pittore, controllo);
}

}  // namespace korven::shell
