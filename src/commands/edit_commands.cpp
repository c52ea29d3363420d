#include "commands/edit_commands.hpp"

#include <cassert>
#include <optional>

#include "base/number_text.hpp"
#include "base/table.hpp"
#include "base/translated_texts.hpp"
#include "commands/fatal_error.hpp"
#include "masks/editing.hpp"
#include "project/project_data.hpp"

namespace korven::commands {

namespace {

using masks::NumeroMaschera;
using project::Progetto;

// The form is gone by then, so the rows would be too.
[[noreturn]] void finisciPerTroppeRighe(NumeroMaschera numero, const masks::Maschere& maschere) {
    const auto righe = base::leggiNumero(maschere.valoriTesto().front()).value_or(0);
    throw ErroreRighe(static_cast<long>(righe), static_cast<std::size_t>(masks::capienza(numero)),
                      recuperaRighe(masks::testoRighe(maschere)));
}

bool troppeRighe(NumeroMaschera numero, const masks::Maschere& maschere) {
    return masks::capienza(numero) > 0 && !maschere.annullato() &&
           !maschere.valoriTesto().empty() &&
           base::leggiNumero(maschere.valoriTesto().front()).value_or(0) > masks::capienza(numero);
}

void editaMaschera(NumeroMaschera numero, masks::Maschere& maschere, const FormeProgramma& forme,
                   std::optional<masks::PostoForma> inizio = {}) {
    masks::preparaMaschera(maschere, numero, Progetto, project::faseGrafico);
    if (inizio) maschere.comincia(*inizio);
    try {
        forme.maschera(maschere);
        if (!maschere.annullato() &&
            masks::riprendiMaschera(maschere, numero, Progetto, project::faseGrafico))
            project::modificato = true;
    } catch (const base::ErroreIndice&) {
        if (!troppeRighe(numero, maschere)) throw;
        finisciPerTroppeRighe(numero, maschere);
    }
    maschere.rilasciaForm();
}

}  // namespace

void edita(NumeroMaschera numero, const char* rifiuto, base::Dialogo& dialogo,
           masks::Maschere& maschere, const FormeProgramma& forme) {
    assert(numero == masks::senzaMaschera ? bool(forme.sezione) : bool(forme.maschera));
    if (project::fileCorrente.empty())
        dialogo.messaggio(base::traduttore(rifiuto), base::traduttore("ATTENZIONE") + "!",
                          base::Icona::nessuna);
    else if (numero == masks::senzaMaschera)
        forme.sezione();
    else
        editaMaschera(numero, maschere, forme);
}

void editaDa(const masks::PostoCampo& posto, masks::Maschere& maschere,
             const FormeProgramma& forme) {
    assert(!project::fileCorrente.empty());
    if (posto.maschera != masks::senzaMaschera)
        editaMaschera(posto.maschera, maschere, forme, posto.posto);
    else if (posto.posto.campo > 0)
        forme.sezioneDa(static_cast<std::size_t>(posto.posto.campo - 1));
    else
        forme.sezione();
}

}  // namespace korven::commands
