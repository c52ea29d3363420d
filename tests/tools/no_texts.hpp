#pragma once

#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "base/files.hpp"

#ifndef KORVEN_TESTS
#define KORVEN_TESTS "tests"  // the build names the folder; a header alone has none
#endif

namespace korven::test {

using Texts = std::vector<std::string>;

/// The literals of the sources that are no texts of the program, by the file below src/ that has
/// them.
struct NoTexts {
    std::map<std::string, std::string> silent;  ///< why none of a file's literals is a text
    std::map<std::string, Texts> some;          ///< of other files, those that are none
};

/// Reads what is written as the head of tests/tools/no_texts.txt says. A file that is named twice
/// and a literal without a file throw std::runtime_error, with the line.
inline NoTexts readNoTexts(const std::string& written) {
    constexpr std::string_view inset = "    ", stop = ": ";
    NoTexts read;
    Texts* last = nullptr;
    std::istringstream lines(written);
    for (std::string line; std::getline(lines, line);) {
        if (line.empty() || line.starts_with('#')) continue;
        if (line.starts_with(inset)) {
            if (last == nullptr) throw std::runtime_error("no file has the literal" + line);
            last->push_back(line.substr(inset.size()));
            continue;
        }
        const std::size_t colon = line.find(stop);
        const std::string file = line.substr(0, colon);
        if (read.silent.contains(file) || read.some.contains(file))
            throw std::runtime_error(file + " is named twice");
        last = colon == std::string::npos ? &read.some[file] : nullptr;
        if (last == nullptr) read.silent[file] = line.substr(colon + stop.size());
    }
    return read;
}

inline const NoTexts& noTexts() {
    static const NoTexts read = readNoTexts(base::leggiFile(KORVEN_TESTS "/tools/no_texts.txt"));
    return read;
}

}  // namespace korven::test
