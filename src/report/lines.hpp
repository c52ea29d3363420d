#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "project/field_table.hpp"

namespace korven::report {

/// A row of a list: a label and its value in the units shown.
struct Voce {
    std::string etichetta;  ///< Italian key
    double valore = 0;
    bool presente = true;  ///< rows that are not are left out
};

/// The row of a field, with the caption and in the unit of the table of fields.
[[nodiscard]] Voce voce(const project::DatiProgetto& dati, const project::Membro& membro,
                        bool presente = true);

/// The row of a result, stored as the project stores such a number.
[[nodiscard]] Voce voce(std::string_view didascalia, const project::Unita& unita, double conservato,
                        bool presente = true);

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
    void intestazione(const std::vector<std::string>& chiavi);
    /// A row of numbers, followed by a last cell of text if there is one.
    void valori(const std::vector<double>& numeri, std::string_view chiave = {});
    /// The captions of columns of the project, and row `numero` of them; a code comes after the
    /// numbers, as the word for it.
    void intestazione(std::span<const project::Membro> colonne);
    void valori(const project::DatiProgetto& dati, std::span<const project::Membro> colonne,
                int numero);
    /// A whole list, from its opening to its closing line.
    void lista(const std::vector<Voce>& voci);

    /// All lines, UTF-8, ended by CR LF.
    [[nodiscard]] const std::string& testo() const { return testo_; }

 private:
    std::string testo_;
};

}  // namespace korven::report
