#include "drawings/annex/section_figure.hpp"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "drawings/annex/section_symbols.hpp"
#include "masks/edited_section.hpp"
#include "support/sample_sections.hpp"
#include "support/scene_parts.hpp"

namespace korven::drawings {
namespace {

// What stands at the dimensions, "dl = 24".
std::set<std::string> misure(const project::Sezione& sezione) {
    std::set<std::string> scritte;
    for (const auto& t : test::figure<scene::Testo>(scenaSezione(sezione, 12, 10)))
        if (t.testo.find(" = ") != std::string::npos) scritte.insert(t.testo);
    return scritte;
}

using Scritte = std::set<std::string>;

// A checker redoes the formulas with the values of the figure: s is the flange in both.
TEST(ScenaSezione, CallsAMeasureAsTheFormulasDo) {
    EXPECT_EQ(
        misure(structure::diaframmaSimmetrico()),
        (Scritte{"H = 800", "cm = 50", "dm = 24", "im = 200", "cv = 50", "dv = 24", "iv = 200"}));
    EXPECT_EQ(misure(structure::paliTubolari()), (Scritte{"De = 600", "Di = 580", "i = 800"}));
    EXPECT_EQ(misure(structure::palancola()),
              (Scritte{"b = 200", "s = 20", "la = 100", "ha = 190", "sa = 12"}));
    auto armati = structure::paliArmati();
    armati.armDiamStaffe = 1;
    armati.armPassoStaffe = 20;
    EXPECT_EQ(misure(armati), (Scritte{"D = 800", "i = 1000", "n = 120/10 = 12", "dl = 24",
                                       "c = 60", "dw = 10", "s = 200"}));
}

TEST(SimboloFormule, IsThereForEveryMeasureOfASectionAndForNoMaterial) {
    for (const auto& campo : masks::campiSezione)
        EXPECT_EQ(simboloFormule(campo.valore).empty(), campo.simbolo.empty()) << campo.simbolo;
}

}  // namespace
}  // namespace korven::drawings
