#include "plot/print_setup.hpp"

#include "base/file_error.hpp"
#include "fuzz_target.hpp"

// Any bytes as the layout of printed text. What can be read is the same after it was written, and
// after it passed through the fields of its form.

extern "C" int KORVEN_FUZZ_ENTRY(const std::uint8_t* byte, std::size_t quanti) {
    using namespace korven;
    plot::ImpostazioniStampa lette;
    try {
        base::LettoreRighe file("printer.cfg", test::contenutoFile(byte, quanti));
        lette = plot::leggiImpostazioni(file);
    } catch (const base::ErroreFile&) {
        return 0;
    }
    const std::string scritte = plot::testoImpostazioni(lette);
    base::LettoreRighe file("printer.cfg", scritte);
    const auto rilette = plot::leggiImpostazioni(file);
    test::pretendi(plot::testoImpostazioni(rilette) == scritte,
                   "a written layout reads back as the same bytes");
    const auto campi = plot::campiStampa(lette);
    test::pretendi(plot::campiStampa(plot::impostazioniScritte(campi)) == campi,
                   "the fields of the form keep what they show");
    return 0;
}
