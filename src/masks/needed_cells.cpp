#include "masks/needed_cells.hpp"

#include "masks/edited_fields.hpp"
#include "project/codes.hpp"
#include "project/field_table.hpp"

namespace korven::masks {

namespace {

using project::DatiProgetto;

bool serveKs(const DatiProgetto& dati) { return dati.metodoKs >= project::MetodoKs::costante; }

}  // namespace

bool cellaNecessaria(NumeroMaschera numero, int colonna, const DatiProgetto& dati) {
    const auto campi = campiEditati(numero);
    const project::Campo& campo = *campi.at(static_cast<std::size_t>(colonna) - 1);
    if (numero != NumeroMaschera::strati) return true;
    if (campo.membro == project::Membro(&DatiProgetto::descrStrato)) return false;
    return serveKs(dati) || campo.membro != project::Membro(&DatiProgetto::ksStrato);
}

}  // namespace korven::masks
