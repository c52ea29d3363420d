#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

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

// What the text of a source includes, without extensions.
std::vector<std::string> includedIn(const std::string& text) {
    static const std::regex include("#include \"([^\"]+)\\.hpp\"");
    std::vector<std::string> names;
    for (std::sregex_iterator i(text.begin(), text.end(), include), end; i != end; ++i)
        names.push_back((*i)[1]);
    return names;
}

// Adds a file with what it includes. Where sources count too, a header brings the source of its
// name.
void addIncluded(const std::string& name, bool sourcesToo, std::set<std::string>& files) {
    const fs::path root = KORVEN_SOURCE;
    for (const std::string extension : {".hpp", ".cpp"}) {
        if (extension == ".cpp" && !sourcesToo) continue;
        if (!fs::exists(root / (name + extension)) || !files.insert(name + extension).second)
            continue;
        for (const auto& other : includedIn(contentOf(root / (name + extension))))
            addIncluded(other, sourcesToo, files);
    }
}

// The headers that a file sees.
std::set<std::string> seenFrom(const std::string& file) {
    std::set<std::string> headers;
    for (const auto& name : includedIn(contentOf(fs::path(KORVEN_SOURCE) / file)))
        addIncluded(name, false, headers);
    return headers;
}

// These names, and the functions of their owner through which others would reach them.
std::set<std::string> withFunctions(const std::string& owner, std::set<std::string> names) {
    const fs::path file = fs::path(KORVEN_SOURCE) / owner;
    const auto tokens =
        tokensOf(contentOf(file.string() + ".hpp") + contentOf(file.string() + ".cpp"));
    for (std::size_t before = 0; before < names.size();) {
        before = names.size();
        names.merge(functionsNaming(tokens, names));
    }
    return names;
}

bool namesOneOf(const std::string& file, const std::set<std::string>& names) {
    const auto tokens = tokensOf(contentOf(fs::path(KORVEN_SOURCE) / file));
    return std::any_of(tokens.begin(), tokens.end(),
                       [&](const std::string& token) { return names.contains(token); });
}

// The stages, and the sections in numbers: all of structure but the offer of a stiffness, which
// speaks to the user in the language of the program.
std::set<std::string> computation() {
    std::set<std::string> files;
    addIncluded("analysis/staged_run", true, files);
    const fs::path root = KORVEN_SOURCE;
    for (const auto& entry : fs::directory_iterator(root / "structure"))
        if (entry.path().stem() != "stiffness_update")
            addIncluded(withoutExtension(fs::relative(entry.path(), root)), true, files);
    return files;
}

TEST(ProcessState, IsUnknownToTheComputation) {
    const std::set<std::string> files = computation();
    for (const char* file :
         {"analysis/solver/full_pivot_elimination.cpp", "analysis/vertical_stress.cpp",
          "project/project_data.cpp", "structure/shear_check.cpp"})
        EXPECT_TRUE(files.contains(file)) << file;
    Variables reaching = listedVariables();
    for (auto& [owner, names] : reaching) names = withFunctions(owner, names);
    const fs::path root = KORVEN_SOURCE;
    for (const auto& file : files) {
        const auto seen = seenFrom(file);
        for (const auto& [owner, names] : reaching) {
            const std::string header = owner + ".hpp";
            if (withoutExtension(file) == owner) {  // declared there for others, and no more
                EXPECT_NE(contentOf(root / header).find("extern "), std::string::npos)
                    << file << " keeps a state of its own";
            } else if (seen.contains(header)) {
                EXPECT_FALSE(namesOneOf(file, names)) << file << " uses the state of " << owner;
            }
        }
    }
}

}  // namespace
}  // namespace korven::architecture
