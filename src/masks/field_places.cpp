#include "masks/field_places.hpp"

#include <algorithm>

#include "masks/edited_fields.hpp"
#include "masks/edited_section.hpp"
#include "project/field_table.hpp"

namespace korven::masks {

namespace {

using project::Campo;
using project::Parte;

std::optional<NumeroMaschera> mascheraDi(Parte parte) {
    switch (parte) {
        case Parte::titoli:
            return NumeroMaschera::titoli;
        case Parte::paratia:
            return NumeroMaschera::paratia;
        case Parte::strati:
            return NumeroMaschera::strati;
        case Parte::tiranti:
            return NumeroMaschera::tiranti;
        case Parte::fasi:
            return NumeroMaschera::fasi;
        default:
            return {};
    }
}

// The fields of the form are counted from 1; the flags of the types are its choice, before them.
PostoCampo nellaSezione(const Campo& campo) {
    PostoCampo trovato;
    if (const auto* valore = std::get_if<double project::Sezione::*>(&campo.membro))
        trovato.posto.campo = static_cast<int>(campoSezione(*valore)) + 1;
    else
        trovato.posto.campo = 0;
    return trovato;
}

// The number of a field in its form, from 1; 0 if the form does not show it.
int numero(NumeroMaschera maschera, const Campo& campo) {
    const auto mostrati = campiEditati(maschera);
    const auto trovato = std::find(mostrati.begin(), mostrati.end(), &campo);
    return trovato == mostrati.end() ? 0 : static_cast<int>(trovato - mostrati.begin()) + 1;
}

bool tabella(NumeroMaschera maschera) {
    return maschera == NumeroMaschera::strati || maschera == NumeroMaschera::tiranti ||
           maschera == NumeroMaschera::fasi;
}

}  // namespace

std::optional<PostoCampo> postoDelCampo(std::string_view nome) {
    const auto nominato = project::campoNominato(nome);
    if (!nominato) return {};
    const auto [campo, riga] = *nominato;
    const auto maschera = mascheraDi(campo->parte);
    if (!maschera) return nellaSezione(*campo);
    // The headings are a column of the project and fields of their form.
    if (*maschera == NumeroMaschera::titoli) return PostoCampo{*maschera, {1, riga}};
    const int mostrato = numero(*maschera, *campo);
    if (tabella(*maschera)) return PostoCampo{*maschera, {riga, std::max(mostrato, 1)}};
    if (mostrato == 0) return {};
    return PostoCampo{*maschera, {1, mostrato}};
}

}  // namespace korven::masks
