#include <vector>

#include "fuzz_target.hpp"
#include "studies/plan/fault_words.hpp"
#include "studies/plan/plan_file.hpp"
#include "studies/plan/study_fields.hpp"
#include "study_wall.hpp"

// Any bytes as the plan of a study. It is read or its faults are told, never both; what is read is
// within the ranges of its fields.

extern "C" int KORVEN_FUZZ_ENTRY(const std::uint8_t* byte, std::size_t quanti) {
    using namespace korven;
    const std::string contenuto = test::contenutoFile(byte, quanti);
    const auto letto = studies::leggiPiano(test::muroDiStudio(), contenuto);
    test::pretendi(letto.piano.has_value() == letto.difetti.empty(),
                   "a plan is read or its faults are told");
    test::pretendi(letto.difetti.size() <= 20, "the first twenty faults are told");
    // One of them: the search for the name that was meant takes longer than all else.
    if (!letto.difetti.empty())
        test::pretendi(!studies::parole(letto.difetti.back()).empty(), "a fault is told in words");
    if (!letto.piano) return 0;
    const auto campi = letto.piano->campi();
    test::pretendi(!campi.empty() && letto.piano->numero() > 0, "a plan has variants of fields");
    std::vector<double> valori(campi.size());
    for (std::uint64_t i = 0; i < letto.piano->numero(); ++i) {
        test::pretendi(letto.piano->valori(i, valori).empty(), "no value had to be limited");
        for (std::size_t j = 0; j < campi.size(); ++j)
            test::pretendi(!studies::difettoValore(campi[j], valori[j]),
                           "a value is within the range of its field");
    }
    return 0;
}
