#include "base/shell_word.hpp"

#include <gtest/gtest.h>

namespace korven::base {
namespace {

TEST(PerLaShell, LeavesPlainNamesAsTheyAre) {
    for (const char* piano : {"muro.kvd", "/lavori/muro-2_a.kvd", "80", "--nseg", "a,b:c=d@e%f+g"})
        EXPECT_EQ(perLaShell(piano), piano);
}

TEST(PerLaShell, PutsAllElseBetweenQuoteMarks) {
    EXPECT_EQ(perLaShell(""), "''");
    EXPECT_EQ(perLaShell("muro di $casa"), "'muro di $casa'");
    EXPECT_EQ(perLaShell("l'Aquila"), "'l'\\''Aquila'");
    EXPECT_EQ(perLaShell("a\nb"), "'a\nb'");
    EXPECT_EQ(perLaShell("~/è"), "'~/è'") << "a shell's own home is none of a file's name";
}

}  // namespace
}  // namespace korven::base
