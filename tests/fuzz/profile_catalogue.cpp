#include "fuzz_target.hpp"
#include "profiles/profile_rows.hpp"

// Any bytes as a catalogue of profiles. Every line is a row, a comment or told; a row that is
// written again is the same profile.

extern "C" int KORVEN_FUZZ_ENTRY(const std::uint8_t* byte, std::size_t quanti) {
    using namespace korven;
    profiles::Catalogo letto;
    profiles::leggiProfili(test::contenutoFile(byte, quanti), "prova.txt", true, letto);
    for (const auto& guasta : letto.guaste)
        test::pretendi(guasta.riga > 0 && !guasta.motivo.empty(), "a fault is told with its line");
    for (const auto& profilo : letto.profili) {
        test::pretendi(profiles::difetto(profilo).empty(), "what is read can be kept");
        const std::string riga = profiles::rigaProfilo(profilo);
        profiles::Catalogo riletto;
        profiles::leggiProfili(riga, "prova.txt", true, riletto);
        test::pretendi(riletto.guaste.empty() && riletto.profili.size() == 1,
                       "a written row is read");
        test::pretendi(profiles::rigaProfilo(riletto.profili.front()) == riga,
                       "and is the same profile");
        (void)profiles::misureMostrate(profilo);
        (void)profiles::trovato(profilo, profilo.nome);
    }
    return 0;
}
