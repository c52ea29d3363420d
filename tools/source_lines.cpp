#include "tools/source_lines.hpp"

#include <algorithm>
#include <charconv>

#include "base/code_page.hpp"
#include "base/file_error.hpp"

namespace korven::tools {

namespace {

template <typename Number>
std::optional<Number> wholeWord(std::string_view word) {
    Number value{};
    const auto end = word.data() + word.size();
    const auto [stop, fault] = std::from_chars(word.data(), end, value);
    if (fault != std::errc() || stop != end) return std::nullopt;
    return value;
}

}  // namespace

std::optional<std::string_view> SourceLines::next() {
    if (rest_.empty()) return std::nullopt;
    ++number_;
    const auto end = std::min(rest_.find('\n'), rest_.size());
    std::string_view line = rest_.substr(0, end);
    if (line.ends_with('\r')) line.remove_suffix(1);
    rest_.remove_prefix(std::min(end + 1, rest_.size()));
    return line;
}

void SourceLines::refuse(long line, const std::string& expected) const {
    throw base::ErroreFile(path_, line, expected);
}

std::string languageText(const SourceLines& lines, std::string_view line, std::size_t index) {
    const std::string_view mark = languageMarks[index];
    if (!line.starts_with(mark)) lines.refuse("attesa la riga \"" + std::string(mark) + "...\"");
    line.remove_prefix(mark.size());
    if (line.empty()) lines.refuse("atteso un testo");
    if (base::senzaSpaziEsterni(line) != line) lines.refuse("attesi testi senza spazi esterni");
    if (!base::rappresentabile(line)) lines.refuse("attesi solo caratteri di Windows-1252");
    return std::string(line);
}

std::vector<std::string_view> words(std::string_view line) {
    std::vector<std::string_view> found;
    while (true) {
        const auto start = line.find_first_not_of(' ');
        if (start == std::string_view::npos) return found;
        line.remove_prefix(start);
        const auto length = std::min(line.find(' '), line.size());
        found.push_back(line.substr(0, length));
        line.remove_prefix(length);
    }
}

std::optional<int> wholeNumber(std::string_view word) { return wholeWord<int>(word); }

std::optional<double> decimalNumber(std::string_view word) { return wholeWord<double>(word); }

}  // namespace korven::tools
