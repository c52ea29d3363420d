#pragma once

// Four doubles that are worked on side by side, in whatever registers the processor has.
//
// Every operation acts on each lane as the same operation acts on one double, so the width changes
// no bit of a result. A function marked KORVEN_PER_PROCESSORE is compiled once for each width and
// the program picks the version when it starts.

// Four fill one AVX register. Eight would fill one of AVX-512, but where a processor has none the
// compiler takes comparisons of eight apart lane by lane; and small systems gain from four.

#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__)
#define KORVEN_PER_PROCESSORE __attribute__((target_clones("avx2", "default")))
#else
#define KORVEN_PER_PROCESSORE
#endif

// Functions over lanes are always inlined into those versions; none is ever called with a vector.
#define KORVEN_CORSIE [[gnu::always_inline]] inline
#pragma GCC diagnostic ignored "-Wpsabi"

namespace korven::analysis {

constexpr int larghezza = 4;

using Corsie [[gnu::vector_size(32), gnu::may_alias]] = double;
using MascheraCorsie [[gnu::vector_size(32)]] = long long;

KORVEN_CORSIE Corsie& corsie(double* p) { return *reinterpret_cast<Corsie*>(p); }
KORVEN_CORSIE const Corsie& corsie(const double* p) { return *reinterpret_cast<const Corsie*>(p); }

/// True (all bits set) in the lanes below k.
KORVEN_CORSIE MascheraCorsie sotto(int k) {
    return MascheraCorsie{0, 1, 2, 3} < static_cast<long long>(k);
}

KORVEN_CORSIE Corsie assoluto(const Corsie& v) {
    constexpr long long senzaSegno = 0x7fff'ffff'ffff'ffff;
    return reinterpret_cast<Corsie>(reinterpret_cast<MascheraCorsie>(v) & senzaSegno);
}

/// Lane by lane the larger of a and b; b where a is NaN.
KORVEN_CORSIE Corsie massimo(const Corsie& a, const Corsie& b) { return a > b ? a : b; }

/// Largest lane; no lane may be NaN.
KORVEN_CORSIE double massimoCorsie(const Corsie& c) {
    const double a = c[0] > c[1] ? c[0] : c[1], b = c[2] > c[3] ? c[2] : c[3];
    return a > b ? a : b;
}

}  // namespace korven::analysis
