#include "tools/help_structure.hpp"

#include <gtest/gtest.h>

#include "base/file_error.hpp"
#include "tools/refused_source.hpp"

namespace korven::tools {
namespace {

long faultLine(const std::string& source) {
    return refusal("s.txt", source, readHelpStructure).first;
}

TextRecord text(const std::string& italian, const std::string& french) {
    return {"texts32.txt", {italian, "", french, "", "", ""}, 1};
}

// The label of one field in French.
std::string label(const std::string& keys) {
    const std::vector<TextRecord> records = {text("LATO MONTE", "côté terres"),
                                             text("Copriferro", "Enrobage"),
                                             text("titolo", "titre"),
                                             text("Fyk [N/mm²]", "fyk [N/mm²]"),
                                             text("N° ferri:", "Nb. de barres\u00a0:"),
                                             text("&Ferma", "&Arrêter")};
    return withLabels("s.txt", {{"c", "p", 0, {{"1", keys, 7}}}}, records, 3)[0].fields[0].label;
}

TEST(HelpStructure, HoldsThePagesOfItsChaptersWithTheirEntriesAndFields) {
    const auto pages =
        readHelpStructure("s.txt",
                          "# head\n\n@capitolo c\n\n@pagina p 28\n@campo 1 Prof. [m]\n"
                          "@campo Text2 Passo\n@capitolo d\n@pagina q\n");
    ASSERT_EQ(pages.size(), 2u);
    EXPECT_EQ(pages[0].chapter, "c");
    EXPECT_EQ(pages[0].name, "p");
    EXPECT_EQ(pages[0].entry, 28);
    ASSERT_EQ(pages[0].fields.size(), 2u);
    EXPECT_EQ(pages[0].fields[0].name, "1");
    EXPECT_EQ(pages[0].fields[0].label, "Prof. [m]");
    EXPECT_EQ(pages[0].fields[1].name, "Text2");
    EXPECT_EQ(pages[0].fields[1].line, 7);
    EXPECT_EQ(pages[1].chapter, "d");
    EXPECT_EQ(pages[1].entry, 0);
    EXPECT_TRUE(pages[1].fields.empty());
}

TEST(HelpStructure, HoldsTheGroupsOfMessagesOfItsPages) {
    const auto pages = readHelpStructure(
        "s.txt", "@capitolo c\n@pagina p\n@pagina q\n@gruppo first\n@gruppo second\n");
    ASSERT_EQ(pages.size(), 2u);
    EXPECT_TRUE(pages[0].groups.empty());
    ASSERT_EQ(pages[1].groups.size(), 2u);
    EXPECT_EQ(pages[1].groups[0].name, "first");
    EXPECT_EQ(pages[1].groups[1].name, "second");
    EXPECT_EQ(faultLine("@capitolo c\n@gruppo g\n"), 2);
    EXPECT_EQ(faultLine("@capitolo c\n@pagina p\n@gruppo a b\n"), 3);
    EXPECT_EQ(faultLine("@capitolo c\n@pagina p\n@gruppo g\n@pagina q\n@gruppo g\n"), 5);
}

TEST(HelpStructure, SaysInWhichLineItIsBroken) {
    EXPECT_EQ(faultLine("# nothing\n"), 1);
    EXPECT_EQ(faultLine("@pagina p\n"), 1);
    EXPECT_EQ(faultLine("@capitolo a b\n"), 1);
    EXPECT_EQ(faultLine("@capitolo c\n@pagina p 201\n"), 2);
    EXPECT_EQ(faultLine("@capitolo c\n@pagina p 1 2\n"), 2);
    EXPECT_EQ(faultLine("@capitolo c\n@campo 1 A\n"), 2);
    EXPECT_EQ(faultLine("@capitolo c\n@pagina p\ntesto\n"), 3);
    EXPECT_EQ(faultLine("@capitolo c\n@pagina p\n@campo 1\n"), 3);
}

TEST(HelpStructure, RefusesWhatIsUsedTwice) {
    EXPECT_EQ(faultLine("@capitolo c\n@pagina p 3\n@pagina q 3\n"), 3);
    EXPECT_EQ(faultLine("@capitolo c\n@pagina p 3\n@pagina p 4\n"), 3);
    EXPECT_EQ(faultLine("@capitolo c\n@pagina p\n@capitolo c\n"), 3);
    EXPECT_EQ(faultLine("@capitolo c\n@pagina p\n@campo 1 A\n@campo 1 B\n"), 4);
}

TEST(HelpStructure, TakesItsLabelsFromTheTextsOfTheForms) {
    EXPECT_EQ(label("Copriferro, lato monte"), "Enrobage, côté terres");
    EXPECT_EQ(label("Lato monte"), "Côté terres");
    EXPECT_EQ(label("lato monte"), "côté terres");
    EXPECT_EQ(label("Copriferro, Fyk [N/mm²]"), "Enrobage, fyk [N/mm²]");
    EXPECT_EQ(label("Copriferro [mm]"), "Enrobage [mm]");
    EXPECT_EQ(label("Titolo [2]"), "Titre [2]");
    EXPECT_EQ(label("N° ferri:"), "Nb. de barres");
    EXPECT_EQ(label("&Ferma"), "Arrêter");
}

TEST(HelpStructure, RefusesALabelThatIsNoTextOfTheProgram) {
    try {
        static_cast<void>(label("Copriferro, mai visto"));
        ADD_FAILURE() << "accepted";
    } catch (const base::ErroreFile& error) {
        EXPECT_EQ(error.riga(), 7);
        EXPECT_EQ(error.atteso(), "attese chiavi di texts.txt: Copriferro, mai visto");
    }
}

}  // namespace
}  // namespace korven::tools
