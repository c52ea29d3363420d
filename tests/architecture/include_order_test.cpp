#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <string>
#include <vector>

// Who may see whom: every folder of src/ includes itself and the folders named here, and no other.

namespace korven {
namespace {

namespace fs = std::filesystem;

const std::map<std::string, std::set<std::string>> lower = {
    {"base", {}},
    {"project", {"base"}},
    {"plot", {"base", "project"}},
    {"structure", {"base", "project", "plot"}},
    {"analysis", {"base", "project", "plot", "structure"}},
    {"report", {"base", "project", "plot", "structure", "analysis"}},
    {"commands", {"base", "project", "plot", "structure", "analysis", "report"}},
    {"device", {"base", "project", "plot", "structure", "analysis", "report", "commands"}},
    {"shell", {"base", "project", "plot", "structure", "analysis", "report", "commands", "device"}},
    {"desktop",
     {"base", "project", "plot", "structure", "analysis", "report", "commands", "device", "shell"}},
    {"batch", {"base", "project", "plot", "structure", "analysis", "report", "commands", "device"}},
    {"outdoc", {"base", "report"}},
};

// Libraries from outside, by the beginning of what is included, and the folders that may use them.
const std::vector<std::pair<std::string, std::set<std::string>>> outside = {
    {"Q", {"device", "shell", "desktop"}},
    {"CLI/", {"batch"}},
    {"nlohmann/", {"batch"}},
    {"png.h", {"device"}},
};

// The headers of the operating system that stand beside the standard library: files, terminals and
// signals, processes.
const std::map<std::string, std::set<std::string>> operatingSystem = {
    {"poll.h", {"batch"}},    {"unistd.h", {"base", "batch"}}, {"fcntl.h", {"base"}},
    {"sys/stat.h", {"base"}}, {"signal.h", {"batch"}},         {"spawn.h", {"base"}},
    {"sys/wait.h", {"base"}}, {"sys/types.h", {"base"}},       {"sys/file.h", {"base"}},
};

struct Include {
    std::string file, folder, name;
    bool angle;
};

// The include on a line of code; an empty name if there is none.
Include includeOf(const std::string& line) {
    const auto hash = line.find_first_not_of(" \t");
    if (hash == std::string::npos || line[hash] != '#') return {};
    const auto word = line.find_first_not_of(" \t", hash + 1);
    if (word == std::string::npos || line.compare(word, 7, "include") != 0) return {};
    const auto open = line.find_first_of("<\"", word);
    if (open == std::string::npos) return {};
    const bool angle = line[open] == '<';
    const auto close = line.find(angle ? '>' : '"', open + 1);
    return {{}, {}, line.substr(open + 1, close - open - 1), angle};
}

bool isSource(const fs::path& file) {
    return file.extension() == ".cpp" || file.extension() == ".hpp";
}

std::vector<Include> allIncludes() {
    std::vector<Include> found;
    const fs::path root = KORVEN_SOURCE;
    for (const auto& entry : fs::recursive_directory_iterator(root)) {
        if (!isSource(entry.path())) continue;
        const fs::path name = fs::relative(entry.path(), root);
        std::ifstream file(entry.path());
        for (std::string line; std::getline(file, line);) {
            Include include = includeOf(line);
            if (include.name.empty()) continue;
            include.file = name.string();
            include.folder = name.begin()->string();
            found.push_back(include);
        }
    }
    return found;
}

std::string firstFolder(const std::string& name) { return name.substr(0, name.find('/')); }

// A header of the standard library has neither a folder nor an extension.
bool isStandard(const std::string& name) { return name.find_first_of("/.") == std::string::npos; }

bool allowedOutside(const Include& include) {
    for (const auto& [start, folders] : outside)
        if (include.name.starts_with(start)) return folders.contains(include.folder);
    const auto known = operatingSystem.find(include.name);
    if (known != operatingSystem.end()) return known->second.contains(include.folder);
    return isStandard(include.name);
}

bool allowedInside(const Include& include) {
    const std::string target = firstFolder(include.name);
    const auto row = lower.find(include.folder);
    return row != lower.end() && (target == include.folder || row->second.contains(target));
}

TEST(IncludeOrder, EveryFolderStandsInTheTable) {
    for (const auto& entry : fs::directory_iterator(KORVEN_SOURCE)) {
        if (!entry.is_directory()) continue;
        EXPECT_TRUE(lower.contains(entry.path().filename().string())) << entry.path();
    }
}

TEST(IncludeOrder, NoFolderSeesOneAboveIt) {
    int read = 0;
    for (const auto& include : allIncludes()) {
        if (include.angle) continue;
        EXPECT_TRUE(allowedInside(include)) << include.file << " includes " << include.name;
        ++read;
    }
    EXPECT_GT(read, 100);  // that anything was read at all
}

TEST(IncludeOrder, LibrariesStayInTheFoldersThatMayUseThem) {
    int read = 0;
    for (const auto& include : allIncludes()) {
        if (!include.angle) continue;
        EXPECT_TRUE(allowedOutside(include))
            << include.file << " includes <" << include.name << '>';
        ++read;
    }
    EXPECT_GT(read, 100);
}

TEST(IncludeOrder, TheTableItselfHasNoCircle) {
    for (const auto& [folder, below] : lower)
        for (const auto& other : below) {
            ASSERT_TRUE(lower.contains(other)) << other;
            EXPECT_FALSE(lower.at(other).contains(folder)) << folder << " and " << other;
        }
}

TEST(IncludeOrder, ReadsAnIncludeInAnySpacingAndNothingElse) {
    EXPECT_EQ(includeOf("#include <vector>").name, "vector");
    EXPECT_TRUE(includeOf("#include <vector>").angle);
    EXPECT_EQ(includeOf("  #  include \"base/table.hpp\"").name, "base/table.hpp");
    EXPECT_TRUE(includeOf("// #include <vector>").name.empty());
    EXPECT_TRUE(includeOf("#pragma once").name.empty());
}

TEST(IncludeOrder, RefusesAnArrowThatRunsTheWrongWay) {
    EXPECT_FALSE(allowedInside({"project/x.hpp", "project", "analysis/y.hpp", false}));
    EXPECT_FALSE(allowedInside({"commands/x.hpp", "commands", "batch/y.hpp", false}));
    EXPECT_FALSE(allowedInside({"new/x.hpp", "new", "base/y.hpp", false}));
    EXPECT_FALSE(allowedOutside({"report/x.hpp", "report", "QString", true}));
    EXPECT_FALSE(allowedOutside({"commands/x.cpp", "commands", "nlohmann/json.hpp", true}));
    EXPECT_FALSE(allowedOutside({"analysis/x.cpp", "analysis", "unistd.h", true}));
    EXPECT_TRUE(allowedOutside({"shell/x.cpp", "shell", "QString", true}));
}

}  // namespace
}  // namespace korven
