#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace korven::report {

/// A row of a list: a label and its value in the units shown.
struct Voce {
    std::string_view etichetta;  ///< Italian key
    double valore = 0;
    bool presente = true;  ///< rows that are not are left out
};

/// Collects the lines of a report in mark-up. Texts given as keys pass through the translation;
/// directives and the user's own lines do not. Numbers have two decimals, whatever their size.
class RigheRelazione {
 public:
    /// A line left unchanged: a directive, or the user's own text.
    void riga(std::string_view testo);
    void vuota() { riga({}); }
    /// A title, caption or sentence.
    void titolo(std::string_view chiave);

    /// The first row of a table: its captions.
    void intestazione(std::initializer_list<std::string_view> chiavi);
    /// A row of numbers, followed by a last cell of text if there is one.
    void valori(std::initializer_list<double> numeri, std::string_view chiave = {});
    /// A whole list, from its opening to its closing line.
    void lista(const std::vector<Voce>& voci);

    /// All lines, UTF-8, ended by CR LF.
    [[nodiscard]] const std::string& testo() const { return testo_; }

 private:
    std::string testo_;
};

}  // namespace korven::report
