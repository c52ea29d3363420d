#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "tables/result_table.hpp"

namespace korven::batch {

/// A table in plain text: columns two blanks apart, as wide as their widest cell, right-aligned but
/// for a last one of words.
class TabellaTesto {
 public:
    /// @param titoli          translated
    /// @param ultimaAParole   the last column is of words, left-aligned
    explicit TabellaTesto(std::vector<std::string> titoli, bool ultimaAParole = false);

    /// @param aParole  which columns are of words, left-aligned: as many as there are columns
    TabellaTesto(std::vector<std::string> titoli, std::vector<bool> aParole);

    /// @param celle  as many as there are columns: asserted
    void riga(std::vector<std::string> celle);

    /// Lines ended by "\n".
    [[nodiscard]] std::string testo() const;

 private:
    [[nodiscard]] std::size_t larghezza(std::size_t colonna) const;

    std::vector<std::vector<std::string>> righe_;
    std::vector<bool> aParole_;
};

/// Rows and heads of a table of results, without its title and its notes; empty without rows.
[[nodiscard]] std::string testoTabella(const tables::Prospetto& prospetto);

}  // namespace korven::batch
