#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace korven::tools {

/// Goes through a readable source under data/ line by line and says where it broke. Lines end in LF
/// or CR LF, the last may have no end. It looks at the content, which must outlive it.
class SourceLines {
 public:
    /// @param path  name of the source in errors
    SourceLines(std::string path, std::string_view content)
        : path_(std::move(path)), rest_(content) {}

    /// The next line without its end; nothing after the last one.
    std::optional<std::string_view> next();

    /// Number of the line last read, from 1; 0 before the first.
    [[nodiscard]] long number() const { return number_; }

    /// @throws base::ErroreFile for the line last read
    [[noreturn]] void refuse(const std::string& expected) const { refuse(number_, expected); }

    /// @throws base::ErroreFile for a line by its number
    [[noreturn]] void refuse(long line, const std::string& expected) const;

 private:
    std::string path_;
    std::string_view rest_;
    long number_ = 0;
};

/// The mark before a text in each language, in the order of the language codes.
inline constexpr std::array<std::string_view, 6> languageMarks = {
    "it: ", "de: ", "fr: ", "es: ", "en: ", "pt: "};

/// The text of the line of language `index` (from 0), checked: the mark of that language, after it
/// a text without outer blanks that Windows-1252 can hold.
/// @throws base::ErroreFile otherwise
[[nodiscard]] std::string languageText(const SourceLines& lines, std::string_view line,
                                       std::size_t index);

/// The words of a line, parted by blanks.
[[nodiscard]] std::vector<std::string_view> words(std::string_view line);

/// A whole number that takes up all of `word`; nothing otherwise.
[[nodiscard]] std::optional<int> wholeNumber(std::string_view word);

/// A decimal number that takes up all of `word`; nothing otherwise.
[[nodiscard]] std::optional<double> decimalNumber(std::string_view word);

}  // namespace korven::tools
