// The hatch library as the build has laid it into the program folder.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <optional>
#include <set>

#include "base/code_page.hpp"
#include "base/files.hpp"
#include "base/language.hpp"
#include "base/text_lines.hpp"

namespace korven {
namespace {

constexpr std::size_t rows = 100;

struct Stroke {
    int x1, y1, x2, y2;
    auto operator<=>(const Stroke&) const = default;
};

std::string bytes(const std::string& name) {
    return base::leggiFile(std::string(KORVEN_PROGRAM_FOLDER "/") + name);
}

std::vector<double> numbers(const std::string& name) {
    base::LettoreRighe file(name, bytes(name));
    std::vector<double> all;
    while (!file.fine()) all.push_back(file.numero("a number"));
    return all;
}

std::vector<std::string> names(int language) {
    const std::string name = "set3" + std::string(base::siglaLingua(language)) + ".rtn";
    base::LettoreRighe file(name, bytes(name));
    std::vector<std::string> all;
    for (std::size_t i = 0; i < rows; ++i) all.push_back(file.riga("a name"));
    EXPECT_TRUE(file.fine());
    return all;
}

std::vector<int> records() {
    const std::string content = bytes("set4.rtn");
    EXPECT_EQ(content.size() % 8, 0u);
    std::vector<int> all;
    for (std::size_t i = 0; i + 1 < content.size(); i += 2) {
        const int low = static_cast<unsigned char>(content[i]);
        const int high = static_cast<unsigned char>(content[i + 1]);
        all.push_back(static_cast<std::int16_t>(low | (high << 8)));
    }
    return all;
}

// Row i of the library at index i - 1.
std::vector<std::vector<Stroke>> patterns() {
    const auto record = records();
    std::vector<std::vector<Stroke>> all;
    std::size_t at = 0;
    for (const double count : numbers("set1.rtn")) {
        auto& pattern = all.emplace_back();
        for (int k = 0; k < static_cast<int>(count); ++k, at += 4)
            pattern.push_back(
                {record.at(at), record.at(at + 1), record.at(at + 2), record.at(at + 3)});
    }
    EXPECT_EQ(at, record.size());
    return all;
}

TEST(HatchLibrary, HasAHundredRowsOfWindowsTextInEveryTextFile) {
    std::vector<std::string> files = {"set1.rtn", "set2.rtn"};
    for (int language = 1; language <= 6; ++language)
        files.push_back("set3" + std::string(base::siglaLingua(language)) + ".rtn");
    for (const auto& file : files) {
        const std::string content = bytes(file);
        std::size_t ends = 0;
        for (auto at = content.find("\r\n"); at != std::string::npos;
             at = content.find("\r\n", at + 2))
            ++ends;
        EXPECT_EQ(ends, rows) << file;
        EXPECT_EQ(std::count(content.begin(), content.end(), '\n'), 100) << file;
        EXPECT_EQ(std::count(content.begin(), content.end(), '\r'), 100) << file;
        EXPECT_TRUE(content.ends_with("\r\n")) << file;
    }
}

TEST(HatchLibrary, KeepsItsPositionsWithinSixteenBits) {
    double first = 1;
    for (const double count : numbers("set1.rtn")) {
        EXPECT_EQ(count, std::floor(count));
        EXPECT_GE(count, 0);
        first += count;
        EXPECT_LE(first, 32767);
    }
    EXPECT_EQ(bytes("set4.rtn").size(), static_cast<std::size_t>(first - 1) * 8);
}

TEST(HatchLibrary, HasManyPatternsEachWithStrokesAUnitAndANameInSixLanguages) {
    const auto counts = numbers("set1.rtn");
    const auto units = numbers("set2.rtn");
    ASSERT_EQ(counts.size(), rows);
    ASSERT_EQ(units.size(), rows);
    EXPECT_GE(std::count_if(counts.begin(), counts.end(), [](double n) { return n > 0; }), 50);
    for (int language = 1; language <= 6; ++language) {
        const auto name = names(language);
        for (std::size_t i = 0; i < rows; ++i) {
            SCOPED_TRACE(i + 1);
            EXPECT_EQ(name[i].empty(), counts[i] == 0);
            EXPECT_EQ(units[i] > 0, counts[i] > 0);
            EXPECT_EQ(base::senzaSpaziEsterni(name[i]), name[i]);
        }
    }
}

TEST(HatchLibrary, CallsNoTwoPatternsOfALanguageAlike) {
    for (int language = 1; language <= 6; ++language) {
        std::set<std::string> seen;
        for (const auto& name : names(language)) {
            if (name.empty()) continue;
            EXPECT_TRUE(seen.insert(base::minuscolo(name)).second) << language << ' ' << name;
        }
    }
}

// The column of the log is 1 cm wide: a tile fits into it at the first size step.
TEST(HatchLibrary, HasTilesAsWideAsTheColumnOfTheLog) {
    for (const double unit : numbers("set2.rtn"))
        EXPECT_DOUBLE_EQ(200 * unit, unit > 0 ? 1.0 : 0.0);
}

TEST(HatchLibrary, HasCoordinatesWithinTheTile) {
    for (const int value : records()) {
        EXPECT_GE(value, -100);
        EXPECT_LE(value, 100);
    }
}

TEST(HatchLibrary, DrawsNoStrokeTwiceInAPatternAndNoPatternTwice) {
    std::set<std::vector<Stroke>> seen;
    for (const auto& pattern : patterns()) {
        if (pattern.empty()) continue;
        std::vector<Stroke> sorted;
        for (const auto& s : pattern) sorted.push_back(std::min(s, Stroke{s.x2, s.y2, s.x1, s.y1}));
        std::sort(sorted.begin(), sorted.end());
        EXPECT_EQ(std::adjacent_find(sorted.begin(), sorted.end()), sorted.end())
            << "pattern of " << sorted.size() << " strokes";
        EXPECT_TRUE(seen.insert(sorted).second);
    }
}

struct Place {
    double x, y;
};

// An end of a stroke, and the end that follows it.
struct End {
    Place at, from;
};

std::vector<End> ends(const std::vector<Stroke>& pattern) {
    std::vector<End> all;
    for (const auto& s : pattern) {
        const Place a{static_cast<double>(s.x1), static_cast<double>(s.y1)};
        const Place b{static_cast<double>(s.x2), static_cast<double>(s.y2)};
        if (s.x1 == s.x2 && s.y1 == s.y2) continue;  // a dot has no direction to go on in
        all.push_back({a, b});
        all.push_back({b, a});
    }
    return all;
}

// How far the common end of two parts lies beside the straight line through their far ends.
double bend(const End& here, const End& beyond) {
    const double shiftX = here.at.x - beyond.at.x;
    const double shiftY = here.at.y - beyond.at.y;
    const Place far{beyond.from.x + shiftX, beyond.from.y + shiftY};
    const double dx = far.x - here.from.x;
    const double dy = far.y - here.from.y;
    return std::abs(dx * (here.at.y - here.from.y) - dy * (here.at.x - here.from.x)) /
           std::hypot(dx, dy);
}

// The least bend among the strokes that go on from `end` beyond the edge; nothing when none does.
std::optional<double> continuation(const End& end, const std::vector<End>& all) {
    std::optional<double> least;
    const double x = std::abs(end.at.x) == 100 ? -end.at.x : end.at.x;
    const double y = std::abs(end.at.y) == 100 ? -end.at.y : end.at.y;
    for (const auto& other : all)
        if (other.at.x == x && other.at.y == y)
            least = std::min(least.value_or(1e9), bend(end, other));
    return least;
}

// Ends are rounded to whole units, so a straight line may bend by one unit at most.
TEST(HatchLibrary, ContinuesEveryStrokeBeyondTheEdgeOfTheTileWithoutABend) {
    int looked = 0;
    const auto all = patterns();
    for (std::size_t i = 0; i < all.size(); ++i) {
        const auto end = ends(all[i]);
        for (const auto& e : end) {
            if (std::abs(e.at.x) != 100 && std::abs(e.at.y) != 100) continue;
            ++looked;
            const auto found = continuation(e, end);
            ASSERT_TRUE(found.has_value())
                << "pattern " << i + 1 << " ends at " << e.at.x << ' ' << e.at.y;
            EXPECT_LE(*found, 1.0)
                << "pattern " << i + 1 << " bends at " << e.at.x << ' ' << e.at.y;
        }
    }
    EXPECT_GT(looked, 200);
}

// Two neighbouring tiles would draw it.
TEST(HatchLibrary, RunsNoStrokeAlongAnEdge) {
    for (const auto& pattern : patterns())
        for (const auto& s : pattern) {
            EXPECT_FALSE(s.x1 == s.x2 && std::abs(s.x1) == 100);
            EXPECT_FALSE(s.y1 == s.y2 && std::abs(s.y1) == 100);
        }
}

// A pen move for each of the patterns' strokes would double the work of a plotter.
TEST(HatchLibrary, ChainsTheStrokesOfClosedShapes) {
    const auto all = patterns();
    for (const std::size_t gravel : {1u, 19u, 20u, 94u}) {
        const auto& pattern = all[gravel - 1];
        std::size_t moves = 0;
        for (std::size_t k = 0; k < pattern.size(); ++k)
            if (k == 0 || pattern[k].x1 != pattern[k - 1].x2 || pattern[k].y1 != pattern[k - 1].y2)
                ++moves;
        EXPECT_LT(moves, pattern.size() / 3) << "pattern " << gravel;
    }
}

}  // namespace
}  // namespace korven
