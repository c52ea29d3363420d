#include "exchange/ags_file.hpp"
#include "exchange/ags_layers.hpp"
#include "exchange/csv_writer.hpp"
#include "exchange/file_text.hpp"
#include "exchange/layer_file.hpp"
#include "fuzz_target.hpp"

// Any bytes as a ground investigation. The layers of a hole are taken or its faults told, never
// both, and layers that are taken can be typed into the editor.

extern "C" int KORVEN_FUZZ_ENTRY(const std::uint8_t* byte, std::size_t quanti) {
    using namespace korven;
    const std::string contenuto = test::contenutoFile(byte, quanti);
    const exchange::FileAgs file = exchange::leggiAgs(exchange::testoDiFile(contenuto));
    using enum exchange::TestaAlForo::Modo;
    for (const auto& foro : file.fori) {
        test::pretendi(!foro.tratti.empty(), "a hole has ranges");
        for (const exchange::TestaAlForo& testa :
             {exchange::TestaAlForo{}, {profondita, "1,5"}, {quota, "100"}}) {
            const auto strati = exchange::stratiForo(foro, testa);
            test::pretendi(strati.riuscita() != strati.righe.empty(),
                           "layers are taken or faults are told");
            test::pretendi(exchange::difettiRighe(strati.righe).empty(),
                           "a layer that is taken can be typed");
        }
    }
    // The way of the programs, which find the format out.
    const exchange::FileStrati scelto{contenuto};
    (void)scelto.strati();
    return 0;
}
