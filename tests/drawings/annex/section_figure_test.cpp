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

// A checker redoes the formulas with the values of the figure: d is the effective depth of a
// pile in both.
TEST(ScenaSezione, CallsAMeasureAsTheFormulasDo) {
    EXPECT_EQ(
        misure(structure::diaframmaSimmetrico()),
        (Scritte{"H = 800", "c1 = 50", "d1 = 24", "i1 = 200", "c2 = 50", "d2 = 24", "i2 = 200"}));
    EXPECT_EQ(misure(structure::paliTubolari()), (Scritte{"D = 600", "d = 580", "i = 800"}));
    EXPECT_EQ(misure(structure::palancola()),
              (Scritte{"b = 200", "t = 20", "a = 100", "h = 190", "s = 12"}));
    auto armati = structure::paliArmati();
    armati.armDiamStaffe = 1;
    armati.armPassoStaffe = 20;
    EXPECT_EQ(misure(armati), (Scritte{"D = 800", "i = 1000", "n = 120/10 = 12", "dl = 24",
                                       "c = 60", "ds = 10", "p = 200"}));
}

TEST(SimboloFormule, IsThereForEveryMeasureOfASectionAndForNoMaterial) {
    for (const auto& campo : masks::campiSezione)
        EXPECT_EQ(simboloFormule(campo.valore).empty(), campo.simbolo.empty()) << campo.simbolo;
}

}  // namespace
}  // namespace korven::drawings
