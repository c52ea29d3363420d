// What is painted by hand can be read on light and on dark desktops: the pixel that differs most
// from the ground is the colour of the stroke.

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QListWidget>
#include <QPainter>
#include <QRadioButton>
#include <QSlider>
#include <QStandardItemModel>
#include <QToolButton>

#include "review/remark.hpp"
#include "scene/palette.hpp"
#include "shell/forms/help_strip.hpp"
#include "shell/main/selezling.hpp"
#include "shell/remarks/remark_delegate.hpp"
#include "shell/tables/bar_delegate.hpp"
#include "shell/tables/table_model.hpp"
#include "shell/visible_controls.hpp"
#include "support/form_setup.hpp"

namespace korven::shell {
namespace {

scene::Rgb rgb(QRgb c) {
    const auto parte = [](int v) { return static_cast<std::uint8_t>(v); };
    return {parte(qRed(c)), parte(qGreen(c)), parte(qBlue(c))};
}

// Of the pixel that stands out most, from the one at the corner.
double risalto(const QImage& immagine, const QRect& dove, QPoint angolo) {
    double massimo = 1;
    const auto fondo = rgb(immagine.pixel(angolo));
    for (int y = dove.top(); y <= dove.bottom(); ++y)
        for (int x = dove.left(); x <= dove.right(); ++x)
            massimo = std::max(massimo, scene::contrasto(rgb(immagine.pixel(x, y)), fondo));
    return massimo;
}

QPalette chiara() { return {QColor(0xEF, 0xEF, 0xEF)}; }

QPalette scura() {
    QPalette notte(QColor(0x32, 0x36, 0x3A));  // the toolkit finds the rest of a dark desktop
    notte.setColor(QPalette::Base, QColor(0x1D, 0x21, 0x26));
    notte.setColor(QPalette::Text, QColor(0xEC, 0xEF, 0xF2));
    return notte;
}

class Risalto : public ::testing::TestWithParam<bool> {
 protected:
    Risalto() { QApplication::setPalette(GetParam() ? scura() : chiara()); }
    ~Risalto() override { QApplication::setPalette(prima_); }

    // A cell of its own, 200 by 60 pixels.
    static QImage dipinta(const QStyledItemDelegate& delegato, const QModelIndex& indice) {
        QListWidget lista;
        QStyleOptionViewItem opzioni;
        opzioni.initFrom(&lista);
        opzioni.widget = &lista;
        opzioni.rect = QRect(0, 0, 200, 60);
        opzioni.state = QStyle::State_Enabled | QStyle::State_Active;
        QImage immagine(200, 60, QImage::Format_RGB32);
        immagine.fill(QApplication::palette().color(QPalette::Base));
        QPainter pittore(&immagine);
        delegato.paint(&pittore, opzioni, indice);
        return immagine;
    }

 private:
    QApplication& app_ = test::applicazione();
    QPalette prima_ = QApplication::palette();
};

TEST_P(Risalto, OfTheSignAndTheWordsOfARemark) {
    QStandardItemModel modello(1, 1);
    const QModelIndex indice = modello.index(0, 0);
    modello.setData(indice, QStringLiteral("manca un peso"), Qt::DisplayRole);
    modello.setData(indice, QStringLiteral("pericolo"), datoPeso);
    for (const auto peso :
         {review::Peso::impedisce, review::Peso::pericolo, review::Peso::daVedere}) {
        modello.setData(indice, static_cast<int>(peso), datoNumeroPeso);
        const QImage immagine = dipinta(DelegatoOsservazioni(nullptr), indice);
        EXPECT_GE(risalto(immagine, {0, 0, 24, 60}, {199, 59}), 4.5) << static_cast<int>(peso);
        EXPECT_GE(risalto(immagine, {28, 0, 170, 60}, {199, 59}), 4.5) << static_cast<int>(peso);
    }
}

TEST_P(Risalto, OfTheNumberThatABarLiesUpon) {
    QStandardItemModel modello(1, 1);
    const QModelIndex indice = modello.index(0, 0);
    modello.setData(indice, QStringLiteral("1.25"), Qt::DisplayRole);
    modello.setData(indice, 1.0, datoBarra);
    for (const QVariant& peso : {QVariant(), QVariant(static_cast<int>(review::Peso::pericolo)),
                                 QVariant(static_cast<int>(review::Peso::daVedere))}) {
        modello.setData(indice, peso, datoPesoCella);
        const QImage immagine = dipinta(DelegatoBarre(), indice);
        EXPECT_NE(immagine.pixel(195, 55), immagine.pixel(199, 59));  // the bar is there
        EXPECT_GE(risalto(immagine, {2, 2, 190, 56}, {195, 55}), 4.5) << peso.toInt();
    }
}

TEST_P(Risalto, OfTheWordsOfTheHelpStrip) {
    StrisciaAiuto striscia({QStringLiteral("peso del terreno")}, {}, nullptr);
    striscia.mostra(QStringLiteral("peso del terreno"));
    striscia.resize(300, 60);
    const QImage immagine = striscia.grab().toImage();
    EXPECT_GE(risalto(immagine, {8, 8, 284, 44}, {290, 50}), 4.5);
}

// Choices that are not made, the ticks of the stages, the button of the curve that is shown: on
// light desktops they are those of the toolkit.
TEST_P(Risalto, OfTheControlsOfADarkDesktop) {
    if (!GetParam()) return;
    StileVisibile stile;
    QRadioButton scelta;
    QCheckBox spunta;
    QSlider cursore(Qt::Horizontal);
    cursore.setRange(0, 2);
    cursore.setTickPosition(QSlider::TicksBelow);
    for (QWidget* controllo : std::initializer_list<QWidget*>{&scelta, &spunta, &cursore}) {
        controllo->setStyle(&stile);
        controllo->resize(120, 24);
        const QImage immagine = controllo->grab().toImage();
        const QRect dove = controllo == &cursore ? QRect(55, 19, 10, 5) : immagine.rect();
        EXPECT_GE(risalto(immagine, dove, {119, 0}), 4.5) << controllo->metaObject()->className();
    }
    QToolButton curva;
    curva.setStyle(&stile);
    curva.setCheckable(true);
    curva.resize(60, 24);
    const QImage prima = curva.grab().toImage();
    curva.setChecked(true);
    EXPECT_GE(risalto(curva.grab().toImage(), {0, 10, 4, 4}, {30, 12}), 4.5);
    EXPECT_LT(risalto(prima, {0, 10, 4, 4}, {30, 12}), 4.5);
}

// The first window that anybody sees: which language Enter would take.
TEST_P(Risalto, OfTheFocusInTheChoiceOfTheLanguage) {
    Selezling forma({5, 2, 1});
    forma.show();
    forma.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&forma));
    auto* bottone = qobject_cast<QToolButton*>(forma.focusWidget());
    ASSERT_NE(bottone, nullptr);
    const QImage con = bottone->grab().toImage();
    bottone->clearFocus();
    const QImage senza = bottone->grab().toImage();
    int diversi = 0;
    for (int y = 0; y < con.height(); ++y)
        for (int x = 0; x < con.width(); ++x)
            diversi += scene::contrasto(rgb(con.pixel(x, y)), rgb(senza.pixel(x, y))) >= 3;
    EXPECT_GE(diversi, con.width() + con.height()) << "half of a frame of one pixel";
}

INSTANTIATE_TEST_SUITE_P(ChiaroEScuro, Risalto, ::testing::Bool());

}  // namespace
}  // namespace korven::shell
