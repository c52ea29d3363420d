#pragma once

#include <array>
#include <cstddef>
#include <stdexcept>
#include <string>

namespace korven::base {

/// An index outside a table: the capacity of the program is exceeded. Nothing in between handles
/// it; `main` tells the user and ends the program.
class ErroreIndice : public std::out_of_range {
 public:
    ErroreIndice(long indice, std::size_t capacita)
        : std::out_of_range("indice " + std::to_string(indice) + " fuori dalla tabella (0-" +
                            std::to_string(capacita) + ")"),
          indice_(indice),
          capacita_(capacita) {}

    /// @param cosa  what there is too much of, in the user's words [translated, UTF-8]
    explicit ErroreIndice(const std::string& cosa) : std::out_of_range(cosa) {}

    [[nodiscard]] long indice() const { return indice_; }
    /// Capacity of the table; 0 when `what` says all there is to say.
    [[nodiscard]] std::size_t capacita() const { return capacita_; }

 private:
    long indice_ = 0;
    std::size_t capacita_ = 0;
};

/// A table of N rows counted from 1, as engineers count, with a row 0 that belongs to it and is
/// never filled by a user (layer 0 is the ground surface). Every build type checks every access.
///
/// @throws ErroreIndice for an index below 0 or above N
template <class T, std::size_t N>
class Tabella {
 public:
    static constexpr std::size_t capacita = N;

    [[nodiscard]] T& operator[](long indice) { return righe_[controlla(indice)]; }
    [[nodiscard]] const T& operator[](long indice) const { return righe_[controlla(indice)]; }

    bool operator==(const Tabella&) const = default;

 private:
    static std::size_t controlla(long indice) {
        if (indice < 0 || static_cast<std::size_t>(indice) > N) throw ErroreIndice(indice, N);
        return static_cast<std::size_t>(indice);
    }

    std::array<T, N + 1> righe_{};
};

}  // namespace korven::base
