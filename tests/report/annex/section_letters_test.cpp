// The letters of the section's figure are those of the formulas below it.

#include <gtest/gtest.h>

#include <cctype>
#include <set>
#include <string>

#include "drawings/annex/section_figure.hpp"
#include "report/annex/section_rows.hpp"
#include "support/chapter_bench.hpp"
#include "support/sample_projects.hpp"
#include "support/sample_sections.hpp"
#include "support/scene_parts.hpp"

namespace korven::report {
namespace {

std::set<std::string> parole(const std::string& testo) {
    std::set<std::string> tutte;
    std::string una;
    for (const char c : testo + ' ') {
        if (std::isalnum(static_cast<unsigned char>(c)) != 0) {
            una += c;
        } else {
            tutte.insert(una);
            una.clear();
        }
    }
    return tutte;
}

TEST(LettereSezione, OfTheFigureAreNamedBelowTheFormulas) {
    auto armati = structure::paliArmati();
    armati.armDiamStaffe = 1;
    armati.armPassoStaffe = 20;
    for (const auto& sezione : {structure::diaframmaSimmetrico(), structure::paliTubolari(),
                                structure::palancola(), armati}) {
        auto dati = test::progettoSemplice();
        dati.sezione = sezione;
        std::string note = legendaMisure(sezione) + ' ';
        for (const auto& t :
             test::tutti<document::Tavola>(test::blocchi(capitoloSezione, test::contesto(dati))))
            for (const auto& nota : t.prospetto.note) note += nota + ' ';
        const auto dette = parole(note);
        int lettere = 0;
        for (const auto& t : test::figure<scene::Testo>(drawings::scenaSezione(sezione, 12, 10))) {
            const auto uguale = t.testo.find(" = ");
            if (uguale == std::string::npos) continue;
            EXPECT_EQ(dette.count(t.testo.substr(0, uguale)), 1U) << t.testo;
            ++lettere;
        }
        EXPECT_GE(lettere, 3);
    }
}

}  // namespace
}  // namespace korven::report
