#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace korven::base {

// Text is UTF-8 inside the program; the files that users and other programs exchange are
// Windows-1252. These functions are the one place where the two meet. None of them fails, and none
// depends on the locale.

/// UTF-8 of a Windows-1252 text. The five bytes without a character (81, 8D, 8F, 90, 9D) become the
/// control characters U+0081 to U+009D of the same number, so that every text survives the way
/// there and back.
[[nodiscard]] std::string daCp1252(std::string_view byte);

/// Windows-1252 of a UTF-8 text. A character that has no place there becomes '?', and so does each
/// byte that belongs to no well-formed UTF-8 character.
[[nodiscard]] std::string inCp1252(std::string_view utf8);

/// True when `inCp1252` has to replace nothing.
[[nodiscard]] bool rappresentabile(std::string_view utf8);

/// The text as a file will give it back: `daCp1252` of its `inCp1252`. What is typed is shown like
/// this at once, so that nobody finds a '?' in a saved text.
[[nodiscard]] std::string comeNeiFile(std::string_view utf8);

/// Upper case, one character for one: the letters of Windows-1252 with their accents, and U+00FF
/// (y with diaeresis) with its capital U+0178. The German sharp s stays, as it has no capital of
/// one letter; so does everything that is no letter of the code page.
[[nodiscard]] std::string maiuscolo(std::string_view utf8);

/// The text with its first character in upper case, as a sentence begins.
[[nodiscard]] std::string conMaiuscola(std::string_view utf8);

/// With a small first letter; the others stay as they are, as the nouns of German must.
[[nodiscard]] std::string conMinuscola(std::string_view utf8);

/// Lower case, the inverse of `maiuscolo`.
[[nodiscard]] std::string minuscolo(std::string_view utf8);

/// Number of characters of a UTF-8 text; a byte out of place counts as one.
[[nodiscard]] std::size_t numeroCaratteri(std::string_view utf8);

/// Length in bytes of the first character of a text; 1 for a byte out of place.
/// @pre the text is not empty: asserted
[[nodiscard]] std::size_t lunghezzaPrimoCarattere(std::string_view utf8);

/// The text without its leading and trailing blanks (code 32 alone: a tab is content).
[[nodiscard]] std::string_view senzaSpaziEsterni(std::string_view testo);

}  // namespace korven::base
