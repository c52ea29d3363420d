#include <gtest/gtest.h>

#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <sstream>
#include <string>

// What the documents for developers say of the source, compared with it.

namespace korven {
namespace {

namespace fs = std::filesystem;

std::string contentOf(const fs::path& path) {
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::set<std::string> found(const std::string& text, const std::regex& pattern,
                            const std::string& between = {}) {
    std::set<std::string> all;
    for (std::sregex_iterator at(text.begin(), text.end(), pattern), end; at != end; ++at)
        all.insert(at->size() == 3 ? (*at)[1].str() + between + (*at)[2].str() : (*at)[1].str());
    return all;
}

std::set<std::string> allTests() {
    const std::regex test("\\bTEST(?:_F|_P)?\\(\\s*(\\w+),\\s*(\\w+)\\)");
    std::set<std::string> all;
    for (const auto& entry : fs::recursive_directory_iterator(KORVEN_TESTS)) {
        if (entry.path().extension() != ".cpp") continue;
        all.merge(found(contentOf(entry.path()), test, "."));
    }
    return all;
}

TEST(Documents, NameATestForEveryTraitThatIsRequired) {
    const auto tests = allTests();
    const auto named =
        found(contentOf(fs::path(KORVEN_DOCS) / "traits.md"), std::regex("`(\\w+)\\.(\\w+)`"), ".");
    EXPECT_GT(named.size(), 100u);
    for (const auto& name : named) EXPECT_TRUE(tests.contains(name)) << name;
}

using Names = std::set<std::string>;

// The part of a text after `start`, up to `end`.
std::string partOf(const std::string& text, const std::string& start, const std::string& end) {
    const auto from = text.find(start);
    if (from == std::string::npos) return {};
    return text.substr(from + start.size(),
                       text.find(end, from + start.size()) - from - start.size());
}

Names words(const std::string& text) { return found(text, std::regex("([\\w]+)")); }

// The rooms of a line of the picture: "flows    commands: start    what a command does". Columns
// are parted by two blanks or more; the first is a heading, one of several words without a colon a
// remark, and after a colon are the rooms inside.
Names roomsDrawnIn(std::string line) {
    Names rooms;
    const std::regex gap(" {2,}");
    line.erase(line.find_last_not_of(' ') + 1);
    std::sregex_token_iterator column(line.begin(), line.end(), gap, -1), end;
    for (++column; column != end; ++column) {
        const std::string cell = *column;
        const auto colon = cell.find(':');
        const std::string outer = cell.substr(0, colon);
        if (outer.find(' ') != std::string::npos) continue;
        rooms.insert(outer);
        if (colon == std::string::npos) continue;
        for (const auto& inner : words(cell.substr(colon))) rooms.insert(outer + '/' + inner);
    }
    return rooms;
}

Names roomsOfThePicture(const std::string& document) {
    std::istringstream lines(partOf(document, "```\n", "```"));
    Names rooms;
    for (std::string line; std::getline(lines, line);) rooms.merge(roomsDrawnIn(line));
    return rooms;
}

std::string tableOfRooms(const std::string& document) {
    return partOf(document, "| --- | --- | --- |\n", "\n\n");
}

// "| `base` | ...; `folders`: what is in it | ... |": a room, and those inside it before a colon.
Names roomsOfTheTable(const std::string& document) {
    std::istringstream lines(tableOfRooms(document));
    Names rooms;
    for (std::string line; std::getline(lines, line);) {
        const std::string outer = partOf(line, "| `", "`");
        rooms.insert(outer);
        for (const auto& inner : found(line, std::regex("`(\\w+)`:")))
            rooms.insert(outer + '/' + inner);
    }
    return rooms;
}

TEST(Documents, ShowEveryRoomAndNoOther) {
    const std::string document = contentOf(fs::path(KORVEN_DOCS) / "architecture.md");
    const Names rooms = found(contentOf(KORVEN_ROOMS), std::regex("(?:^|\\n)([\\w/]+):"));
    EXPECT_GT(rooms.size(), 30u);
    EXPECT_EQ(roomsOfThePicture(document), rooms);
    EXPECT_EQ(roomsOfTheTable(document), rooms);
}

// A line for each room: the room, a colon and those that it knows, without itself and `base`.
Names arrowsOfTheTable(const std::string& document) {
    std::istringstream lines(tableOfRooms(document));
    Names arrows;
    for (std::string line; std::getline(lines, line);) {
        const std::string outer = partOf(line, "| `", "`");
        const std::string known = line.substr(line.rfind('|', line.size() - 2));
        for (const auto& room : words(known)) arrows.insert(outer + ": " + room);
    }
    return arrows;
}

Names arrowsOfTheHouse(const std::string& list) {
    std::istringstream lines(list);
    Names arrows;
    for (std::string line; std::getline(lines, line);) {
        const auto outer = [](const std::string& room) { return room.substr(0, room.find('/')); };
        const std::string room = outer(line.substr(0, line.find(':')));
        std::istringstream known(line.substr(line.find(':') + 1));
        for (std::string other; known >> other;)
            if (outer(other) != room && outer(other) != "base")
                arrows.insert(room + ": " + outer(other));
    }
    return arrows;
}

TEST(Documents, SayWhatEveryRoomKnows) {
    const std::string document = contentOf(fs::path(KORVEN_DOCS) / "architecture.md");
    const Names arrows = arrowsOfTheHouse(contentOf(KORVEN_ROOMS));
    EXPECT_GT(arrows.size(), 40u);
    EXPECT_EQ(arrowsOfTheTable(document), arrows);
}

TEST(Documents, AreReadWithRoomsInsideRoomsAndWithoutRemarks) {
    EXPECT_EQ(roomsDrawnIn("programs  desktop   batch: options run   outdoc   choose the ports"),
              (Names{"desktop", "batch", "batch/options", "batch/run", "outdoc"}));
    EXPECT_EQ(roomsOfTheTable("| --- | --- | --- |\n| `a` | x (`y`); `b`: z | – |\n\nend"),
              (Names{"a", "a/b"}));
    EXPECT_EQ(arrowsOfTheTable("| --- | --- | --- |\n| `a` | x | b, c |\n| `b` | y | – |\n\n"),
              (Names{"a: b", "a: c"}));
    EXPECT_EQ(arrowsOfTheHouse("a: base b/x\na/y: a c\nb: base\n"), (Names{"a: b", "a: c"}));
}

TEST(Documents, OfTheArchitectureNameFilesThatExist) {
    const fs::path source = KORVEN_SOURCE;
    const std::string document = contentOf(fs::path(KORVEN_DOCS) / "architecture.md");
    const auto paths = found(document, std::regex("`(\\w+(?:/\\w+)+(?:\\.hpp)?)`"));
    EXPECT_GT(paths.size(), 10u);
    for (const auto& path : paths) {
        if (path.starts_with("tests/") || path.starts_with("src/")) continue;
        const bool there = fs::exists(source / path) || fs::exists(source / (path + ".hpp"));
        EXPECT_TRUE(there) << path;
    }
}

// The names of what a header declares outside of all types: types and functions.
struct Declared {
    std::set<std::string> types;
    std::string all;  // in small letters, each after a blank
};

std::string plain(std::string name) {
    std::erase(name, '_');
    for (char& c : name) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return name;
}

Declared declaredIn(const fs::path& header) {
    const std::regex type("^(?:enum class|class|struct) (\\w+)[^;]*\\{.*");
    const std::regex function("^(?:\\[\\[nodiscard\\]\\] )?\\w[\\w:<>&* ]* (\\w+)\\(.*");
    Declared declared;
    std::ifstream file(header);
    for (std::string line; std::getline(file, line);) {
        std::smatch found;
        const bool isType = std::regex_match(line, found, type);
        if (!isType && !std::regex_match(line, found, function)) continue;
        if (isType) declared.types.insert(found[1]);
        declared.all += ' ' + plain(found[1]);
    }
    return declared;
}

TEST(Documents, OfTheGlossaryPairEveryFileWithATypeThatItDeclares) {
    const fs::path source = KORVEN_SOURCE;
    const auto rows = found(contentOf(fs::path(KORVEN_DOCS) / "glossary.md"),
                            std::regex("\\| `([\\w/]+\\.hpp)` \\| `(\\w+)` \\|"), "|");
    EXPECT_GT(rows.size(), 100u);
    std::set<std::string> files;
    for (const auto& row : rows) {
        const std::string file = row.substr(0, row.find('|'));
        files.insert(file);
        ASSERT_TRUE(fs::exists(source / file)) << file;
        const auto declared = declaredIn(source / file);
        EXPECT_TRUE(declared.types.contains(row.substr(file.size() + 1))) << row;
    }
    for (const auto& entry : fs::recursive_directory_iterator(source)) {
        const std::string file = fs::relative(entry.path(), source).generic_string();
        if (!file.ends_with(".hpp") || file.starts_with("markup") || file.starts_with("outdoc"))
            continue;
        const auto declared = declaredIn(entry.path());
        const bool sameName =
            declared.all.find(plain(entry.path().stem().string())) != std::string::npos;
        EXPECT_TRUE(declared.types.empty() || sameName || files.contains(file))
            << "docs/glossary.md has no row for " << file;
    }
}

}  // namespace
}  // namespace korven
