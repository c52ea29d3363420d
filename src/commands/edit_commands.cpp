#include "commands/edit_commands.hpp"

#include <algorithm>
#include <cassert>
#include <iterator>

#include "base/number_text.hpp"
#include "base/table.hpp"
#include "base/translated_texts.hpp"
#include "commands/fatal_error.hpp"
#include "masks/mask_editing.hpp"
#include "project/project_data.hpp"

namespace korven::commands {

namespace {

using masks::NumeroMaschera;
using project::Progetto;

// The two forms of the refusal differ in one word; they are keys of the table of texts.
constexpr const char* senzaI = "Non e' possibile editare dati prima di aver aperto un file.";
constexpr const char* conI = "Non e' possibile editare i dati prima di aver aperto un file.";

constexpr auto senzaMaschera = NumeroMaschera{0};  // the section form has none

struct Editore {
    Comando comando;
    const char* rifiuto;
    NumeroMaschera maschera;
};

constexpr Editore editori[] = {
    {Comando::editStratigrafia, conI, NumeroMaschera::strati},
    {Comando::editParatia, senzaI, NumeroMaschera::paratia},
    {Comando::editRigidezza, conI, senzaMaschera},
    {Comando::editTiranti, conI, NumeroMaschera::tiranti},
    {Comando::editFasi, conI, NumeroMaschera::fasi},
    {Comando::editTitoli, senzaI, NumeroMaschera::titoli},
};

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

void editaMaschera(NumeroMaschera numero, masks::Maschere& maschere, const FormeProgramma& forme) {
    masks::preparaMaschera(maschere, numero, Progetto, project::faseGrafico);
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

void edita(Comando comando, base::Dialogo& dialogo, masks::Maschere& maschere,
           const FormeProgramma& forme) {
    const auto* editore = std::find_if(std::begin(editori), std::end(editori),
                                       [comando](const auto& e) { return e.comando == comando; });
    assert(editore != std::end(editori));
    if (project::fileCorrente.empty())
        dialogo.messaggio(base::traduttore(editore->rifiuto), base::traduttore("ATTENZIONE") + "!",
                          base::Icona::nessuna);
    else if (editore->maschera == senzaMaschera)
        forme.sezione();
    else
        editaMaschera(editore->maschera, maschere, forme);
}

}  // namespace korven::commands
