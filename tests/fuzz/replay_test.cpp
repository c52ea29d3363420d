#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <vector>

#include "support/temporary_folder.hpp"

// Every file of the corpus goes through its fuzz target once more: what the fuzzer has found stays
// found, also without a fuzzer.

extern "C" {
int fuzzProjectReader(const std::uint8_t* byte, std::size_t quanti);
int fuzzResultReader(const std::uint8_t* byte, std::size_t quanti);
int fuzzMarkupReader(const std::uint8_t* byte, std::size_t quanti);
int fuzzTextTable(const std::uint8_t* byte, std::size_t quanti);
}

namespace korven {
namespace {

namespace fs = std::filesystem;

using Bersaglio = int (*)(const std::uint8_t*, std::size_t);

void ripeti(const char* nome, Bersaglio bersaglio) {
    std::vector<fs::path> file;
    for (const auto& voce : fs::directory_iterator(fs::path(KORVEN_FUZZ_CORPUS) / nome))
        file.push_back(voce.path());
    std::sort(file.begin(), file.end());
    ASSERT_GE(file.size(), 5u) << "a corpus that nobody laid down proves nothing";
    for (const auto& uno : file) {
        const std::string byte = test::contenuto(uno.string());
        EXPECT_NO_THROW(bersaglio(reinterpret_cast<const std::uint8_t*>(byte.data()), byte.size()))
            << uno;
    }
    EXPECT_NO_THROW(bersaglio(nullptr, 0)) << "an empty file";
}

TEST(CorpusFuzz, ProjectReaderSurvivesAllItsFiles) { ripeti("project_reader", fuzzProjectReader); }
TEST(CorpusFuzz, ResultReaderSurvivesAllItsFiles) { ripeti("result_reader", fuzzResultReader); }
TEST(CorpusFuzz, MarkupReaderSurvivesAllItsFiles) { ripeti("markup_reader", fuzzMarkupReader); }
TEST(CorpusFuzz, TextTableSurvivesAllItsFiles) { ripeti("text_table", fuzzTextTable); }

}  // namespace
}  // namespace korven
