#include "outdoc/earlier_document.hpp"

#include <cstdint>
#include <filesystem>
#include <iomanip>
#include <sstream>
#include <system_error>

#include "base/files.hpp"
#include "outdoc/zip_archive.hpp"

namespace korven::outdoc {

namespace {

constexpr std::string_view markStart = "outdoc-";
constexpr std::size_t digits = 8;

std::string hexadecimal(std::uint32_t number) {
    std::ostringstream text;
    text << std::hex << std::setfill('0') << std::setw(digits) << number;
    return text.str();
}

// Of the names that may be taken already the first that is free, or has these bytes already.
std::string nameOfCopy(const std::string& path, const std::string& bytes, bool& there) {
    std::string name = path + ".bak";
    for (int n = 2; base::esisteNome(name); ++n) {
        there = base::esisteFile(name) && std::filesystem::is_regular_file(name) &&
                base::leggiFile(name) == bytes;
        if (there) break;
        name = path + ".bak" + std::to_string(n);
    }
    return name;
}

}  // namespace

std::string ownMark(std::string_view parts) {
    return std::string(markStart) + hexadecimal(checkSum(parts));
}

bool isOwnWork(std::string_view bytes) {
    const auto marked = storedFile(bytes, markedPart);
    if (!marked) return false;
    const std::string mark = ownMark(bytes.substr(0, marked->head));
    return marked->content.find(mark) != std::string::npos;
}

std::string keepEarlierDocument(const std::string& path, const base::Disco& disk) {
    if (!base::esisteFile(path)) return {};
    const std::string bytes = base::leggiFile(path);
    if (isOwnWork(bytes)) return {};
    bool there = false;
    std::string name = nameOfCopy(path, bytes, there);
    if (there) return {};
    base::scriviFileNuovo(name, bytes, disk);
    std::error_code error;  // the copy is no less private than the document, where that can be had
    std::filesystem::permissions(name, std::filesystem::status(path, error).permissions(), error);
    return name;
}

}  // namespace korven::outdoc
