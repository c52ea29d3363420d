#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

// Who may see whom: every room of src/, those inside others too, includes itself and the rooms that
// src/CMakeLists.txt names for it, and no other. That list comes here as a file, one line a room.

namespace korven {
namespace {

namespace fs = std::filesystem;

using Rooms = std::map<std::string, std::set<std::string>>;

Rooms readRooms() {
    Rooms rooms;
    std::ifstream file(KORVEN_ROOMS);
    for (std::string line; std::getline(file, line);) {
        std::istringstream words(line);
        std::string room;
        words >> room;
        room.pop_back();  // the colon
        auto& known = rooms[room];
        for (std::string other; words >> other;) known.insert(other);
    }
    return rooms;
}

const Rooms rooms = readRooms();

// Libraries from outside, by the beginning of what is included, and the folders that may use them.
const std::vector<std::pair<std::string, std::set<std::string>>> outside = {
    {"Q", {"device", "shell", "desktop"}},
    {"CLI/", {"batch"}},
    {"nlohmann/", {"answers", "batch", "python"}},
    {"pybind11/", {"python"}},
    {"png.h", {"device"}},
    {"qpdf/", {"device"}},
    {"boost/math/", {"studies"}},
    {"Random123/", {"studies"}},
    {"minizip/", {"outdoc"}},
    {"nettle/", {"dossier"}},
    {"xlsxwriter", {"workbook"}},
    {"zlib.h", {"outdoc"}},
};

// The headers of the operating system that are used beside the standard library: files, terminals
// and signals, processes.
const std::map<std::string, std::set<std::string>> operatingSystem = {
    {"poll.h", {"batch"}},    {"unistd.h", {"base", "batch", "workbook"}},
    {"fcntl.h", {"base"}},    {"sys/stat.h", {"base"}},
    {"signal.h", {"batch"}},  {"spawn.h", {"base"}},
    {"sys/wait.h", {"base"}}, {"sys/types.h", {"base"}},
    {"sys/file.h", {"base"}}, {"sys/mman.h", {"workbook"}},
};

struct Include {
    std::string file, room, name;
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
            include.room = name.parent_path().string();
            found.push_back(include);
        }
    }
    return found;
}

std::string roomOf(const std::string& header) { return fs::path(header).parent_path().string(); }
std::string outerRoom(const std::string& room) { return room.substr(0, room.find('/')); }

// A header of the standard library has neither a folder nor an extension.
bool isStandard(const std::string& name) { return name.find_first_of("/.") == std::string::npos; }

bool allowedOutside(const Include& include) {
    for (const auto& [start, folders] : outside)
        if (include.name.starts_with(start)) return folders.contains(outerRoom(include.room));
    const auto known = operatingSystem.find(include.name);
    if (known != operatingSystem.end()) return known->second.contains(outerRoom(include.room));
    return isStandard(include.name);
}

bool allowedInside(const Include& include) {
    const std::string target = roomOf(include.name);
    const auto row = rooms.find(include.room);
    return row != rooms.end() && (target == include.room || row->second.contains(target));
}

// Whether a room knows another, or knows one that does, and so on.
bool reaches(const std::string& room, const std::string& other, std::set<std::string>& seen) {
    if (!seen.insert(room).second) return false;
    const auto& known = rooms.at(room);
    return std::any_of(known.begin(), known.end(), [&](const std::string& next) {
        return next == other || reaches(next, other, seen);
    });
}

TEST(IncludeOrder, EveryFolderIsARoomAndEveryRoomAFolder) {
    std::set<std::string> folders;
    for (const auto& entry : fs::recursive_directory_iterator(KORVEN_SOURCE))
        if (isSource(entry.path()))
            folders.insert(fs::relative(entry.path().parent_path(), KORVEN_SOURCE).string());
    std::set<std::string> named;
    for (const auto& [room, known] : rooms) named.insert(room);
    EXPECT_EQ(folders, named);
}

TEST(IncludeOrder, NoRoomSeesOneThatIsNotNamedForIt) {
    int read = 0;
    for (const auto& include : allIncludes()) {
        if (include.angle) continue;
        EXPECT_TRUE(allowedInside(include)) << include.file << " includes " << include.name;
        ++read;
    }
    EXPECT_GT(read, 100);  // that anything was read at all
}

TEST(IncludeOrder, NoArrowIsAllowedThatNobodyUses) {
    Rooms used;
    for (const auto& include : allIncludes())
        if (!include.angle) used[include.room].insert(roomOf(include.name));
    for (const auto& [room, known] : rooms)
        for (const auto& other : known)
            EXPECT_TRUE(used[room].contains(other)) << room << " never includes " << other;
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

// It costs more to compile than all else together, and what is typed is read in one place.
TEST(IncludeOrder, OneFileAloneReadsTheCommandLineByItsLibrary) {
    std::set<std::string> files;
    for (const auto& include : allIncludes())
        if (include.name.starts_with("CLI")) files.insert(include.file);
    EXPECT_EQ(files, std::set<std::string>{"batch/options/command_line.cpp"});
}

TEST(IncludeOrder, NoRoomKnowsItselfByAWayRound) {
    for (const auto& [room, known] : rooms) {
        for (const auto& other : known) ASSERT_TRUE(rooms.contains(other)) << other;
        std::set<std::string> seen;
        EXPECT_FALSE(reaches(room, room, seen)) << room;
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
    EXPECT_FALSE(
        allowedInside({"analysis/solver/x.hpp", "analysis/solver", "analysis/y.hpp", false}));
    EXPECT_TRUE(allowedInside({"analysis/x.hpp", "analysis", "analysis/solver/y.hpp", false}));
    EXPECT_TRUE(allowedOutside({"shell/viewer/x.cpp", "shell/viewer", "QString", true}));
}

}  // namespace
}  // namespace korven
