#include "live/working_values.hpp"

#include <algorithm>
#include <vector>

#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "masks/editing.hpp"
#include "masks/field_check.hpp"
#include "masks/field_model.hpp"
#include "masks/field_type.hpp"
#include "masks/needed_cells.hpp"

namespace korven::live {

namespace {

using base::riempito;
using base::traduttore;
using masks::CampoMaschera;
using masks::Maschera;
using masks::Vizio;

bool vuoto(const std::string& testo) { return testo.find_first_not_of(' ') == std::string::npos; }

std::string nonAmmesso(const std::string& dove) {
    return riempito(traduttore("%1: valore non ammesso"), {dove});
}

bool numerica(const CampoMaschera& colonna) { return !masks::tipoColonna(colonna.tipo).testo; }

// The columns whose numbers a row needs.
std::vector<std::size_t> necessarie(const Maschera& maschera, masks::NumeroMaschera numero,
                                    const project::DatiProgetto& dati) {
    std::vector<std::size_t> quali;
    for (std::size_t c = 1; c < maschera.campi.size(); ++c)
        if (numerica(maschera.campi[c]) &&
            masks::cellaNecessaria(numero, static_cast<int>(c), dati))
            quali.push_back(c);
    return quali;
}

bool haVuote(const std::vector<std::size_t>& necessarie, const std::string* celle) {
    return std::any_of(necessarie.begin(), necessarie.end(),
                       [celle](std::size_t c) { return vuoto(celle[c - 1]); });
}

// A row that is typed from left to right is complete when the last number that it needs is there,
// or one behind it. Where cells may stay empty those before it read as 0; else each of them has to
// be there.
bool incompleta(const Maschera& maschera, const std::vector<std::size_t>& necessarie,
                const std::string* celle) {
    const auto manca = [celle](std::size_t c) { return vuoto(celle[c - 1]); };
    if (maschera.genere != masks::GenereMaschera::grigliaLibera) return haVuote(necessarie, celle);
    for (std::size_t c = necessarie.empty() ? 1 : necessarie.back(); c < maschera.campi.size(); ++c)
        if (numerica(maschera.campi[c]) && !manca(c)) return false;
    return !necessarie.empty();
}

// Which cell of a row of a table holds what it doesn't take; empty for a good row.
std::string celleNonAmmesse(const Maschera& maschera, const std::string* celle, int riga) {
    for (std::size_t c = 1; c < maschera.campi.size(); ++c) {
        const CampoMaschera& colonna = maschera.campi[c];
        const std::string& testo = celle[c - 1];
        if (masks::controllaCella(colonna, testo) != Vizio::nessuno)
            return nonAmmesso(
                riempito(traduttore("riga %1, %2"), {std::to_string(riga), colonna.etichetta}));
    }
    return {};
}

std::string impedimentoTabella(const project::DatiProgetto& dati, const Maschera& maschera,
                               const ValoriForma& valori) {
    const std::size_t colonne = maschera.campi.size() - 1;
    const std::size_t righe = (valori.testi.size() - 1) / colonne;
    if (static_cast<int>(righe) > masks::capienza(valori.maschera))
        return riempito(traduttore("%1 righe, la tabella ne tiene %2"),
                        {std::to_string(righe), std::to_string(masks::capienza(valori.maschera))});
    const auto quali = necessarie(maschera, valori.maschera, dati);
    // The first row with an empty cell is told, as the form does, though a later one stops it.
    int primaVuota = 0;
    for (std::size_t r = 0; r < righe; ++r) {
        const int riga = static_cast<int>(r) + 1;
        const std::string* celle = &valori.testi[1 + r * colonne];
        if (auto perche = celleNonAmmesse(maschera, celle, riga); !perche.empty()) return perche;
        if (primaVuota == 0 && haVuote(quali, celle)) primaVuota = riga;
        if (incompleta(maschera, quali, celle))
            return riempito(traduttore("riga %1: dati incompleti"),
                            {std::to_string(primaVuota == 0 ? riga : primaVuota)});
    }
    return {};
}

std::string impedimentoCampi(const Maschera& maschera, const ValoriForma& valori) {
    const masks::ModelloCampi modello(maschera, valori.combo, valori.testi);
    for (std::size_t i = maschera.scelte.size(); i < maschera.campi.size(); ++i) {
        const CampoMaschera& campo = maschera.campi[i];
        if (masks::controllaCampo(campo, modello.testo(i)) != Vizio::nessuno)
            return nonAmmesso(modello.titoloMessaggio(i));
    }
    return {};
}

}  // namespace

ProgettoInCorso conValori(const project::DatiProgetto& dati, const Maschera& maschera,
                          const ValoriForma& valori) {
    const bool tabella = masks::capienza(valori.maschera) > 0;
    auto perche =
        tabella ? impedimentoTabella(dati, maschera, valori) : impedimentoCampi(maschera, valori);
    if (!perche.empty()) return {{}, std::move(perche)};
    std::vector<std::string> testi;
    for (const double scelta : valori.combo) testi.push_back(masks::testoScelta(scelta));
    testi.insert(testi.end(), valori.testi.begin(), valori.testi.end());
    ProgettoInCorso inCorso{dati, {}};
    masks::riprendi(valori.maschera, testi, *inCorso.dati);
    return inCorso;
}

}  // namespace korven::live
