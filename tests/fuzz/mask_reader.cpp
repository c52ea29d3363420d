#include "base/file_error.hpp"
#include "fuzz_target.hpp"
#include "masks/field_check.hpp"
#include "masks/field_type.hpp"
#include "masks/reader.hpp"

// Any bytes as a mask. What can be read keeps within the limits of a form, and its fields take a
// text apart without failing.

extern "C" int KORVEN_FUZZ_ENTRY(const std::uint8_t* byte, std::size_t quanti) {
    using namespace korven;
    masks::Maschera letta;
    try {
        base::LettoreRighe file("PROVA.MAV", test::contenutoFile(byte, quanti));
        letta = masks::leggiMaschera(file);
    } catch (const base::ErroreFile&) {
        return 0;
    }
    test::pretendi(!letta.campi.empty() && letta.campi.size() <= masks::massimoCampi,
                   "a mask has fields, and no more than a form shows");
    test::pretendi(letta.nCampi() >= 0, "no more choices than fields");
    test::pretendi(letta.pulsanti.size() >= 2, "a form can be confirmed and left");
    const int voce = masks::voceGuida(letta);
    test::pretendi(voce >= 0 && voce <= 200 && letta.contesto >= 0 && letta.contesto <= 200,
                   "the help has such an entry");
    for (const auto& campo : letta.campi) {
        test::pretendi(campo.minimo <= campo.massimo, "limits are in order");
        for (const auto& testo : {campo.etichetta, campo.aiuto, std::string("-1.5e3")}) {
            (void)masks::controllaCampo(campo, testo);
            (void)masks::controllaCella(campo, testo);
            (void)masks::conDecimaliAmmessi(testo, masks::tipoCampo(campo.tipo));
        }
        (void)masks::tipoColonna(campo.tipo);
    }
    return 0;
}
