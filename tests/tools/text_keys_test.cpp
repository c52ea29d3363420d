// Every text that the sources may show must be in the table of texts. What reaches the translation
// goes through tables, constants and functions, so this test does not follow it: it takes each
// literal with a word in it for a text and knows by name those that are none (no_texts.txt).

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <string_view>

#include "base/case_form.hpp"
#include "base/code_page.hpp"
#include "base/files.hpp"
#include "base/text_table.hpp"
#include "project/field_table.hpp"
#include "review/remark_table.hpp"
#include "tools/no_texts.hpp"
#include "tools/string_literals.hpp"
#include "tools/text_source.hpp"

namespace korven {
namespace {

namespace fs = std::filesystem;
using test::noTexts;
using test::readNoTexts;
using test::Texts;

bool letter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || static_cast<unsigned char>(c) > 127;
}

// Three letters in a row make a word; directives of the report and options say what they are.
bool speaks(std::string_view text) {
    if (text.starts_with('#') || text.starts_with('-')) return false;
    int run = 0;
    for (const char c : text) {
        run = letter(c) ? run + 1 : 0;
        if (run == 3) return true;
    }
    return false;
}

// The literals with words of each file, by its path below src/, without outer blanks.
std::map<std::string, Texts> spokenLiterals() {
    std::map<std::string, Texts> found;
    const fs::path root = KORVEN_SOURCE_FOLDER;
    for (const auto& entry : fs::recursive_directory_iterator(root)) {
        const auto extension = entry.path().extension();
        if (extension != ".cpp" && extension != ".hpp") continue;
        Texts& texts = found[fs::relative(entry.path(), root).generic_string()];
        for (const auto& literal : tools::stringLiterals(base::leggiFile(entry.path().string())))
            if (const auto text = base::senzaSpaziEsterni(literal); speaks(text))
                texts.emplace_back(text);
    }
    return found;
}

// Controls of forms have names of their own: "Picture12".
bool namesControl(const std::string& text) {
    for (const std::string_view kind : {"Picture", "Text", "List", "Command", "Option", "Frame"})
        if (text.starts_with(kind))
            return text.find_first_not_of("0123456789_%", kind.size()) == std::string::npos;
    return false;
}

bool listed(const Texts& texts, const std::string& text) {
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}

// In the table of fields: captions that are looked up with their unit and items that are looked up
// as a line of all, see below.
bool isPartOfField(const std::string& file, const std::string& text) {
    if (file != "project/field_table.cpp") return false;
    for (const auto& field : project::campi()) {
        if (text == field.didascalia) return true;
        for (const auto& code : field.codici)
            if (text == code.voce) return true;
    }
    return false;
}

// The units of project/units.hpp as they are shown, by their names there.
std::map<std::string, std::string> shownUnits() {
    const std::string source = base::leggiFile(KORVEN_SOURCE_FOLDER "/project/units.hpp");
    const std::regex row("Unita (\\w+)\\{\"[^\"]*\",\\s*\"([^\"]*)\"");
    std::map<std::string, std::string> units;
    for (std::sregex_iterator at(source.begin(), source.end(), row), end; at != end; ++at)
        units[(*at)[1]] = (*at)[2];
    return units;
}

// The unit of a field as it is shown, empty for what is no field.
std::string shownUnit(const std::string& member) {
    for (const auto& field : project::campi())
        if (field.nome == member) return std::string(field.unita.mostrata);
    return {};
}

// The literals of a source that have a unit of that table beside them, or a field whose unit they
// go with, without and with it: a caption is looked up together with its unit.
std::map<std::string, std::string> captionsWithUnit(const std::string& source) {
    static const auto units = shownUnits();
    static const std::regex pair("\"([^\"]*)\",\\s*&?(?:project::)?(unita|DatiProgetto)::(\\w+)");
    std::map<std::string, std::string> captions;
    for (std::sregex_iterator at(source.begin(), source.end(), pair), end; at != end; ++at)
        if (const auto unit = (*at)[2] == "unita" ? units.at((*at)[3]) : shownUnit((*at)[3]);
            !unit.empty())
            captions[(*at)[1]] = std::string((*at)[1]) + " [" + unit + "]";
    return captions;
}

// Codes of remarks and the pages of the help that they name, which people do not read.
bool namesRemark(const std::string& text) {
    for (const auto rows : review::vociOsservazioni)
        for (const auto& row : rows)
            if (text == row.codice || text == row.guida) return true;
    return false;
}

// Drawings of icons, by the English names of their files.
bool namesIcon(const std::string& text) {
    std::error_code tooLong;  // for a file's name, as sentences are
    return fs::is_regular_file(KORVEN_DATA_FOLDER "/icons/" + text + ".svg", tooLong);
}

bool isNoText(const std::string& file, const std::string& text) {
    const auto& [silent, some] = noTexts();
    const auto exempt = some.find(file);
    return silent.contains(file) || namesControl(text) || isPartOfField(file, text) ||
           namesRemark(text) || namesIcon(text) ||
           (exempt != some.end() && listed(exempt->second, text));
}

std::set<std::string> keys() {
    const std::string source = KORVEN_DATA_FOLDER "/texts.txt";
    std::set<std::string> all;
    for (const auto& record : tools::readTextSource(source, base::leggiFile(source)))
        all.insert(base::chiaveTesto(record.text[0]));
    return all;
}

TEST(TextKeys, AreInTheTableForEveryLiteralThatMayBeShown) {
    const auto known = keys();
    int looked = 0;
    for (const auto& [file, texts] : spokenLiterals()) {
        const auto captions = captionsWithUnit(base::leggiFile(KORVEN_SOURCE_FOLDER "/" + file));
        for (const auto& text : texts) {
            if (isNoText(file, text) || captions.contains(text)) continue;
            ++looked;
            EXPECT_TRUE(known.contains(base::chiaveTesto(text)))
                << "src/" << file << " has \"" << text
                << "\", which has no record in data/texts.txt; if it is never shown, name it in "
                   "tests/tools/no_texts.txt";
        }
    }
    EXPECT_GT(looked, 200) << "the sources were not found";
}

// A text that is asked in another case than its record has is brought to the case that was asked,
// nouns and all: "Elastizitätsmodul des stahls". Capitals all through are wanted where they stand.
TEST(TextKeys, KeepTheCapitalsOfNounsWhereSeveralWordsAreAskedFor) {
    const std::string source = KORVEN_DATA_FOLDER "/texts.txt";
    std::map<std::string, tools::TextRecord> records;
    for (const auto& record : tools::readTextSource(source, base::leggiFile(source)))
        records[base::chiaveTesto(record.text[0])] = record;
    int looked = 0;
    for (const auto& [file, texts] : spokenLiterals()) {
        for (const auto& text : texts) {
            const auto at = records.find(base::chiaveTesto(text));
            if (isNoText(file, text) || at == records.end() || text == at->second.text[0] ||
                text.find(' ') == std::string::npos || base::maiuscolo(text) == text)
                continue;
            ++looked;
            for (const auto& translation : at->second.text)
                EXPECT_EQ(base::conMaiuscola(base::conFormaDi(text, translation)),
                          base::conMaiuscola(translation))
                    << "src/" << file << " asks for \"" << text << "\" in another case";
        }
    }
    EXPECT_GT(looked, 0);
}

TEST(TextKeys, AreInTheTableForEachCaptionWithTheUnitThatIsBesideIt) {
    const auto known = keys();
    std::set<std::string> looked;
    for (const auto& [file, texts] : spokenLiterals()) {
        if (file == "project/field_table.cpp") continue;  // looked at below, by its rows
        const auto source = base::leggiFile(KORVEN_SOURCE_FOLDER "/" + file);
        for (const auto& [caption, text] : captionsWithUnit(source)) {
            looked.insert(text);
            EXPECT_TRUE(known.contains(base::chiaveTesto(text))) << "src/" << file << ": " << text;
        }
    }
    EXPECT_TRUE(looked.contains("Tensione max. [kN]"));
    EXPECT_TRUE(looked.contains("Spostamento max. [mm]"));
    EXPECT_TRUE(looked.contains("c' [kN/m²]"));
    EXPECT_TRUE(looked.contains("falda [m]"));
    EXPECT_TRUE(looked.contains("F.S. parziale delle azioni [-]"));
}

TEST(TextKeys, AreInTheTableForEachCaptionOfAFieldAndItsUnit) {
    const auto known = keys();
    const auto has = [&](const auto& text) { return known.contains(base::chiaveTesto(text)); };
    std::set<std::string_view> withoutUnit;
    for (const auto& field : project::campi()) {
        EXPECT_TRUE(has(std::string(field.cosa))) << field.cosa;
        if (field.didascalia.empty() || has(project::etichetta(field))) continue;
        withoutUnit.insert(field.nome);
        EXPECT_TRUE(has(std::string(field.didascalia))) << field.didascalia;
    }
    // Neither report nor remarks say these captions, only forms, which look them up without unit.
    EXPECT_EQ(withoutUnit,
              (std::set<std::string_view>{"sforzoNormale", "gammaAcqua",
                                          "sezione.spessoreDiaframma", "sezione.paliInterasse",
                                          "sezione.palancolaBase", "sezione.armInterasse"}));
}

TEST(TextKeys, AreInTheTableForTheHeadingsOfTheSectionFormWithTheirUnits) {
    const auto known = keys();
    for (const auto type : project::tipiSezione) {
        if (type == &project::Sezione::tipoPalancola) continue;  // its frame has a title of its own
        const auto title =
            project::etichetta(project::campo(type).didascalia, project::unita::misura);
        EXPECT_TRUE(known.contains(base::chiaveTesto(title))) << title;
    }
    for (const auto column : {"Fyk", "Fck", "E"}) {
        const auto title = project::etichetta(column, project::unita::tensione);
        EXPECT_TRUE(known.contains(base::chiaveTesto(title))) << title;
    }
}

// The foot of the report names the method of a run, its table the kind of an anchor.
TEST(TextKeys, AreInTheTableForEachCodeThatTheReportSaysAlone) {
    const auto known = keys();
    for (const auto* field : {&project::campo(&project::DatiProgetto::metodoSpinte),
                              &project::campo(&project::DatiProgetto::tipoTirante)})
        for (const auto& code : field->codici)
            EXPECT_TRUE(known.contains(base::chiaveTesto(std::string(code.voce)))) << code.voce;
}

// A short literal has no word in it; where it goes straight into the translation it is a text.
TEST(TextKeys, AreInTheTableForEveryLiteralThatIsTranslatedHoweverShort) {
    const auto known = keys();
    const std::regex direct("\\b(?:tradotto|traduttore)\\(\"([^\"]*)\"");
    std::set<std::string> looked;
    for (const auto& entry : fs::recursive_directory_iterator(KORVEN_SOURCE_FOLDER)) {
        if (!entry.is_regular_file() || entry.path().filename() == "CMakeLists.txt") continue;
        const std::string source = base::leggiFile(entry.path().string());
        for (std::sregex_iterator at(source.begin(), source.end(), direct), end; at != end; ++at) {
            const std::string text = (*at)[1];
            if (speaks(text)) continue;  // looked at above
            looked.insert(text);
            EXPECT_TRUE(known.contains(base::chiaveTesto(text)))
                << entry.path() << " has \"" << text << '"';
        }
    }
    EXPECT_TRUE(looked.contains("&No")) << "the sources were not found";
}

TEST(TextKeys, AreExemptAsTheListOfThemIsWritten) {
    const auto read = readNoTexts("# head\n\na/b.cpp: names\n\nc.cpp\n    one: two\n    # three\n");
    EXPECT_EQ(read.silent, (std::map<std::string, std::string>{{"a/b.cpp", "names"}}));
    EXPECT_EQ(read.some, (std::map<std::string, Texts>{{"c.cpp", {"one: two", "# three"}}}));
    EXPECT_THROW(readNoTexts("a.cpp: names\n    one\n"), std::runtime_error);
    EXPECT_THROW(readNoTexts("    one\n"), std::runtime_error);
    EXPECT_THROW(readNoTexts("a.cpp\na.cpp: names\n"), std::runtime_error);
}

TEST(TextKeys, ExemptNothingThatIsNotThere) {
    const auto spoken = spokenLiterals();
    for (const auto& [file, reason] : noTexts().silent)
        EXPECT_TRUE(spoken.contains(file)) << file << ": " << reason;
    for (const auto& [file, texts] : noTexts().some) {
        ASSERT_TRUE(spoken.contains(file)) << file;
        for (const auto& text : texts)
            EXPECT_TRUE(listed(spoken.at(file), text)) << file << ": " << text;
    }
}

}  // namespace
}  // namespace korven
