#include <gtest/gtest.h>

#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
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

TEST(Documents, ShowEveryRoom) {
    const std::string document = contentOf(fs::path(KORVEN_DOCS) / "architecture.md");
    const std::string rooms = contentOf(KORVEN_ROOMS);
    for (const auto& room : found(rooms, std::regex("(?:^|\\n)([\\w/]+):"))) {
        const std::string last = room.substr(room.rfind('/') + 1);
        EXPECT_TRUE(std::regex_search(document, std::regex("\\b" + last + "\\b"))) << room;
    }
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
