#include "commands/edit_commands.hpp"

#include <algorithm>
#include <cassert>
#include <iterator>

#include "base/translated_texts.hpp"
#include "project/mask_editing.hpp"
#include "project/project_data.hpp"

namespace korven::commands {

namespace {

using project::NumeroMaschera;
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

void editaMaschera(NumeroMaschera numero, project::Maschere& maschere,
                   const FormeProgramma& forme) {
    project::preparaMaschera(maschere, numero, Progetto, project::faseGrafico);
    forme.maschera(maschere);
    if (!maschere.annullato() &&
        project::riprendiMaschera(maschere, numero, Progetto, project::faseGrafico))
        project::modificato = true;
    maschere.rilasciaForm();
}

}  // namespace

void edita(Comando comando, base::Dialogo& dialogo, project::Maschere& maschere,
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
