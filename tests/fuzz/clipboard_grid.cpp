#include <array>

#include "fuzz_target.hpp"
#include "masks/clipboard_text.hpp"
#include "masks/grid_model.hpp"
#include "support/mask_setup.hpp"

// Any bytes as the text of a clipboard that is pasted into a table. What the table then holds is
// within the limits of its columns, and comes back the same after it was copied and pasted again.

namespace {

using namespace korven;

class SempreSi : public base::Dialogo {
 public:
    void messaggio(std::string_view, std::string_view, base::Icona) override {}
    base::Risposta domanda(std::string_view, std::string_view, base::Pulsanti,
                           base::Icona) override {
        return base::Risposta::si;
    }
    void puntatore(base::Puntatore) override {}
};

}  // namespace

extern "C" int KORVEN_FUZZ_ENTRY(const std::uint8_t* byte, std::size_t quanti) {
    static const masks::Maschera maschera = test::mascheraGriglia();
    const std::string testo = test::contenutoFile(byte, quanti);
    (void)masks::anteprimaAppunti(testo);
    SempreSi utente;
    masks::ModelloGriglia griglia(maschera, {});
    griglia.incolla(testo, utente);
    for (int riga = 1; riga <= 3; ++riga)
        for (int colonna = 1; colonna <= griglia.colonne(); ++colonna)
            test::pretendi(
                masks::controllaCella(maschera.campi[static_cast<std::size_t>(colonna)],
                                      griglia.testo({riga, colonna})) == masks::Vizio::nessuno,
                "a pasted cell is one that may be typed");
    masks::ModelloGriglia altra(maschera, {});
    const std::string copiata = griglia.copia();
    altra.incolla(copiata, utente);
    test::pretendi(altra.copia() == copiata, "a copied table is pasted as it was");
    return 0;
}
