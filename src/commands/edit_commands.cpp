#include "commands/edit_commands.hpp"

#include <algorithm>
#include <cassert>
#include <iterator>

#include "base/translated_texts.hpp"
#include "commands/edited_values.hpp"
#include "project/edited_tables.hpp"
#include "project/project_data.hpp"

namespace korven::commands {

namespace {

using project::DatiProgetto;
using project::Progetto;
using Testi = FormeProgramma::Testi;

// The two forms of the refusal differ in one word; they are keys of the table of texts.
constexpr const char* senzaI = "Non e' possibile editare dati prima di aver aperto un file.";
constexpr const char* conI = "Non e' possibile editare i dati prima di aver aperto un file.";

Testi titoli(const DatiProgetto& dati) { return testiTitoli(dati, project::faseGrafico); }

bool riprendiTitoliEFase(DatiProgetto& dati, const Testi& testi) {
    project::faseGrafico = faseDaTitoli(testi);
    return project::riprendiTitoli(dati, testi);
}

struct Editore {
    Comando comando;
    const char* rifiuto;
    int maschera;  // 0: the section form, which has none
    Testi (*mostra)(const DatiProgetto&);
    bool (*riprendi)(DatiProgetto&, const Testi&);
};

constexpr Editore editori[] = {
    {Comando::editStratigrafia, conI, mascheraStrati, testiStrati, project::riprendiStrati},
    {Comando::editParatia, senzaI, mascheraParatia, testiParatia, project::riprendiParatia},
    {Comando::editRigidezza, conI, 0, nullptr, nullptr},
    {Comando::editTiranti, conI, mascheraTiranti, testiTiranti, project::riprendiTiranti},
    {Comando::editFasi, conI, mascheraFasi, testiFasi, project::riprendiFasi},
    {Comando::editTitoli, senzaI, mascheraTitoli, titoli, riprendiTitoliEFase},
};

void editaMaschera(const Editore& editore, const FormeProgramma& forme) {
    const auto confermati = forme.maschera(editore.maschera, editore.mostra(Progetto));
    if (confermati && editore.riprendi(Progetto, *confermati)) project::modificato = true;
}

}  // namespace

void edita(Comando comando, base::Dialogo& dialogo, const FormeProgramma& forme) {
    const auto* editore = std::find_if(std::begin(editori), std::end(editori),
                                       [comando](const auto& e) { return e.comando == comando; });
    assert(editore != std::end(editori));
    if (project::fileCorrente.empty())
        dialogo.messaggio(base::traduttore(editore->rifiuto), base::traduttore("ATTENZIONE") + "!",
                          base::Icona::nessuna);
    else if (editore->maschera == 0)
        forme.sezione();
    else
        editaMaschera(*editore, forme);
}

}  // namespace korven::commands
