#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <vector>

#include "support/temporary_folder.hpp"

// Every file of the corpus goes through its fuzz target once more: what the fuzzer has found stays
// found, also without a fuzzer.

// The build writes the list of the targets, a KORVEN_FUZZ_TARGET(name) a line.
#define KORVEN_FUZZ_TARGET(name) extern "C" int fuzz_##name(const std::uint8_t*, std::size_t);
#include "fuzz_targets.inc"
#undef KORVEN_FUZZ_TARGET

namespace korven {
namespace {

namespace fs = std::filesystem;

struct Bersaglio {
    const char* nome;
    int (*prova)(const std::uint8_t*, std::size_t);
};

const std::vector<Bersaglio> bersagli = {
#define KORVEN_FUZZ_TARGET(name) {#name, fuzz_##name},
#include "fuzz_targets.inc"
#undef KORVEN_FUZZ_TARGET
};

class CorpusFuzz : public testing::TestWithParam<Bersaglio> {};

TEST_P(CorpusFuzz, IsSurvivedByItsTarget) {
    const auto& [nome, prova] = GetParam();
    std::vector<fs::path> file;
    for (const auto& voce : fs::directory_iterator(fs::path(KORVEN_FUZZ_CORPUS) / nome))
        file.push_back(voce.path());
    std::sort(file.begin(), file.end());
    ASSERT_GE(file.size(), 5u) << "a corpus that nobody laid down proves nothing";
    for (const auto& uno : file) {
        const std::string byte = test::contenuto(uno.string());
        EXPECT_NO_THROW(prova(reinterpret_cast<const std::uint8_t*>(byte.data()), byte.size()))
            << uno;
    }
    EXPECT_NO_THROW(prova(nullptr, 0)) << "an empty file";
}

INSTANTIATE_TEST_SUITE_P(Targets, CorpusFuzz, testing::ValuesIn(bersagli),
                         [](const auto& uno) { return std::string(uno.param.nome); });

}  // namespace
}  // namespace korven
