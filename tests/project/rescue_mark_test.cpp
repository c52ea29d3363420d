#include "project/rescue_mark.hpp"

#include <gtest/gtest.h>

namespace korven::project {
namespace {

std::optional<std::string> letto(const std::string& contenuto) {
    base::LettoreRighe file("muro_recuperato.kvd", contenuto);
    return progettoRecuperato(file);
}

TEST(SegnoRecupero, IsALineWithTheAddressOfTheProject) {
    EXPECT_EQ(segnoRecupero("/home/anna/muro.kvd"), "recupero di file:///home/anna/muro.kvd\r\n");
    EXPECT_EQ(segnoRecupero("/a b/100%/città.kvd"),
              "recupero di file:///a%20b/100%25/citt%C3%A0.kvd\r\n");
}

TEST(SegnoRecupero, GivesThePathBackWhateverIsInIt) {
    for (const char* percorso : {"/home/anna/muro.kvd", "/a b/100%/città.kvd", "/Łódź/ściana.kvd",
                                 "/a\nb\r/c\x01.kvd", "/非/%41.kvd"})
        EXPECT_EQ(letto(segnoRecupero(percorso)), percorso);
}

TEST(SegnoRecupero, IsNoneWhereTheLineIsCutOrAnother) {
    const std::string segno = segnoRecupero("/lavori/città.kvd");
    for (std::size_t n = 0; n < segno.size(); ++n)
        EXPECT_EQ(letto(segno.substr(0, n)), std::nullopt) << n;
    EXPECT_EQ(letto("12\r\n" + segno), std::nullopt);
    EXPECT_EQ(letto("recupero di file:///a%2\r\n"), std::nullopt);
    EXPECT_EQ(letto("recupero di file:///a%zz\r\n"), std::nullopt);
    EXPECT_EQ(letto("recupero di file:///a%1z\r\n"), std::nullopt);
}

}  // namespace
}  // namespace korven::project
