// The help lists every message of the program. Which texts are messages no syntax tells, so this
// test takes for one each text of the sources with three words or more, of two in a file that has
// messages, and each that stands in a box or an error, and knows by name those that are none
// (no_messages.txt).

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <string>

#include "base/code_page.hpp"
#include "base/files.hpp"
#include "base/text_table.hpp"
#include "review/remark_table.hpp"
#include "tools/help_messages.hpp"
#include "tools/no_texts.hpp"
#include "tools/string_literals.hpp"
#include "tools/text_source.hpp"

namespace korven {
namespace {

namespace fs = std::filesystem;

std::string shown(const std::string& source) {
    std::string text;
    for (std::size_t i = 0; i < source.size(); ++i)
        if (source[i] != '\\' || i + 1 == source.size() || source[i + 1] != '"') text += source[i];
    return std::string(base::senzaSpaziEsterni(text));
}

// The sources, by their paths below src/.
const std::map<std::string, std::string>& sources() {
    static const auto read = [] {
        std::map<std::string, std::string> all;
        const fs::path root = KORVEN_SOURCE_FOLDER;
        for (const auto& entry : fs::recursive_directory_iterator(root))
            if (const auto kind = entry.path().extension(); kind == ".cpp" || kind == ".hpp")
                all[fs::relative(entry.path(), root).generic_string()] =
                    base::leggiFile(entry.path().string());
        return all;
    }();
    return read;
}

// The texts of the program by which they are looked up.
const std::set<std::string>& keys() {
    static const auto read = [] {
        const std::string source = KORVEN_DATA_FOLDER "/texts.txt";
        std::set<std::string> all;
        for (const auto& record : tools::readTextSource(source, base::leggiFile(source)))
            all.insert(base::chiaveTesto(record.text[0]));
        return all;
    }();
    return read;
}

// The messages by the same, with the groups that have them.
const std::map<std::string, std::string>& messages() {
    static const auto read = [] {
        const std::string source = KORVEN_DATA_FOLDER "/guida/messaggi.txt";
        std::map<std::string, std::string> all;
        for (const auto& group : tools::readHelpMessages(source, base::leggiFile(source)))
            for (const auto& message : group.messages)
                all[base::chiaveTesto(message.text)] = group.name;
        return all;
    }();
    return read;
}

const test::NoTexts& noMessages() {
    static const auto read =
        test::readNoTexts(base::leggiFile(KORVEN_TESTS "/tools/no_messages.txt"));
    return read;
}

// The texts of the program among the literals of a source.
std::set<std::string> texts(std::string_view source) {
    std::set<std::string> found;
    for (const auto& literal : tools::stringLiterals(source))
        if (const auto text = shown(literal); keys().contains(base::chiaveTesto(text)))
            found.insert(text);
    return found;
}

bool isMessage(const std::string& text) { return messages().contains(base::chiaveTesto(text)); }

// Those of three words or more, of two where others are messages, but for menus and buttons.
std::set<std::string> sentences(std::string_view source) {
    auto found = texts(source);
    const int least = std::any_of(found.begin(), found.end(), isMessage) ? 2 : 3;
    std::erase_if(found, [least](const auto& text) {
        std::istringstream words(text);
        const auto count = std::distance(std::istream_iterator<std::string>(words), {});
        return count < least || text.find('&') != std::string::npos;
    });
    return found;
}

// What a box, a question or an error is made by.
bool tells(std::string_view function) {
    for (const std::string_view one :
         {"messaggio", "domanda", "rifiuta", "fallisci", "avvisa", "PrinterError"})
        if (function == one) return true;
    return function.starts_with("Errore");
}

// Those that stand between its brackets.
std::set<std::string> told(std::string_view source) {
    static const std::string letters =
        "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_";
    std::set<std::string> found;
    for (auto open = source.find('('); open != source.npos; open = source.find('(', open + 1)) {
        const auto before = source.find_last_not_of(letters, open == 0 ? 0 : open - 1);
        const auto start = before == source.npos ? 0 : before + 1;
        if (start > open || !tells(source.substr(start, open - start))) continue;
        auto close = open + 1;
        for (int depth = 1; close < source.size() && depth > 0; ++close) {
            depth += source[close] == '(' ? 1 : 0;
            depth -= source[close] == ')' ? 1 : 0;
        }
        found.merge(texts(source.substr(open, close - open)));
    }
    return found;
}

// The line of no_messages.txt that speaks of a whole file: its own, or that of a folder above it.
std::string silentLine(const std::string& file) {
    for (const auto& [line, reason] : noMessages().silent)
        if (file == line || (line.ends_with('/') && file.starts_with(line))) return line;
    return {};
}

bool namedAsNone(const std::string& file, const std::string& text) {
    const auto found = noMessages().some.find(file);
    return found != noMessages().some.end() &&
           std::find(found->second.begin(), found->second.end(), text) != found->second.end();
}

TEST(MessageKeys, HaveEverySentenceOfTheSourcesThatIsNotNamedAsNone) {
    int looked = 0;
    for (const auto& [file, source] : sources()) {
        if (!silentLine(file).empty()) continue;
        for (const auto& text : sentences(source)) {
            ++looked;
            EXPECT_TRUE(isMessage(text) || namedAsNone(file, text))
                << "src/" << file << " has \"" << text
                << "\": a message belongs in data/guida/messaggi.txt, what is none in "
                   "tests/tools/no_messages.txt";
        }
    }
    EXPECT_GT(looked, 800) << "the sources were not found";
}

TEST(MessageKeys, HaveEveryTextOfABoxAQuestionOrAnError) {
    int looked = 0;
    for (const auto& [file, source] : sources())
        for (const auto& text : told(source)) {
            if (text == "ATTENZIONE") continue;  // the title of most boxes
            ++looked;
            EXPECT_TRUE(isMessage(text) || namedAsNone(file, text)) << file << ": " << text;
        }
    EXPECT_GT(looked, 80);
}

TEST(MessageKeys, HaveEveryRemark) {
    int looked = 0;
    for (const auto rows : review::vociOsservazioni)
        for (const auto& row : rows) {
            if (row.testo.empty()) continue;  // a sentence of the safety's words
            ++looked;
            EXPECT_TRUE(isMessage(std::string(row.testo))) << row.codice;
        }
    EXPECT_GT(looked, 90);
}

TEST(MessageKeys, AreTextsThatTheSourcesSayAndNoLabels) {
    std::set<std::string> said;
    for (const auto& [file, source] : sources())
        for (const auto& text : texts(source)) said.insert(base::chiaveTesto(text));
    for (const auto& [key, group] : messages()) {
        EXPECT_TRUE(said.contains(key)) << group << ": " << key;
        EXPECT_EQ(key.find('&'), std::string::npos) << group << ": " << key;
    }
    for (const auto& [file, named] : noMessages().some)
        for (const auto& text : named) EXPECT_FALSE(isMessage(text)) << file << ": " << text;
}

TEST(MessageKeys, AreExemptOnlyWhereThereIsSomethingToExempt) {
    std::set<std::string> needed;
    for (const auto& [file, source] : sources())
        for (const auto& text : sentences(source))
            if (!isMessage(text)) needed.insert(silentLine(file));
    for (const auto& [line, reason] : noMessages().silent)
        EXPECT_TRUE(needed.contains(line)) << line << ": " << reason;
    for (const auto& [file, named] : noMessages().some) {
        ASSERT_TRUE(sources().contains(file)) << file;
        EXPECT_EQ(silentLine(file), "") << file;
        auto there = sentences(sources().at(file));
        there.merge(told(sources().at(file)));
        for (const auto& text : named) EXPECT_TRUE(there.contains(text)) << file << ": " << text;
    }
}

TEST(MessageKeys, AreFoundInWhatASourceTells) {
    const std::string source =
        "dialogo.messaggio(traduttore(\"permesso negato\") + \"x\", \"ATTENZIONE\");\n"
        "const char* label = \"strato\"; throw ErroreFile(a(b), 0, \"riga\");";
    EXPECT_EQ(told(source), (std::set<std::string>{"permesso negato", "ATTENZIONE", "riga"}));
    EXPECT_EQ(sentences("f(\"Il progetto non ha fasi.\", \"strato\", \"&Apri il campo\")"),
              std::set<std::string>{"Il progetto non ha fasi."});
    EXPECT_EQ(sentences("f(\"Fase mostrata\", \"Tiranti e puntoni\")"),
              std::set<std::string>{"Tiranti e puntoni"});
    EXPECT_EQ(sentences("f(\"Fase mostrata\", \"permesso negato\", \"fase\")"),
              (std::set<std::string>{"Fase mostrata", "permesso negato"}))
        << "a message is among them";
}

}  // namespace
}  // namespace korven
