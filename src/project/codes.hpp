#pragma once

#include <compare>
#include <concepts>

// The codes of the project. The project keeps them as numbers, as the file does, and any number is
// possible. Wherever one is used it is compared with the codes; a number that is none of them is
// unequal to all and acts as that place says.

namespace korven::project {

enum class VincoloTesta { libera = 1, cerniera };
enum class VincoloPiede { libero = 1, cerniera, incastro };
/// Stress below the excavation: from the excavated side anew at each stage, or that of uphill.
enum class ModoSpinte { ricalcolate = 1, comeMonte };
enum class ModoKs { ricalcolato = 1, comeMonte };
enum class ModoTensioni { efficaci = 1, totali };
enum class MetodoSpinte { coulomb = 1, rankine, bell };
enum class MetodoKs { bowles = 1, lancellotta, costante, lineare };
enum class TipoTirante { soloTrazione, trazioneCompressione };

template <class T>
concept CodiceProgetto = std::same_as<T, VincoloTesta> || std::same_as<T, VincoloPiede> ||
    std::same_as<T, ModoSpinte> || std::same_as<T, ModoKs> || std::same_as<T, ModoTensioni> ||
    std::same_as<T, MetodoSpinte> || std::same_as<T, MetodoKs> || std::same_as<T, TipoTirante>;

/// The number by which the project keeps a code.
template <CodiceProgetto C>
[[nodiscard]] constexpr double valore(C codice) {
    return static_cast<double>(codice);
}

template <CodiceProgetto C>
[[nodiscard]] constexpr bool operator==(double conservato, C codice) {
    return conservato == valore(codice);
}

template <CodiceProgetto C>
[[nodiscard]] constexpr std::partial_ordering operator<=>(double conservato, C codice) {
    return conservato <=> valore(codice);
}

}  // namespace korven::project
