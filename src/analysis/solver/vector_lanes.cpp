#include "analysis/solver/vector_lanes.hpp"

namespace korven::analysis {

#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__)
bool registriLarghi() { return __builtin_cpu_supports("avx2"); }
#else
bool registriLarghi() { return false; }
#endif

}  // namespace korven::analysis
