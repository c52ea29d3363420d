#include "device/scene_painter.hpp"

#include <gtest/gtest.h>

#include <QGuiApplication>

#include "device/graphics_session.hpp"
#include "scene/polygon.hpp"
#include "support/hatch_setup.hpp"

namespace korven::device {
namespace {

using scene::Ruolo;
using scene::Tavolozza;

class PittoreScenaTest : public test::ProvaCampiture {
 protected:
    PittoreScenaTest() {
        // Pattern 3: level lines half way down each tile of 40 pixels.
        scriviLibreria(programma, {{3, {0.005, {{-100, 0, 100, 0}}, "riga"}}});
    }

    static scene::Scena una(scene::Figura figura) {
        scene::Scena s;
        s.larghezza = s.altezza = 100;
        s.primitive.push_back({});
        s.primitive[0].figura = std::move(figura);
        return s;
    }

    QImage dipinta(const scene::Scena& s, double rapporto = 1, bool vettoriale = false,
                   Tavolozza tavolozza = Tavolozza::chiara) {
        QImage immagine(static_cast<int>(100 * rapporto), static_cast<int>(100 * rapporto),
                        QImage::Format_RGB32);
        immagine.setDevicePixelRatio(rapporto);
        immagine.fill(Qt::white);
        PittoreScena pittore(QGuiApplication::font(), tavolozza);
        QPainter p(&immagine);
        vettoriale ? pittore.dipingiVettoriale(p, s) : pittore.dipingi(p, s);
        return immagine;
    }

    // Rows of a column of the image that are not white.
    static std::vector<int> righe(const QImage& immagine, int x) {
        std::vector<int> scure;
        for (int y = 0; y < immagine.height(); ++y)
            if (qGray(immagine.pixel(x, y)) < 235) scure.push_back(y);
        return scure;
    }

    SessioneGrafica sessione;
};

TEST_F(PittoreScenaTest, PaintsAnAreaInTheColourOfItsRole) {
    const auto s = una(scene::Area{scene::rettangolo(10, 10, 60, 60), {Ruolo::muro}});
    for (const Tavolozza t : {Tavolozza::chiara, Tavolozza::scura}) {
        const QImage immagine = dipinta(s, 1, false, t);
        EXPECT_EQ(immagine.pixelColor(30, 30), qColore({Ruolo::muro}, t));
        EXPECT_EQ(immagine.pixelColor(80, 30), QColor(Qt::white));
    }
}

TEST_F(PittoreScenaTest, LaysTheTilesOfAHatchAtTheOriginOfThePictureAtEveryResolution) {
    const auto s =
        una(scene::Campitura{scene::rettangolo(10, 10, 90, 90), 103, {Ruolo::strato, 2}});
    for (const double rapporto : {1.0, 1.25, 2.0}) {
        const auto trovate = righe(dipinta(s, rapporto), static_cast<int>(50 * rapporto));
        ASSERT_FALSE(trovate.empty()) << rapporto;
        // Lines at 20 and 60, a pixel or two each, none elsewhere.
        for (const int y : trovate)
            EXPECT_TRUE(std::abs(y - 20 * rapporto) <= 1.5 || std::abs(y - 60 * rapporto) <= 1.5)
                << rapporto << ": " << y;
        EXPECT_TRUE(righe(dipinta(s, rapporto), static_cast<int>(5 * rapporto)).empty());
    }
}

TEST_F(PittoreScenaTest, DrawsTheSameHatchAsStrokesForFilesOfVectors) {
    const auto s =
        una(scene::Campitura{scene::rettangolo(10, 10, 90, 90), 103, {Ruolo::strato, 2}});
    const QImage immagine = dipinta(s, 1, true);
    EXPECT_EQ(righe(immagine, 50), righe(dipinta(s), 50));
    EXPECT_TRUE(righe(immagine, 5).empty());
}

TEST_F(PittoreScenaTest, WritesATextWhereItsRoomIs) {
    scene::Testo t;
    t.punto = {50, 50};
    t.ancora = scene::Ancora::centro;
    t.corpo = 14;
    t.testo = "HHHH";
    t.larghezza = MisuraTestiQt(QGuiApplication::font()).larghezza(t.testo, t.corpo, false);
    const QImage immagine = dipinta(una(t));
    const scene::Riquadro r = t.riquadro();
    int dentro = 0, fuori = 0;
    for (int y = 0; y < 100; ++y)
        for (int x = 0; x < 100; ++x)
            if (qGray(immagine.pixel(x, y)) < 128)
                (x >= r.sinistra && x <= r.destra && y >= r.alto && y <= r.basso ? dentro
                                                                                 : fuori)++;
    EXPECT_GT(dentro, 20);
    EXPECT_EQ(fuori, 0);
}

TEST_F(PittoreScenaTest, PutsAPlateUnderATextThatHasOne) {
    scene::Testo t;
    t.punto = {20, 50};
    t.testo = ".";
    t.larghezza = 40;
    t.piastra = true;
    t.fondo = {Ruolo::fondoAcqua};
    EXPECT_EQ(dipinta(una(t)).pixelColor(50, 50), qColore({Ruolo::fondoAcqua}, Tavolozza::chiara));
}

TEST_F(PittoreScenaTest, MeasuresTextsInProportionToTheirSize) {
    const MisuraTestiQt misura(QGuiApplication::font());
    EXPECT_NEAR(misura.larghezza("Sabbia", 24, false) / misura.larghezza("Sabbia", 12, false), 2,
                0.05);
    EXPECT_GT(misura.larghezza("Sabbia", 12, true), misura.larghezza("Sabbia", 12, false));
}

}  // namespace
}  // namespace korven::device
