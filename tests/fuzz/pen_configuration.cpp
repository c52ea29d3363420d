#include "base/file_error.hpp"
#include "fuzz_target.hpp"
#include "plot/plot_configuration.hpp"

// Any bytes as a configuration of drawings. What can be read is the same after it was written, and
// gives pens that a drawing can use.

extern "C" int KORVEN_FUZZ_ENTRY(const std::uint8_t* byte, std::size_t quanti) {
    using namespace korven;
    plot::ConfigurazionePlot letta;
    try {
        base::LettoreRighe file("module06ita.cfg", test::contenutoFile(byte, quanti));
        letta = plot::leggiConfigurazione(file);
    } catch (const base::ErroreFile&) {
        return 0;
    }
    const std::string scritta = plot::testoConfigurazione(letta);
    base::LettoreRighe file("module06ita.cfg", scritta);
    test::pretendi(plot::testoConfigurazione(plot::leggiConfigurazione(file)) == scritta,
                   "a written configuration reads back as the same bytes");
    const auto penne = plot::pennePlot(letta);
    for (int i = 1; i <= plot::numeroPenne; ++i)
        test::pretendi(penne[i].spessore >= 0 && penne[i].spessore <= plot::massimoSpessoreMm,
                       "a line is as wide as a line can be");
    return 0;
}
