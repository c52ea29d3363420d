#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>

#include "architecture/variable_reader.hpp"

// What lives as long as the process is in one list, in docs/architecture.md, and the computation
// knows none of it.

namespace korven::architecture {
namespace {

namespace fs = std::filesystem;

std::string contentOf(const fs::path& file) {
    std::ostringstream text;
    text << std::ifstream(file).rdbuf();
    return text.str();
}

// The names of variables by the file that defines them, without its extension: a header declares
// what its source defines.
using Variables = std::map<std::string, std::set<std::string>>;

bool isSource(const fs::path& file) {
    return file.extension() == ".cpp" || file.extension() == ".hpp";
}

std::string withoutExtension(const fs::path& file) {
    return (file.parent_path() / file.stem()).string();
}

Variables variablesOfSources(bool constantsToo) {
    Variables found;
    const fs::path root = KORVEN_SOURCE;
    for (const auto& entry : fs::recursive_directory_iterator(root)) {
        if (!isSource(entry.path())) continue;
        for (const auto& variable : processVariables(contentOf(entry.path())))
            if (variable.changes || constantsToo)
                found[withoutExtension(fs::relative(entry.path(), root))].insert(variable.name);
    }
    return found;
}

// The words in backticks.
std::set<std::string> quotedIn(const std::string& text) {
    static const std::regex quoted("`([^`]+)`");
    std::set<std::string> words;
    for (std::sregex_iterator i(text.begin(), text.end(), quoted), end; i != end; ++i)
        words.insert((*i)[1]);
    return words;
}

// The rows "| `variable`, `variable` | `file` | what it is |" of the section "State".
Variables listedVariables() {
    Variables listed;
    std::ifstream file(std::string(KORVEN_DOCS) + "/architecture.md");
    bool inside = false;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("## ")) inside = line == "## State";
        const auto first = line.find('|'), second = line.find('|', first + 1);
        const auto third = second == std::string::npos ? second : line.find('|', second + 1);
        if (!inside || first != 0 || third == std::string::npos) continue;
        for (const auto& owner : quotedIn(line.substr(second, third - second)))
            listed[withoutExtension(owner)].merge(quotedIn(line.substr(0, second)));
    }
    return listed;
}

TEST(ProcessState, NoVariableLivesAsLongAsTheProcessUnlessItIsListed) {
    const Variables listed = listedVariables();
    EXPECT_GT(listed.size(), 5u);
    for (const auto& [file, names] : variablesOfSources(false))
        for (const auto& name : names) {
            const auto row = listed.find(file);
            EXPECT_TRUE(row != listed.end() && row->second.contains(name))
                << name << " of " << file
                << ": make it a value, or a row under \"State\" in docs/architecture.md";
        }
}

TEST(ProcessState, NothingIsListedThatIsGone) {
    Variables known = variablesOfSources(true);
    for (const auto& [file, names] : listedVariables())
        for (const auto& name : names) EXPECT_TRUE(known[file].contains(name)) << name << file;
}

// The header and the source of each file that a source includes, and of those that they include.
void addIncluded(const std::string& name, std::set<std::string>& files) {
    const fs::path root = KORVEN_SOURCE;
    static const std::regex include("#include \"([^\"]+)\\.hpp\"");
    for (const char* extension : {".hpp", ".cpp"}) {
        if (!fs::exists(root / (name + extension)) || !files.insert(name + extension).second)
            continue;
        const std::string text = contentOf(root / (name + extension));
        for (std::sregex_iterator i(text.begin(), text.end(), include), end; i != end; ++i)
            addIncluded((*i)[1], files);
    }
}

TEST(ProcessState, IsUnknownToTheComputationOfTheStages) {
    std::set<std::string> files;
    addIncluded("analysis/staged_run", files);
    EXPECT_TRUE(files.contains("analysis/solver/full_pivot_elimination.cpp"));
    EXPECT_TRUE(files.contains("analysis/vertical_stress.cpp"));
    const Variables all = listedVariables();
    for (const auto& file : files) {
        const auto tokens = tokensOf(contentOf(fs::path(KORVEN_SOURCE) / file));
        for (const auto& [owner, names] : all)
            for (const auto& name : names)
                EXPECT_TRUE(owner == withoutExtension(file) ||
                            std::find(tokens.begin(), tokens.end(), name) == tokens.end())
                    << file << " names " << name;
    }
}

}  // namespace
}  // namespace korven::architecture
