#include <gtest/gtest.h>

#include "review/remark_list.hpp"
#include "support/sample_projects.hpp"
#include "support/sample_sections.hpp"

namespace korven::review {
namespace {

using project::Sezione;
using Righe = std::vector<std::string>;

Righe righe(const Sezione& sezione, double sforzoNormale) {
    project::DatiProgetto d = test::progettoSemplice();
    d.sezione = sezione;
    d.sforzoNormale = sforzoNormale;
    ElencoOsservazioni elenco;
    controlloResistenza(d, elenco);
    Righe testo;
    for (const auto& r : elenco.ordinate()) testo.push_back(r.testo);
    return testo;
}

// 795476 mm2 of concrete at 13.281 N/mm2 and 4523.9 mm2 of steel at 373.9: 12256 kN in compression,
// 1692 in tension; divided by 1.4 and by ten, 875.5 t and 120.8 t.
TEST(ControlloResistenza, TellsAnAxialForceBeyondTheSection) {
    const auto s = structure::diaframmaSimmetrico();
    EXPECT_EQ(righe(s, 876), Righe{"sforzo normale = 8760: di progetto 12264 kN/m, la sezione ne "
                                   "porta 12256: la resistenza a flessione è nulla"});
    EXPECT_EQ(righe(s, 875), Righe{});
    EXPECT_EQ(righe(s, -121), Righe{"sforzo normale = -1210: di progetto 1694 kN/m, la sezione ne "
                                    "porta 1692: la resistenza a flessione è nulla"});
    EXPECT_EQ(righe(s, -120), Righe{});
}

TEST(ControlloResistenza, TellsASectionThatCarriesNothing) {
    const Righe nulla = {
        "la sezione non ha resistenza a flessione: controllare misure, armature e materiali"};
    auto s = structure::paliArmati();
    s.armNumLong = 0.5;  // no bar at all
    EXPECT_EQ(righe(s, 0), nulla);
    s.armNumLong = 12;
    EXPECT_EQ(righe(s, 0), Righe{});
    s.fyk = 0.43;  // typed in another unit: about a thousandth of what it carries
    EXPECT_EQ(righe(s, 0), nulla);
}

TEST(ControlloResistenza, AsksNothingOfASectionThatIsNotDefinedOrHasTooManyBars) {
    EXPECT_EQ(righe({}, 1000), Righe{});
    auto s = structure::paliArmati();
    s.armNumLong = 1e6;
    EXPECT_EQ(righe(s, 1000), Righe{});
}

}  // namespace
}  // namespace korven::review
