#include "masks/field_model.hpp"

#include <algorithm>
#include <cassert>
#include <cmath>

#include "base/code_page.hpp"
#include "base/number_reading.hpp"
#include "masks/field_type.hpp"

namespace korven::masks {

namespace {

constexpr std::size_t lunghezzaDidascalia = 120;
constexpr std::size_t casellaPiuCorta = 12;  // room for a number

}  // namespace

ModelloCampi::ModelloCampi(const Maschera& maschera, std::vector<double> combo,
                           std::vector<std::string> testi)
    : maschera_(maschera), combo_(std::move(combo)), testi_(std::move(testi)) {
    combo_.resize(maschera.scelte.size());
    testi_.resize(static_cast<std::size_t>(maschera.nCampi()));
    while (attivo_ + 1 < campi() && !prendeFuoco(attivo_)) ++attivo_;
}

void ModelloCampi::comincia(std::size_t campo) {
    if (campo < campi() && prendeFuoco(campo)) attivo_ = campo;
}

bool ModelloCampi::soloLettura(std::size_t campo) const {
    return maschera_.campi.at(campo).soloLettura;
}

std::string ModelloCampi::didascalia(std::size_t campo) const {
    std::string testo = maschera_.campi.at(campo).etichetta + ' ';
    const std::size_t lunghezza = base::numeroCaratteri(testo);
    if (lunghezza < lunghezzaDidascalia) testo.append(lunghezzaDidascalia - lunghezza, '.');
    return testo;
}

std::string ModelloCampi::titoloMessaggio(std::size_t campo) const {
    std::string titolo = didascalia(campo);
    titolo.erase(titolo.find_last_not_of('.') + 1);
    titolo.erase(titolo.find_last_not_of(' ') + 1);
    return titolo;
}

std::size_t ModelloCampi::lunghezzaMassima(std::size_t campo) const {
    const TipoCampo tipo = tipoCampo(maschera_.campi.at(campo).tipo);
    return tipo.illimitato ? 0 : tipo.lunghezza;
}

std::size_t ModelloCampi::larghezzaCaselle() const {
    std::size_t larghezza = casellaPiuCorta;
    for (std::size_t i = combo_.size(); i < campi(); ++i)
        larghezza = std::max(
            {larghezza, lunghezzaMassima(i), base::numeroCaratteri(maschera_.campi[i].tipo)});
    return larghezza;
}

bool ModelloCampi::numerica(std::size_t campo) const {
    const TipoCampo tipo = tipoCampo(maschera_.campi.at(campo).tipo);
    return !scelta(campo) && (tipo.numero || tipo.figura);
}

const std::vector<std::string>& ModelloCampi::voci(std::size_t campo) const {
    return maschera_.scelte.at(campo);
}

std::size_t ModelloCampi::voceMostrata(std::size_t campo) const {
    const auto ultima = static_cast<double>(voci(campo).size() - 1);
    return static_cast<std::size_t>(std::clamp(std::floor(combo_.at(campo)), 0.0, ultima));
}

void ModelloCampi::scegli(std::size_t campo, std::size_t voce) {
    assert(voce < voci(campo).size());
    if (!soloLettura(campo) && voce != voceMostrata(campo))
        cambia(campo, static_cast<double>(voce));
}

const std::string& ModelloCampi::testo(std::size_t campo) const { return testi_.at(posto(campo)); }

void ModelloCampi::scrivi(std::size_t campo, std::string_view testo) {
    if (soloLettura(campo)) return;
    cambia(campo,
           base::comeNeiFile(conDecimaliAmmessi(testo, tipoCampo(maschera_.campi[campo].tipo))));
}

ModelloCampi::Valore ModelloCampi::valore(std::size_t campo) const {
    if (scelta(campo)) return combo_[campo];
    return testo(campo);
}

void ModelloCampi::metti(std::size_t campo, const Valore& valore) {
    if (scelta(campo))
        combo_[campo] = std::get<double>(valore);
    else
        testi_.at(posto(campo)) = std::get<std::string>(valore);
}

void ModelloCampi::cambia(std::size_t campo, const Valore& dopo) {
    Valore prima = valore(campo);
    metti(campo, dopo);
    storia_.scritto(passoCampo(maschera_.campi[campo].etichetta), campo, std::move(prima), dopo);
}

bool ModelloCampi::annulla() {
    return torna(
        storia_.annulla([this](std::size_t campo, const Valore& prima) { metti(campo, prima); }));
}

bool ModelloCampi::ripeti() {
    return torna(
        storia_.ripeti([this](std::size_t campo, const Valore& dopo) { metti(campo, dopo); }));
}

bool ModelloCampi::torna(std::optional<std::size_t> campo) {
    if (campo) attivo_ = *campo;
    return campo.has_value();
}

// A read-only text is locked, yet its text can be read and copied; a read-only choice is disabled.
bool ModelloCampi::prendeFuoco(std::size_t campo) const {
    return !(scelta(campo) && soloLettura(campo));
}

bool ModelloCampi::lascia(base::Dialogo& dialogo) {
    // A fault that can't be mended here would hold the user for good.
    if (scelta(attivo_) || soloLettura(attivo_)) return true;
    const CampoMaschera& campo = maschera_.campi[attivo_];
    const std::string& testo = testi_[posto(attivo_)];
    const Vizio vizio = controllaCampo(campo, testo);
    if (vizio == Vizio::nessuno) return true;
    segnala(vizio, campo, titoloMessaggio(attivo_), "\r", dialogo);
    if (vizio == Vizio::lunghezza)
        cambia(attivo_, tagliato(testo, tipoCampo(campo.tipo).lunghezza));
    return false;
}

bool ModelloCampi::passaA(std::size_t campo, base::Dialogo& dialogo) {
    if (campo == attivo_) return true;
    if (campo >= campi() || !prendeFuoco(campo) || !lascia(dialogo)) return false;
    storia_.chiudi();
    attivo_ = campo;
    return true;
}

bool ModelloCampi::premi(Tasto tasto, base::Dialogo& dialogo) {
    const bool avanti = tasto == Tasto::giu || tasto == Tasto::invio;
    if (!avanti && tasto != Tasto::su) return false;
    std::size_t nuovo = attivo_;
    do {
        if (avanti ? nuovo + 1 >= campi() : nuovo == 0) return false;
        nuovo = avanti ? nuovo + 1 : nuovo - 1;
    } while (!prendeFuoco(nuovo));
    return passaA(nuovo, dialogo);
}

std::string ModelloCampi::lettura() const {
    if (scelta(attivo_)) return {};
    if (numerica(attivo_)) return base::letturaMostrata(testo(attivo_));
    return nota_ ? nota_(posto(attivo_), testi_) : std::string();
}

const std::string& ModelloCampi::aiuto() const { return maschera_.campi[attivo_].aiuto; }

void ModelloCampi::mostraAiuto(base::Dialogo& dialogo) const {
    dialogo.messaggio(aiuto(), titoloMessaggio(attivo_), base::Icona::informazione);
}

void mostraRiferimento(const Maschera& maschera, base::Dialogo& dialogo) {
    dialogo.messaggio(maschera.riferimento, maschera.titolo, base::Icona::informazione);
}

}  // namespace korven::masks
