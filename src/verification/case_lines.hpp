#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace korven::verification {

/// The lines of the file of a case, one after the other: without comments, empty lines and outer
/// blanks. Knows what line it is at, for errors.
class RigheCaso {
 public:
    RigheCaso(std::string percorso, std::string_view contenuto)
        : percorso_(std::move(percorso)), resto_(contenuto) {}

    /// The next line; nothing at the end.
    [[nodiscard]] std::optional<std::string_view> prossima();
    /// All that follows, as it is.
    [[nodiscard]] std::string_view resto() const { return resto_; }
    [[nodiscard]] int numero() const { return numero_; }

    /// @param cosa    Italian key of what is expected in this line, %1 for the first of the values
    /// @throws base::ErroreFile always
    [[noreturn]] void rifiuta(std::string_view cosa,
                              std::initializer_list<std::string> valori = {}) const;

 private:
    std::string percorso_;
    std::string_view resto_;
    int numero_ = 0;
};

/// What an error says of something that should be there: "expected: a title".
/// @param cosa  translated
[[nodiscard]] std::string atteso(const std::string& cosa);

/// Without the blanks at its ends.
[[nodiscard]] std::string_view senzaBianchi(std::string_view testo);

/// What lies before and behind the first `segno`, without blanks; nothing without one.
[[nodiscard]] std::optional<std::pair<std::string_view, std::string_view>> divisa(
    std::string_view riga, char segno);

/// The words of a text.
[[nodiscard]] std::vector<std::string_view> parole(std::string_view testo);

}  // namespace korven::verification
