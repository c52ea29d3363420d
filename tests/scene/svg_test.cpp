#include "scene/svg.hpp"

#include <gtest/gtest.h>

#include "scene/polygon.hpp"
#include "support/hatch_setup.hpp"
#include "support/sample_projects.hpp"
#include "support/scene_parts.hpp"

namespace korven::scene {
namespace {

std::string scritto(Figura figura) {
    Scena s;
    s.larghezza = 200;
    s.altezza = 100;
    s.primitive.push_back({});
    s.primitive[0].figura = std::move(figura);
    const std::string testo = svg(s, Tavolozza::chiara, "Arial", "muro & C.", "un muro");
    const auto da = testo.find("</desc>\n") + 8;
    return testo.substr(da, testo.find("</svg>") - da);
}

TEST(Svg, HasSizeTitleAndDescription) {
    Scena s;
    s.larghezza = 200;
    s.altezza = 100.5;
    const std::string testo = svg(s, Tavolozza::chiara, "Arial", "muro & C.", "un muro");
    EXPECT_EQ(testo,
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              "<svg width=\"200\" height=\"100.5\" viewBox=\"0 0 200 100.5\" "
              "xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\">\n"
              "<title>muro &amp; C.</title>\n<desc>un muro</desc>\n</svg>\n");
}

TEST(Svg, WritesAreasLinesAndArrows) {
    EXPECT_EQ(scritto(Area{rettangolo(0, 0, 10, 5), {Ruolo::sfondo}}),
              "<polygon points=\"0 0 10 0 10 5 0 5\" fill=\"#ffffff\"/>\n");
    EXPECT_EQ(scritto(Linea{{{1, 2}, {3, 4}}, {Ruolo::sfondo}, 1.5, Tratteggio::linee}),
              "<polyline points=\"1 2 3 4\" fill=\"none\" stroke=\"#ffffff\" stroke-width=\"1.5\" "
              "stroke-linejoin=\"round\" stroke-dasharray=\"7 4\"/>\n");
    const std::string freccia = scritto(Freccia{{{0, 0}, {20, 0}}, {Ruolo::sfondo}, 1, 10});
    EXPECT_NE(freccia.find("<polygon points=\"20 0 10 4 10 -4\""), std::string::npos) << freccia;
}

TEST(Svg, WritesTextsAsWideAsTheyWereMeasured) {
    Testo t;
    t.punto = {50, 40};
    t.ancora = Ancora::centro;
    t.corpo = 10;
    t.verticale = true;
    t.testo = "a < b";
    t.larghezza = 30;
    t.tinta = {Ruolo::sfondo};
    EXPECT_EQ(scritto(t),
              "<text x=\"50\" y=\"40\" dy=\"3.578125\" font-family=\"Arial, sans-serif\" "
              "font-size=\"10\" fill=\"#ffffff\" textLength=\"30\" "
              "lengthAdjust=\"spacingAndGlyphs\" xml:space=\"preserve\" text-anchor=\"middle\" "
              "transform=\"rotate(-90 50 40)\">a &lt; b</text>\n");
}

TEST(Svg, HoldsAllTextsOfAPicture) {
    const Scena s = test::scenaDi(test::progettoSemplice(), {2});
    const std::string testo = svg(s, Tavolozza::chiara, "Arial", "", "");
    for (const Testo& t : test::figure<Testo>(s))
        EXPECT_NE(testo.find('>' + t.testo + "</text>"), std::string::npos) << t.testo;
}

class SvgCampitura : public test::ProvaCampiture {
 protected:
    SvgCampitura() { scriviLibreria(programma, {{3, {0.005, {{-100, 0, 100, 0}}, "riga"}}}); }
};

TEST_F(SvgCampitura, WritesAHatchAsOnePathOfItsStrokes) {
    // Tiles of 40 px with a line in the middle: at 20, from border to border of the area.
    EXPECT_EQ(scritto(Campitura{rettangolo(10, 10, 70, 30), 103, {Ruolo::sfondo}}),
              "<path d=\"M10 20L40 20M40 20L70 20\" fill=\"none\" stroke=\"#ffffff\" "
              "stroke-width=\"0.9\" stroke-linecap=\"round\"/>\n");
    EXPECT_EQ(scritto(Campitura{rettangolo(10, 22, 70, 30), 103, {Ruolo::sfondo}}), "");
}

}  // namespace
}  // namespace korven::scene
