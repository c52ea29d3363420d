#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "exchange/delimited_reader.hpp"
#include "project/field_table.hpp"
#include "project/project_data.hpp"
#include "studies/plan/fault.hpp"

namespace korven::studies {

/// Reads a plan piece by piece: its first row is the names of the fields, the others are variants
/// (`leggiPiano`).
class RighePiano {
 public:
    /// @param dati  has the rows of the tables; must outlive this
    explicit RighePiano(const project::DatiProgetto& dati) : dati_(dati) {}

    /// Reads the next piece of the text.
    /// @param testo      UTF-8, whole rows
    /// @param primaRiga  of the file, from 1, that it begins with
    /// @param valori     gets those of its variants, one after the other; after a fault they mean
    ///                   nothing
    void leggi(std::string_view testo, long primaRiga, std::vector<double>& valori);

    /// Of the first row; empty before it.
    [[nodiscard]] const std::vector<project::CampoNominato>& campi() const { return campi_; }
    /// What is wrong so far.
    [[nodiscard]] const std::vector<DifettoPiano>& difetti() const { return difetti_; }
    /// There is so much wrong, or wrong in such a way, that reading on tells nothing.
    [[nodiscard]] bool finita() const { return finita_; }

 private:
    void nomi(const exchange::RigaLetta& testata);
    void variante(const exchange::RigaLetta& riga, std::vector<double>& valori);
    void segna(DifettoPiano difetto, long riga, std::size_t colonna);

    const project::DatiProgetto& dati_;
    bool testata_ = false, finita_ = false;
    char separatore_ = ',';
    std::vector<project::CampoNominato> campi_;
    std::vector<DifettoPiano> difetti_;
};

}  // namespace korven::studies
