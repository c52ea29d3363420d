#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace korven::batch {

/// A table as RFC 4180 has it: a line of names, then the rows, every line ended by CR LF; a field
/// with a comma, a quote or a line end stands in quotes.
class RigheCsv {
 public:
    explicit RigheCsv(std::span<const std::string_view> nomi);

    // The fields of a row, in the order of the names.
    RigheCsv& campo(std::string_view testo);
    RigheCsv& campo(int numero);
    /// All digits of the double, so that reading it gives the same.
    RigheCsv& campo(double numero);
    /// Empty for none.
    RigheCsv& campo(std::optional<double> numero);
    void fineRiga();

    [[nodiscard]] const std::string& testo() const { return testo_; }

 private:
    std::string testo_;
    bool inizio_ = true;
};

}  // namespace korven::batch
