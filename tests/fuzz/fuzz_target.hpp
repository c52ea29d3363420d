#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>

// A fuzz target takes any bytes as the content of a file. It ends quietly for a file that is
// refused in the documented way and lets every other exception pass, which counts as a finding.
// libFuzzer knows one name for all targets; the test that replays the corpus holds several of them
// and names each by KORVEN_FUZZ_ENTRY.

#ifndef KORVEN_FUZZ_ENTRY
#define KORVEN_FUZZ_ENTRY LLVMFuzzerTestOneInput
#endif

extern "C" int KORVEN_FUZZ_ENTRY(const std::uint8_t* byte, std::size_t quanti);

namespace korven::test {

/// Raises a finding when a property does not hold.
inline void pretendi(bool vale, const char* proprieta) {
    if (!vale) throw std::logic_error(proprieta);
}

inline std::string contenutoFile(const std::uint8_t* byte, std::size_t quanti) {
    return quanti == 0 ? std::string() : std::string(reinterpret_cast<const char*>(byte), quanti);
}

}  // namespace korven::test
