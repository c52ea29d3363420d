#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace korven::base {

/// The first second of the year 10000: from there on a date has no four digits for its year.
inline constexpr long long fineEpoca = 253402300800;

/// What SOURCE_DATE_EPOCH says in this process, nothing where it is missing or empty. Whoever makes
/// files twice says by it which moment they are to bear instead of the clock's.
[[nodiscard]] std::optional<std::string> epocaVoluta();

/// Seconds of UTC since 1970 as such a variable writes them: a whole number from 0 up to the one
/// before `fineEpoca`. Nothing for any other text.
[[nodiscard]] std::optional<long long> secondiEpoca(std::string_view epoca);

}  // namespace korven::base
