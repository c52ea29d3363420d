#include "plot/dxf/tables.hpp"

#include <gtest/gtest.h>

#include "support/golden.hpp"

namespace korven::plot {
namespace {

TEST(InizioDxf, IsTheFileStartByteForByte) {
    test::confrontaConGolden("plot/dxf_start.dxf", inizioDxf({0, 0.6, 20, 28.5}, "MONOTXT"));
}

TEST(InizioDxf, NamesTheStyleInHeaderAndTable) {
    const std::string testo = inizioDxf({0, 0, 19, 27}, "ROMANS");
    EXPECT_NE(testo.find(" 9\r\n$TEXTSTYLE\r\n 8\r\nROMANS\r\n"), std::string::npos);
    EXPECT_NE(testo.find(" 0\r\nSTYLE\r\n 2\r\nROMANS\r\n"), std::string::npos);
    EXPECT_NE(testo.find(" 42\r\n0.2\r\n 3\r\nROMANS\r\n 0\r\nENDTAB\r\n"), std::string::npos);
    EXPECT_EQ(testo.find("MONOTXT"), std::string::npos);
}

}  // namespace
}  // namespace korven::plot
