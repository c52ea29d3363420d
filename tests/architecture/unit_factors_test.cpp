#include <gtest/gtest.h>

#include <cctype>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "architecture/variable_reader.hpp"

// The factor between the unit that a number is stored in and the one that is shown is written in
// project/units.hpp and nowhere else. All such factors are powers of ten, so every power of ten
// that something is multiplied or divided by, as a number or as a constant, is looked at: each
// other one is named here with what it is.

namespace korven::architecture {
namespace {

namespace fs = std::filesystem;
using Numbers = std::set<std::string>;
using Tokens = std::vector<std::string>;

struct Exempt {
    Numbers numbers;
    std::string reason;
};

const std::map<std::string, Exempt> noUnits = {
    {"analysis/trial_run.cpp", {{"1000"}, "a bound above all factors"}},
    {"batch/run/interruption.cpp", {{"1000"}, "milliseconds of a clock"}},
    {"batch/run/series_size.cpp", {{"1e9"}, "bytes of a gigabyte"}},
    {"project/program_numbers.hpp", {{"1e6", "1e7"}, "rounds to six and to seven decimals"}},
    {"drawings/annex/paper.hpp", {{"10"}, "the size of a font"}},
    {"drawings/diagram_frame.cpp", {{"1000"}, "rounds to three decimals"}},
    {"drawings/diagram_scale.cpp", {{"10", "100", "10000"}, "steps of an axis"}},
    {"drawings/diaphragm_sketch.cpp", {{"100"}, "the thinnest bar that is drawn"}},
    {"drawings/pile_sketches.cpp", {{"100"}, "the thinnest bar that is drawn"}},
    {"drawings/dimension_lines.cpp", {{"0.1"}, "a distance on the sheet"}},
    {"drawings/dimension_placing.cpp", {{"0.1"}, "a step on the sheet"}},
    {"drawings/log/layers.cpp", {{"0.1"}, "a step on the sheet"}},
    {"drawings/log/graphic_code.cpp", {{"100", "1000"}, "digits of a code"}},
    {"drawings/hatch_code.cpp", {{"100", "1000"}, "digits of a code"}},
    {"drawings/hatch_samples.cpp", {{"100"}, "digits of a code"}},
    {"drawings/section_drawing.hpp", {{"100"}, "the scale of the drawing"}},
    {"report/annex/stage_tables.cpp", {{"1e-9"}, "what rounding leaves of a balance"}},
    {"shell/annex/document_view.cpp", {{"100"}, "percent of the size on paper"}},
    {"shell/report/form1.cpp", {{"10"}, "a share of the screen"}},
    {"shell/viewer/grafica.cpp", {{"10"}, "a share of the screen"}},
    {"structure/material_laws.cpp", {{"1000"}, "a strain in thousandths, as the law has it"}},
    {"structure/interaction_domain.cpp", {{"0.01"}, "a share of the largest resistance"}},
    {"dossier/twin_numbers.cpp", {{"1e-3"}, "a share of a number, below which digits explain it"}},
    {"studies/summary/study_count.cpp", {{"0.01"}, "a share of the variants"}},
    {"studies/both_ways.cpp", {{"1e-6"}, "a share of the largest displacement"}},
    {"safety/mesh_error.cpp", {{"1e-9"}, "what rounding leaves between two meshes"}},
    {"equilibrium/stage_setup.cpp", {{"1e8"}, "how much stiffer than a segment a restraint is"}},
    {"equilibrium/newton.cpp", {{"100"}, "a stronger push on a singular tangent"}},
    {"safety/shortest_wall.cpp", {{"100"}, "steps of a hundredth of the length"}},
};

std::string contentOf(const fs::path& file) {
    std::ostringstream text;
    text << std::ifstream(file).rdbuf();
    return text.str();
}

bool startsNumber(const std::string& token) {
    return !token.empty() && token[0] >= '0' && token[0] <= '9';
}

bool isPowerOfTen(const std::string& token) {
    if (!startsNumber(token)) return false;
    char* end = nullptr;
    const double number = std::strtod(token.c_str(), &end);
    if (*end != '\0' || !(number > 0) || number == 1) return false;
    const auto power = "1e" + std::to_string(std::lround(std::log10(number)));
    return std::strtod(power.c_str(), nullptr) == number;
}

bool isName(const std::string& token) {
    return std::isalpha(static_cast<unsigned char>(token[0])) != 0 || token[0] == '_';
}

// The tokens of a source, each number whole: "0.1", "1e-3".
Tokens tokensWithNumbers(const std::string& source) {
    Tokens joined;
    for (const auto& token : tokensOf(source)) {
        const bool number = !joined.empty() && startsNumber(joined.back());
        const char last = number ? joined.back().back() : ' ';
        if (number && (token == "." || last == '.' || (last == 'e' && token == "-") || last == '-'))
            joined.back() += token;
        else
            joined.push_back(token);
    }
    return joined;
}

bool multiplies(const std::string& token) { return token == "*" || token == "/"; }

// The token at `i` is multiplied or divided, or something is by it.
bool isFactor(const Tokens& all, std::size_t i) {
    const auto at = [&](std::size_t place) { return place < all.size() ? all[place] : ""; };
    return multiplies(at(i + 1)) || (i > 0 && multiplies(all[i - 1])) ||
           (i > 1 && all[i - 1] == "=" && multiplies(all[i - 2]));
}

// Rooms that know the project, with it: elsewhere is nothing that is stored.
std::set<std::string> roomsOfTheProject() {
    std::set<std::string> rooms{"project"};
    std::ifstream file(KORVEN_ROOMS);
    for (std::string line; std::getline(file, line);) {
        std::istringstream words(line);
        std::string room, known;
        std::getline(words, room, ':');
        while (words >> known)
            if (known == "project") rooms.insert(room);
    }
    return rooms;
}

std::map<std::string, Tokens> sourcesOfTheProject() {
    const auto rooms = roomsOfTheProject();
    std::map<std::string, Tokens> sources;
    const fs::path root = KORVEN_SOURCE;
    for (const auto& entry : fs::recursive_directory_iterator(root)) {
        const auto extension = entry.path().extension();
        const auto name = fs::relative(entry.path(), root);
        if ((extension != ".cpp" && extension != ".hpp") || name == "project/units.hpp" ||
            !rooms.contains(name.parent_path().generic_string()))
            continue;
        sources[name.generic_string()] = tokensWithNumbers(contentOf(entry.path()));
    }
    return sources;
}

// The constants of a source that are a power of ten, with their number.
std::map<std::string, std::string> constantsOf(const Tokens& all) {
    std::map<std::string, std::string> constants;
    for (std::size_t i = 1; i + 2 < all.size(); ++i)
        if (isName(all[i - 1]) && (all[i] == "=" || all[i] == "{") && isPowerOfTen(all[i + 1]) &&
            (all[i + 2] == ";" || all[i + 2] == "," || all[i + 2] == "}"))
            constants[all[i - 1]] = all[i + 1];
    return constants;
}

// By file the powers of ten that are factors there, as they are written.
std::map<std::string, Numbers> factors(const std::map<std::string, Tokens>& sources) {
    std::map<std::string, Numbers> found;
    for (const auto& [file, tokens] : sources) {
        const auto constants = constantsOf(tokens);
        for (std::size_t i = 0; i < tokens.size(); ++i) {
            if (!isFactor(tokens, i)) continue;
            const auto constant = constants.find(tokens[i]);
            if (isPowerOfTen(tokens[i]))
                found[file].insert(tokens[i]);
            else if (constant != constants.end())
                found[file].insert(constant->second);
        }
    }
    return found;
}

TEST(UnitFactors, AreWrittenInTheTableOfUnitsAlone) {
    const auto sources = sourcesOfTheProject();
    EXPECT_GT(sources.size(), 100u);
    const auto found = factors(sources);
    for (const auto& [file, numbers] : found)
        for (const auto& number : numbers) {
            const auto exempt = noUnits.find(file);
            EXPECT_TRUE(exempt != noUnits.end() && exempt->second.numbers.contains(number))
                << "src/" << file << " has a factor " << number
                << ": take it from project/units.hpp, or name here what it is";
        }
    for (const auto& [file, exempt] : noUnits)
        EXPECT_EQ(found.contains(file) ? found.at(file) : Numbers{}, exempt.numbers)
            << file << ": " << exempt.reason;
}

Numbers factorsOf(const std::string& source) {
    const auto found = factors({{"file", tokensWithNumbers(source)}});
    return found.empty() ? Numbers{} : found.begin()->second;
}

TEST(UnitFactors, AreSeenAsNumbersAndAsConstantsHoweverTheyAreWritten) {
    EXPECT_EQ(factorsOf("x = 10 * y;"), Numbers{"10"});
    EXPECT_EQ(factorsOf("x = y / 1e7;"), Numbers{"1e7"});
    EXPECT_EQ(factorsOf("x = y * 100.0;"), Numbers{"100.0"});
    EXPECT_EQ(factorsOf("x *= 0.1;"), Numbers{"0.1"});
    EXPECT_EQ(factorsOf("x = 1e-3 * y;"), Numbers{"1e-3"});
    EXPECT_EQ(factorsOf("constexpr double newtons = 10000;\nx = newtons * y;"), Numbers{"10000"});
    EXPECT_EQ(factorsOf("constexpr double newtons{10000};\nx = y / newtons;"), Numbers{"10000"});
    EXPECT_EQ(factorsOf("constexpr double most = 1000;\nif (x > most) x = 2 * 20;"), Numbers{});
    EXPECT_EQ(factorsOf("constexpr Axis axes[] = {{5, 1}, {10, 2}};\nf(x, *axes);"), Numbers{});
    EXPECT_EQ(factorsOf("x = f(10) * y;  // 10 * z"), Numbers{});
}

}  // namespace
}  // namespace korven::architecture
