#pragma once

#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/delimited_reader.hpp"

namespace korven::exchange {

/// The group of an AGS file that is being read: its headings, and what a row says under them.
class GruppoAgs {
 public:
    GruppoAgs() = default;
    explicit GruppoAgs(std::string_view nome) : nome_(nome) {}

    [[nodiscard]] const std::string& nome() const { return nome_; }

    /// Takes the row HEADING over.
    void intesta(const RigaLetta& riga);
    [[nodiscard]] bool intestato() const { return !posti_.empty(); }
    /// The first of these headings that the group does not have; empty: it has them all.
    [[nodiscard]] std::string_view mancante(std::span<const std::string_view> richieste) const;

    /// What a row has under a heading; empty where it has none.
    [[nodiscard]] std::string_view cella(const RigaLetta& riga, std::string_view testata) const;
    /// True when a row has a text beyond the last heading.
    [[nodiscard]] bool troppoLunga(const RigaLetta& riga) const;
    /// Place of a heading in its rows, from 1; 0 when there is none.
    [[nodiscard]] std::size_t colonna(std::string_view testata) const;

 private:
    std::string nome_;
    std::map<std::string, std::size_t, std::less<>> posti_;
    std::size_t celle_ = 0;
};

}  // namespace korven::exchange
