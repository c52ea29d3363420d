#include "drawings/hatch_library.hpp"

#include <array>
#include <string_view>

#include "base/file_error.hpp"
#include "fuzz_target.hpp"

// Any bytes as the four files of the hatches, parted by a line "----". What can be read gives the
// strokes of every pattern, or says that the last file is too short.

namespace {

using namespace korven;

std::array<std::string, 4> quattroFile(std::string_view tutto) {
    constexpr std::string_view segno = "----\n";
    std::array<std::string, 4> file;
    for (std::size_t i = 0; i + 1 < file.size(); ++i) {
        const auto fine = tutto.find(segno);
        file[i] = tutto.substr(0, fine);
        if (fine == std::string_view::npos) return file;
        tutto.remove_prefix(fine + segno.size());
    }
    file.back() = tutto;
    return file;
}

void tratti(const drawings::Campiture& campiture, std::string_view byte) {
    std::size_t tutti = 0;
    for (int i = 1; i <= drawings::numeroCampiture; ++i) {
        const auto& campitura = campiture[i];
        test::pretendi(campitura.nTratti >= 0 && campitura.primoTratto >= 1,
                       "strokes are counted from 1");
        test::pretendi(campitura.nTratti == 0 || campitura.unita > 0,
                       "a pattern with strokes has a size");
        tutti += static_cast<std::size_t>(campitura.nTratti);
        try {
            const auto letti = drawings::trattiDi(campitura, byte, "set4.rtn");
            test::pretendi(static_cast<int>(letti.size()) == campitura.nTratti,
                           "all strokes of a pattern are read");
        } catch (const base::ErroreFile&) {
            test::pretendi(byte.size() < 8 * tutti, "a file that is long enough is read");
        }
    }
}

}  // namespace

extern "C" int KORVEN_FUZZ_ENTRY(const std::uint8_t* byte, std::size_t quanti) {
    const auto file = quattroFile(test::contenutoFile(byte, quanti));
    base::LettoreRighe conteggi("set1.rtn", file[0]), unita("set2.rtn", file[1]),
        nomi("set3ita.rtn", file[2]);
    try {
        tratti(drawings::leggiCampiture(conteggi, unita, nomi), file[3]);
    } catch (const base::ErroreFile&) {
    }
    return 0;
}
