// The configuration files of the drawings as the build has laid them into the program folder, and
// what their pens and colours must be able to do.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <set>

#include "base/code_page.hpp"
#include "base/files.hpp"
#include "base/language.hpp"
#include "base/text_lines.hpp"
#include "plot/dxf/colour.hpp"

namespace korven {
namespace {

struct Pen {
    std::string label;
    double colour = 0;
    double width = 0;
    std::string font;
};

struct Colour {
    std::string name;
    int value = 0;
};

struct Configuration {
    std::vector<Pen> pens;  // row i at index i - 1
    std::vector<Colour> colours;
    double left = 0;
    double top = 0;
    bool complete = false;
};

std::string bytes(int language) {
    return base::leggiFile(std::string(KORVEN_PROGRAM_FOLDER "/module06") +
                           std::string(base::siglaLingua(language)) + ".CFG");
}

Configuration read(int language) {
    base::LettoreRighe file("module06", bytes(language));
    Configuration all;
    for (int i = 0; i < 30; ++i) {
        auto& pen = all.pens.emplace_back();
        pen.label = file.riga("label");
        pen.colour = file.numero("colour");
        pen.width = file.numero("width");
        pen.font = file.riga("font");
    }
    for (int i = 0; i < 15; ++i) {
        auto& colour = all.colours.emplace_back();
        colour.name = file.riga("name");
        colour.value = static_cast<int>(file.numero("value"));
    }
    all.left = file.numero("left");
    all.top = file.numero("top");
    all.complete = file.fine();
    return all;
}

using Channels = std::array<int, 3>;

// White is drawn as black.
Channels shown(int value) {
    if (value == 0xFFFFFF) return {0, 0, 0};
    return {value & 0xFF, (value >> 8) & 0xFF, (value >> 16) & 0xFF};
}

Channels colourOf(const Configuration& all, std::size_t pen) {
    return shown(all.colours.at(static_cast<std::size_t>(all.pens.at(pen - 1).colour) - 1).value);
}

double linear(int channel) {
    const double c = channel / 255.0;
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

using Light = std::array<double, 3>;

Light light(const Channels& c) { return {linear(c[0]), linear(c[1]), linear(c[2])}; }

// CIE 1976 L*, a*, b* of a linear sRGB light under D65.
Light lab(const Light& v) {
    const auto f = [](double t) {
        return t > 216.0 / 24389.0 ? std::cbrt(t) : (24389.0 / 27.0 * t + 16.0) / 116.0;
    };
    const double x = f((0.4124 * v[0] + 0.3576 * v[1] + 0.1805 * v[2]) / 0.9505);
    const double y = f(0.2126 * v[0] + 0.7152 * v[1] + 0.0722 * v[2]);
    const double z = f((0.0193 * v[0] + 0.1192 * v[1] + 0.9505 * v[2]) / 1.089);
    return {116.0 * y - 16.0, 500.0 * (x - y), 200.0 * (y - z)};
}

double lightness(const Channels& c) { return lab(light(c))[0]; }

TEST(DeliveredPens, FillTheFileOfEachLanguageWithCompleteBlocks) {
    for (int language = 1; language <= 6; ++language) {
        const std::string content = bytes(language);
        EXPECT_EQ(std::count(content.begin(), content.end(), '\n'), 30 * 4 + 15 * 2 + 2);
        EXPECT_EQ(std::count(content.begin(), content.end(), '\r'), 30 * 4 + 15 * 2 + 2);
        EXPECT_TRUE(content.ends_with("\r\n"));
        EXPECT_TRUE(read(language).complete);
    }
}

TEST(DeliveredPens, HaveColoursWidthsAndFontsInTheirRanges) {
    const auto all = read(1);
    for (const auto& pen : all.pens) {
        EXPECT_EQ(pen.colour, std::floor(pen.colour));
        EXPECT_GE(pen.colour, 1) << "draws nothing: " << pen.label;
        EXPECT_LE(pen.colour, 15);
        EXPECT_GE(pen.width, 0.18) << "too thin at half size: " << pen.label;
        EXPECT_LE(pen.width, 0.7);
        EXPECT_TRUE(pen.font == "Arial" || pen.font == "Courier New") << pen.font;
    }
    for (const auto& colour : all.colours) {
        EXPECT_GT(colour.value, 0) << colour.name;
        EXPECT_LE(colour.value, 0xFFFFFF) << colour.name;
    }
}

TEST(DeliveredPens, AreTheSameInAllLanguagesButForTheirTexts) {
    const auto first = read(1);
    for (int language = 2; language <= 6; ++language) {
        const auto all = read(language);
        for (std::size_t i = 0; i < 30; ++i) {
            EXPECT_EQ(all.pens[i].colour, first.pens[i].colour);
            EXPECT_EQ(all.pens[i].width, first.pens[i].width);
            EXPECT_EQ(all.pens[i].font, first.pens[i].font);
            EXPECT_NE(all.pens[i].label, first.pens[i].label);
        }
        for (std::size_t i = 0; i < 15; ++i)
            EXPECT_EQ(all.colours[i].value, first.colours[i].value);
    }
}

// The form finds a pen by its label.
TEST(DeliveredPens, HaveLabelsAndColoursThatNameEachOneAlone) {
    for (int language = 1; language <= 6; ++language) {
        std::set<std::string> labels;
        std::set<std::string> names;
        std::set<int> values;
        const auto all = read(language);
        for (const auto& pen : all.pens) {
            EXPECT_FALSE(base::senzaSpaziEsterni(pen.label).empty());
            EXPECT_LE(base::numeroCaratteri(pen.label), 60u) << pen.label;
            EXPECT_TRUE(labels.insert(pen.label).second) << pen.label;
        }
        for (const auto& colour : all.colours) {
            EXPECT_FALSE(base::senzaSpaziEsterni(colour.name).empty());
            EXPECT_TRUE(names.insert(colour.name).second) << colour.name;
            EXPECT_TRUE(values.insert(colour.value).second) << colour.name;
        }
    }
}

// The depth scale of the log is filled by lines of pen 4, 0.2 mm apart.
TEST(DeliveredPens, FillTheDepthScaleWithoutGaps) { EXPECT_GE(read(1).pens[3].width, 0.2); }

TEST(DeliveredPens, DrawTheWallHeaviestAndTheLimitsApart) {
    const auto all = read(1);
    const auto heavier = std::count_if(all.pens.begin(), all.pens.end(), [&](const Pen& pen) {
        return pen.width >= all.pens[6].width;
    });
    EXPECT_EQ(heavier, 1);  // itself
    EXPECT_GE(all.pens[8].width / all.pens[7].width, 1.35);
    EXPECT_GE(std::abs(lightness(colourOf(all, 8)) - lightness(colourOf(all, 9))), 10.0);
}

// Contrast of WCAG 2, at least 3 to 1 for graphics.
TEST(DeliveredPens, StandOutOnWhitePaper) {
    const auto all = read(1);
    for (const auto& colour : all.colours) {
        const auto v = light(shown(colour.value));
        const double luminance = 0.2126 * v[0] + 0.7152 * v[1] + 0.0722 * v[2];
        EXPECT_GE(1.05 / (luminance + 0.05), 3.0) << colour.name;
    }
}

// A DXF line goes to the layer of its colour reduced to levels 0, 128 and 255, if the standard
// palette has it: then all channels that are not low are of one level.
TEST(DeliveredPens, HaveColoursThatEachReachALayerInDxf) {
    for (const auto& colour : read(1).colours) {
        const auto c = shown(colour.value);
        if (c[0] == c[1] && c[1] == c[2]) continue;  // black and grey become white, which is there
        std::set<int> levels;
        for (const int channel : c)
            if (channel >= 64) levels.insert(channel >= 192 ? 255 : 128);
        EXPECT_EQ(levels.size(), 1u) << colour.name;
    }
}

int layerOf(const Configuration& all, std::size_t pen) {
    const auto c = colourOf(all, pen);
    return plot::livelloDxf(plot::daRgb(c[0], c[1], c[2])).value();
}

// DXF knows seven colours: the numbers of its layers (plot/dxf/tables.cpp), 7 is black or white as
// the screen needs it.
int dxfColourOf(const Configuration& all, std::size_t pen) {
    constexpr int colours[] = {5, 3, 4, 1, 6, 2, 7, 7, 5, 3, 4, 1, 6, 2, 7};
    return colours[layerOf(all, pen) - 1];
}

TEST(DeliveredPens, GiveTheFirstSixStagesSixColoursInDxfNoneOfThemThatOfTheAxes) {
    const auto all = read(1);
    std::set<int> colours;
    for (std::size_t pen = 15; pen <= 20; ++pen) colours.insert(dxfColourOf(all, pen));
    EXPECT_EQ(colours, (std::set<int>{1, 2, 3, 4, 5, 6}));
}

TEST(DeliveredPens, DrawTheLimitPressuresOnALayerOfTheirOwnInDxf) {
    const auto all = read(1);
    EXPECT_EQ(layerOf(all, 8), layerOf(all, 9));
    for (std::size_t pen = 1; pen <= 30; ++pen)
        if (pen != 8 && pen != 9) {
            EXPECT_NE(layerOf(all, pen), layerOf(all, 8)) << all.pens[pen - 1].label;
        }
    EXPECT_EQ(dxfColourOf(all, 8), 7) << "seen on black and on white";
}

TEST(DeliveredPens, TellAnyTwoStagesApartInBlackAndWhiteByWidthOrLightness) {
    const auto all = read(1);
    for (std::size_t s = 1; s <= 16; ++s)
        for (std::size_t t = 1; t < s; ++t) {
            const double w = all.pens[13 + s].width / all.pens[13 + t].width;
            const double l =
                std::abs(lightness(colourOf(all, 14 + s)) - lightness(colourOf(all, 14 + t)));
            EXPECT_TRUE(std::max(w, 1 / w) >= 1.35 || l >= 9.0) << t << " and " << s << ": " << l;
        }
}

// Red, green and blue as seen by readers without the red, green and blue receptors.
// Source: Machado, Oliveira, Fernandes (2009), A physiologically-based model for simulation of
// color vision deficiency.
constexpr double sights[4][3][3] = {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}},
                                    {{0.152286, 1.052583, -0.204868},
                                     {0.114503, 0.786281, 0.099216},
                                     {-0.003882, -0.048116, 1.051998}},
                                    {{0.367322, 0.860646, -0.227968},
                                     {0.280085, 0.672501, 0.047413},
                                     {-0.011820, 0.042940, 0.968881}},
                                    {{1.255528, -0.076749, -0.178779},
                                     {-0.078411, 0.930809, 0.147602},
                                     {0.004733, 0.691367, 0.303900}}};

double difference(const Channels& a, const Channels& b, const double (&sight)[3][3]) {
    const auto seen = [&sight](const Channels& c) {
        const Light v = light(c);
        Light out{};
        for (std::size_t i = 0; i < 3; ++i)
            out[i] =
                std::clamp(sight[i][0] * v[0] + sight[i][1] * v[1] + sight[i][2] * v[2], 0.0, 1.0);
        return lab(out);
    };
    const Light p = seen(a);
    const Light q = seen(b);
    return std::hypot(p[0] - q[0], p[1] - q[1], p[2] - q[2]);
}

// A difference of 2.3 can just be seen between two large areas; lines need many times that.
TEST(DeliveredPens, TellEachStageFromTheNextForEveryColourVision) {
    const auto all = read(1);
    for (std::size_t s = 2; s <= 16; ++s) {
        const double w = all.pens[13 + s].width / all.pens[12 + s].width;
        EXPECT_GE(std::max(w, 1 / w), 1.35);
        for (const auto& sight : sights)
            EXPECT_GE(difference(colourOf(all, 14 + s), colourOf(all, 13 + s), sight), 30.0) << s;
    }
}

}  // namespace
}  // namespace korven
