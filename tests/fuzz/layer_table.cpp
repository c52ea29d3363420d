#include "exchange/csv_layers.hpp"
#include "exchange/csv_writer.hpp"
#include "exchange/file_text.hpp"
#include "exchange/import_rows.hpp"
#include "fuzz_target.hpp"

// Any bytes as layers in a table of a spreadsheet. They are taken or faults are told, never both;
// what is taken reads back as the same rows after it was written, with either sign.

extern "C" int KORVEN_FUZZ_ENTRY(const std::uint8_t* byte, std::size_t quanti) {
    using namespace korven;
    const std::string testo = exchange::testoDiFile(test::contenutoFile(byte, quanti));
    const auto letti = exchange::leggiCsv(testo);
    test::pretendi(letti.riuscita() != letti.righe.empty(), "layers are taken or faults are told");
    if (!letti.riuscita()) return 0;
    test::pretendi(exchange::difettiRighe(letti.righe).empty(), "layers can be typed");
    for (const auto& forma : {exchange::csvPuntoEVirgola, exchange::csvVirgola}) {
        const std::string scritti = exchange::testoCsv(letti.righe, forma);
        const auto riletti = exchange::leggiCsv(exchange::testoDiFile(scritti));
        test::pretendi(riletti.riuscita() && riletti.righe == letti.righe,
                       "written layers read back as the same rows");
    }
    for (const bool tieni : {false, true})
        (void)exchange::preparaRighe(letti, letti.righe,
                                     {.tieniValori = tieni, .mettiCodice = true});
    return 0;
}
