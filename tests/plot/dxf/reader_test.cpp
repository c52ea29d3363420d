#include <gtest/gtest.h>

#include "plot/dxf/writer.hpp"
#include "support/dxf_reader.hpp"

// The strict reader is what proves the files of all drawings, so it is shown to refuse.

namespace korven::test {
namespace {

std::string buono() {
    plot::ScrittoreDxf dxf({0, 0, 19, 27}, "MONOTXT");
    dxf.muovi(1, 1, 3);
    dxf.muovi(2, 2, 2);
    dxf.testo(3, 4, 0.5, "abc", 45, -2);
    dxf.muovi(0, 0, 999);
    return dxf.contenuto();
}

std::string con(const std::string& prima, const std::string& dopo) {
    std::string testo = buono();
    const auto dove = testo.find(prima);
    EXPECT_NE(dove, std::string::npos) << prima;
    return testo.replace(dove, prima.size(), dopo);
}

TEST(LettoreDxf, ReadsAFileOfLinesAndTexts) {
    const FileDxf dxf = LettoreDxf::leggi(buono());
    ASSERT_EQ(dxf.linee.size(), 1U);
    EXPECT_EQ(dxf.linee[0].x2, 2);
    ASSERT_EQ(dxf.testi.size(), 1U);
    EXPECT_EQ(dxf.testi[0].testo, "abc");
    EXPECT_EQ(dxf.testi[0].angolo, 45);
}

TEST(LettoreDxf, RefusesBrokenFiles) {
    const std::pair<const char*, const char*> casi[] = {
        {"LINE\r\n", "LINE\n"},                                  // lone line end
        {" 0\r\nLINE\r\n", " 0\r\nCIRCLE\r\n"},                  // unknown entity
        {"20\r\n   1.000\r\n", ""},                              // a coordinate is missing
        {"20\r\n   1.000\r\n", "20\r\n   1,000\r\n"},            // decimal comma
        {"20\r\n   1.000\r\n", "20\r\n   1e3\r\n"},              // exponent
        {"20\r\n   1.000\r\n", "twenty\r\n   1.000\r\n"},        // code that is no number
        {"LINE\r\n 8\r\n0\r\n", "LINE\r\n 8\r\n16\r\n"},         // layer of no table
        {"    7\r\nMONOTXT\r\n", "    7\r\nROMANS\r\n"},         // style of no table
        {"    16\r\n", "    17\r\n"},                            // count of layers
        {" 40\r\n0.75\r\n", " 40\r\n0.7\r\n"},                   // length of a line type
        {" 0\r\nEOF\r\n", ""},                                   // no end
        {" 0\r\nEOF\r\n", " 0\r\nEOF\r\n 0\r\nEOF\r\n"},         // something after it
        {" 0\r\nENDSEC\r\n 0\r\nEOF\r\n", " 0\r\nEOF\r\n"},      // open section
        {" 72\r\n     1\r\n11\r\n", " 72\r\n     3\r\n11\r\n"},  // unknown alignment
    };
    for (const auto& [prima, dopo] : casi)
        EXPECT_THROW((void)LettoreDxf::leggi(con(prima, dopo)), std::runtime_error) << prima;
    EXPECT_THROW((void)LettoreDxf::leggi(buono() + " 0\r\n"), std::runtime_error);
    EXPECT_THROW((void)LettoreDxf::leggi(""), std::runtime_error);
}

}  // namespace
}  // namespace korven::test
