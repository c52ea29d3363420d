#pragma once

// Eight doubles that are worked on side by side, in whatever registers the processor has.
//
// Every operation acts on each lane as the same operation acts on one double, so the width changes
// no bit of a result. A function marked KORVEN_PER_PROCESSORE is compiled once for each width and
// the program picks the version when it starts.

#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__)
#define KORVEN_PER_PROCESSORE __attribute__((target_clones("avx512f", "avx2", "default")))
#else
#define KORVEN_PER_PROCESSORE
#endif

// Functions over lanes are always inlined into those versions; none is ever called with a vector.
#define KORVEN_CORSIE [[gnu::always_inline]] inline
#pragma GCC diagnostic ignored "-Wpsabi"

namespace korven::analysis {

constexpr int larghezza = 8;

using Corsie [[gnu::vector_size(64), gnu::may_alias]] = double;
using MascheraCorsie [[gnu::vector_size(64)]] = long long;

KORVEN_CORSIE Corsie& corsie(double* p) { return *reinterpret_cast<Corsie*>(p); }
KORVEN_CORSIE const Corsie& corsie(const double* p) { return *reinterpret_cast<const Corsie*>(p); }

/// True (all bits set) in the lanes below k.
KORVEN_CORSIE MascheraCorsie sotto(int k) {
    return MascheraCorsie{0, 1, 2, 3, 4, 5, 6, 7} < static_cast<long long>(k);
}

KORVEN_CORSIE Corsie assoluto(const Corsie& v) {
    constexpr long long senzaSegno = 0x7fff'ffff'ffff'ffff;
    return reinterpret_cast<Corsie>(reinterpret_cast<MascheraCorsie>(v) & senzaSegno);
}

/// Lane by lane the larger of a and b; b where a is NaN.
KORVEN_CORSIE Corsie massimo(const Corsie& a, const Corsie& b) { return a > b ? a : b; }

/// Largest lane; no lane may be NaN.
KORVEN_CORSIE double massimoCorsie(const Corsie& c) {
    Corsie v = massimo(c, __builtin_shufflevector(c, c, 4, 5, 6, 7, 0, 1, 2, 3));
    v = massimo(v, __builtin_shufflevector(v, v, 2, 3, 0, 1, 6, 7, 4, 5));
    v = massimo(v, __builtin_shufflevector(v, v, 1, 0, 3, 2, 5, 4, 7, 6));
    return v[0];
}

}  // namespace korven::analysis
