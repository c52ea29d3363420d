#include "report/annex/command_lines.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace korven::report {
namespace {

// As a shell reads it: a backslash at the end of a line joins it to the next one.
std::string unita(std::string testo) {
    constexpr std::string_view seguito = "\\\n   ";
    for (auto i = testo.find(seguito); i != std::string::npos; i = testo.find(seguito))
        testo.erase(i - 1, seguito.size() + 1);
    return testo;
}

TEST(ACapo, LeavesAShortCommandAsItIs) {
    EXPECT_EQ(aCapo("korven32c allegato muro.kvd", 40), "korven32c allegato muro.kvd");
}

TEST(ACapo, EndsALineBeforeAnOption) {
    EXPECT_EQ(aCapo("korven32c allegato muro.kvd --nseg 40 --data 2026-11-22", 40),
              "korven32c allegato muro.kvd --nseg 40 \\\n    --data 2026-11-22");
}

TEST(ACapo, BreaksNoNameInQuotes) {
    const std::string nome = "'lavori/via --nord/cantiere --nord lotto.kvd'";
    const std::string comando = "korven32c allegato " + nome + " --nseg 40";
    for (std::size_t larghezza = 1; larghezza < 80; ++larghezza) {
        const std::string righe = aCapo(comando, larghezza);
        EXPECT_NE(righe.find(nome), std::string::npos) << larghezza;
        EXPECT_EQ(unita(righe), comando) << larghezza;
    }
}

TEST(ACapo, KnowsAQuoteWithinAQuotedNameAndABlankBehindABackslash) {
    for (const std::string comando : {R"(korven32c allegato 'l'\''alto muro.kvd' --nseg 40)",
                                      R"(korven32c allegato alto\ muro.kvd --nseg 40)",
                                      R"(korven32c allegato "alto \" muro.kvd" --nseg 40)"}) {
        const std::string righe = aCapo(comando, 1);
        EXPECT_EQ(unita(righe), comando);
        EXPECT_EQ(std::count(righe.begin(), righe.end(), '\n'), 4) << righe;
    }
}

TEST(ACapo, BreaksBetweenAnyArgumentsWhereNoOptionBegins) {
    EXPECT_EQ(aCapo("aaaa bbbb cccc", 9), "aaaa bbbb \\\n    cccc");
}

}  // namespace
}  // namespace korven::report
