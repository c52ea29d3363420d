#include "masks/edited_fields.hpp"

#include <algorithm>
#include <iterator>

namespace korven::masks {

namespace {

using project::Campo;
using project::DatiProgetto;
using project::Membro;

// The axial force is the last value of the file but comes among the loads here; the reserved option
// and the working value of the downhill water are not shown.
constexpr Membro dellaParatia[] = {
    &DatiProgetto::vincoloTesta,   &DatiProgetto::vincoloPiede,
    &DatiProgetto::modoSpinte,     &DatiProgetto::modoKs,
    &DatiProgetto::modoTensioni,   &DatiProgetto::metodoSpinte,
    &DatiProgetto::metodoKs,       &DatiProgetto::lunghezzaParatia,
    &DatiProgetto::rigidezzaEJ,    &DatiProgetto::coeffM,
    &DatiProgetto::pressioneOrizz, &DatiProgetto::sovraccMonte,
    &DatiProgetto::momentoTesta,   &DatiProgetto::forzaTesta,
    &DatiProgetto::sforzoNormale,  &DatiProgetto::inclinazioneMonte,
    &DatiProgetto::faldaMonte,     &DatiProgetto::gammaAcqua,
};

// No editor shows the undrained strength; it comes with a file alone.
constexpr Membro senzaColonna = &DatiProgetto::suStrato;

std::vector<const Campo*> colonne(project::Parte parte) {
    std::vector<const Campo*> trovate;
    for (const Campo& campo : project::campi())
        if (campo.parte == parte && project::colonna(campo) && campo.membro != senzaColonna)
            trovate.push_back(&campo);
    return trovate;
}

std::vector<const Campo*> paratia() {
    std::vector<const Campo*> trovati;
    std::transform(std::begin(dellaParatia), std::end(dellaParatia), std::back_inserter(trovati),
                   [](const Membro& membro) { return &project::campo(membro); });
    return trovati;
}

}  // namespace

std::vector<const Campo*> campiEditati(NumeroMaschera numero) {
    switch (numero) {
        case NumeroMaschera::titoli:
            return colonne(project::Parte::titoli);
        case NumeroMaschera::paratia:
            return paratia();
        case NumeroMaschera::strati:
            return colonne(project::Parte::strati);
        case NumeroMaschera::tiranti:
            return colonne(project::Parte::tiranti);
        case NumeroMaschera::fasi:
            break;
    }
    return colonne(project::Parte::fasi);
}

}  // namespace korven::masks
