#pragma once

#include <optional>
#include <string>
#include <string_view>

// Numbers as text, the same on every machine and under every locale: the point is the only decimal
// sign. All formatters round half away from zero, decided on the shortest decimal text that reads
// back as the same double, so that 1.005 is a tie and 0.00000005 is not lost. Only finite values.

namespace korven::base {

/// Reads the number at the head of a text: leading blanks are skipped, then the longest prefix of
/// the form sign, digits, point, digits, exponent with e or E is taken; what follows is ignored.
/// A number too small for a double is 0 with its sign.
/// @return nothing when the text begins with no number, or with one too large for a double
[[nodiscard]] std::optional<double> leggiNumero(std::string_view testo);

/// True when the text is a number in the form of `leggiNumero`, of whatever size, and nothing else
/// but blanks around it.
[[nodiscard]] bool soloUnNumero(std::string_view testo);

/// The text of a number in project and result files: at most seven decimals, no padding, all
/// integer digits. 0.5 gives 0.5, but -0.5 gives -.5, since only a point in the very first place
/// gets its 0; every reader takes both forms.
[[nodiscard]] std::string formattaNumero(double valore);

/// Fixed-field text of a number for drawings.
///
/// @param maschera  a picture such as "###.##"; only its lengths count: the characters before the
///                  point are the width of the integer part, those after it the decimals
/// @return the rounded number (half rounded up), its integer part padded with blanks on the left;
///         an integer part longer than its width pushes the fraction out of the picture, one longer
///         than the whole picture is written alone
[[nodiscard]] std::string formattaMaschera(double valore, std::string_view maschera);

/// Text of a number in the report: a value rounded to four decimals, then cut (not rounded again)
/// to `decimali` of them. Negative values below 1 keep no zero before the point: -0.5 gives -.50.
///
/// @param decimali  1 to 12; 0 leaves the point at the end, -1 takes it off
[[nodiscard]] std::string formattaDecimali(double valore, int decimali);

/// Text of `valore` * 10^`potenza` with exactly `decimali` digits after the point, rounded once; a
/// 0 before the point, never "-0". The power of ten moves the point of the decimal text and so
/// costs no digit: tonnes become kN, metres centimetres.
/// @param decimali  0 or less leaves the point out
[[nodiscard]] std::string testoDecimali(double valore, int decimali, int potenza = 0);

/// The plain text of a number: at most 15 significant digits, a 0 before the point, no exponent,
/// never "-0".
[[nodiscard]] std::string testoNumero(double valore);

/// The shortest text that reads back as the same double, for tables that programs read; an exponent
/// where that is shorter, never "-0". Empty for one that is not finite.
[[nodiscard]] std::string tutteLeCifre(double valore);

/// At most fifteen significant digits, for files that people open as well: what a product such as
/// 27 x 0.12 leaves in the last place of a double is not there. Empty for no number.
[[nodiscard]] std::string quindiciCifre(double valore);

}  // namespace korven::base
