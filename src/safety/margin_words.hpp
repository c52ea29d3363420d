#pragma once

#include <optional>
#include <string>
#include <vector>

#include "safety/margin.hpp"

// The numbers of the margin as every output shows them, translated.

namespace korven::safety {

/// A strength reduction as it is told everywhere: "2.98". Two decimals; one below 1 or below a
/// limit that remarks are made at is never rounded up to it, so that text and verdict agree.
/// @param chiesta  another such limit
[[nodiscard]] std::string testoF(double F, std::optional<double> chiesta = {});
/// "2.98", "> 10", "2.72 *" where the slope of the ground is the limit (`notaPendenza`), "-" for
/// none.
[[nodiscard]] std::string testoRiduzione(const Riduzione& riduzione);

/// Whole per cent, "-" for none.
[[nodiscard]] std::string testoQuota(const std::optional<double>& quota);

/// "7.60-8.20, 8.60", depths in m; "-" for none.
[[nodiscard]] std::string testoTratti(const std::vector<equilibrium::Tratto>& tratti);

/// What happens at the factor: "ruota attorno alla profondità di 4.20 m, il piede verso lo scavo",
/// that the slope of the ground is its limit, or that nothing happens up to the largest, and what
/// holds the wall then.
/// @param paratia  length of the wall [m]
[[nodiscard]] std::string parole(const Riduzione& riduzione, double paratia);

/// The same of a stage: what happens at its factor, above 1 or below; of one that falls without
/// such a factor, that it has no equilibrium; "-" where nothing is known.
[[nodiscard]] std::string parole(const MargineFase& fase, double paratia);

/// "Lunghezza minima: 12.61 m; la paratia è lunga 16.00 m; non è una lunghezza da costruire: F =
/// 1", or why there is none; empty where the data are no wall of any length.
[[nodiscard]] std::string paroleLunghezza(const Margine& margine);

/// "Errore di maglia (50 segmenti contro 200): momento positivo 2.9 %, momento negativo 1.2 %,
/// taglio 2.1 %, ..."; empty where a stage does not stand.
[[nodiscard]] std::string paroleMaglia(const Margine& margine);

/// The stage by which the wall is judged: its factor and what happens there, or why it does not
/// stand.
[[nodiscard]] std::string paroleDecisiva(const Margine& margine);

/// Why the report has no numbers, in a sentence; empty if it has them or the wall does not stand.
[[nodiscard]] std::string paroleRelazione(const Margine& margine);

/// The same beside a picture of the wall, which says that it stands all the same; empty too where
/// the run was stopped.
[[nodiscard]] std::string paroleSenzaRelazione(const Margine& margine);

/// By which of the two ways the numbers came.
[[nodiscard]] std::string paroleMetodo(const Margine& margine);

/// The footnote of factors with a "*"; empty if there is none.
[[nodiscard]] std::string notaPendenza(const Margine& margine);

/// The footnote of the factors beyond the range: which stages restraints or anchors hold, whatever
/// the strength of the ground; empty if there is none.
[[nodiscard]] std::string notaOltre(const Margine& margine);

/// Whether `lunghezza` says anything: not where the data are no wall of any length.
[[nodiscard]] bool lunghezzaNota(const Margine& margine);

}  // namespace korven::safety
