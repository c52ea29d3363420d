#include "base/source_date.hpp"

#include <charconv>
#include <cstdlib>
#include <system_error>

namespace korven::base {

std::optional<std::string> epocaVoluta() {
    const char* epoca = std::getenv("SOURCE_DATE_EPOCH");
    if (epoca == nullptr || *epoca == '\0') return std::nullopt;
    return epoca;
}

std::optional<long long> secondiEpoca(std::string_view epoca) {
    long long secondi = 0;
    const char* const fine = epoca.data() + epoca.size();
    const auto [letto, errore] = std::from_chars(epoca.data(), fine, secondi);
    if (errore != std::errc() || letto != fine || secondi < 0 || secondi >= fineEpoca)
        return std::nullopt;
    return secondi;
}

}  // namespace korven::base
