#pragma once

// Some doubles that are worked on side by side, in whatever registers the processor has.
//
// Every operation acts on each lane as the same operation acts on one double, so the number of
// lanes changes no bit of a result. What works on lanes is a template over their number L, written
// once and compiled for L = 4, which fills a register of AVX2, and for L = 2, which fills one of
// any x86-64 or ARMv8; each solve picks the version. More lanes than a register holds would be
// slow: the compiler takes them apart one by one.

#include <cstdint>

namespace korven::analysis {

/// Whether the processor has registers of four doubles that this program was compiled for.
[[nodiscard]] bool registriLarghi();

}  // namespace korven::analysis

// In front of a function that calls a template over four lanes, where `registriLarghi` holds.
#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__)
#define KORVEN_REGISTRI_LARGHI [[gnu::target("avx2")]]
#else
#define KORVEN_REGISTRI_LARGHI
#endif

// Functions over lanes are always inlined into those versions; none is ever called with a vector.
#define KORVEN_CORSIE [[gnu::always_inline]] inline
#pragma GCC diagnostic ignored "-Wpsabi"

namespace korven::analysis {

template <int L>
struct TipoCorsie;
template <>
struct TipoCorsie<2> {
    using Valori [[gnu::vector_size(16), gnu::may_alias]] = double;
};
template <>
struct TipoCorsie<4> {
    using Valori [[gnu::vector_size(32), gnu::may_alias]] = double;
};

template <int L>
using Corsie = typename TipoCorsie<L>::Valori;
/// All bits of a lane set or none, as comparisons give it.
template <int L>
using MascheraCorsie = decltype(Corsie<L>{} < Corsie<L>{});

template <int L>
KORVEN_CORSIE Corsie<L>& corsie(double* p) {
    return *reinterpret_cast<Corsie<L>*>(p);
}
template <int L>
KORVEN_CORSIE const Corsie<L>& corsie(const double* p) {
    return *reinterpret_cast<const Corsie<L>*>(p);
}

/// True (all bits set) in the lanes below k.
template <int L>
KORVEN_CORSIE MascheraCorsie<L> sotto(int k) {
    MascheraCorsie<L> numeri{};
    for (int i = 0; i < L; ++i) numeri[i] = i;
    return numeri < static_cast<std::int64_t>(k);
}

template <class Valori>
KORVEN_CORSIE Valori assoluto(const Valori& v) {
    using Bit = decltype(v < Valori{});
    constexpr std::int64_t senzaSegno = 0x7fff'ffff'ffff'ffff;
    return reinterpret_cast<Valori>(reinterpret_cast<Bit>(v) & senzaSegno);
}

/// Lane by lane the larger of a and b; b where a is NaN.
template <class Valori>
KORVEN_CORSIE Valori massimo(const Valori& a, const Valori& b) {
    return a > b ? a : b;
}

/// Largest lane; no lane may be NaN.
template <int L>
KORVEN_CORSIE double massimoCorsie(const Corsie<L>& c) {
    // The analyzer does not see what vectors hold.
    double massima = c[0];  // NOLINT(clang-analyzer-core.uninitialized.Assign)
    for (int i = 1; i < L; ++i) massima = c[i] > massima ? c[i] : massima;
    return massima;
}

}  // namespace korven::analysis
