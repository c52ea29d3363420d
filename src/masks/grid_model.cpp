#include "masks/grid_model.hpp"

#include <algorithm>

#include "base/code_page.hpp"
#include "base/colon.hpp"
#include "base/number_reading.hpp"
#include "base/number_text.hpp"
#include "base/table.hpp"
#include "base/translated_texts.hpp"
#include "masks/column_keys.hpp"
#include "masks/field_type.hpp"

namespace korven::masks {

AzioneGriglia azionePulsante(const Maschera& maschera, std::size_t indice) {
    constexpr AzioneGriglia prime[] = {AzioneGriglia::conferma, AzioneGriglia::annulla,
                                       AzioneGriglia::inserisciRiga, AzioneGriglia::eliminaRiga};
    const std::size_t note = maschera.genere == GenereMaschera::grigliaFissa ? 2 : 4;
    return indice < note ? prime[indice] : AzioneGriglia::guida;
}

ModelloGriglia::ModelloGriglia(const Maschera& maschera, const std::vector<std::string>& testi,
                               int capienza)
    : maschera_(maschera),
      titolo_(maschera.titolo),
      capienza_(capienza),
      celle_(maschera.nCampi() - 1),
      iniziali_(celle_) {
    if (testi.empty()) return;
    const auto barra = testi[0].find('|');
    if (barra != std::string::npos) titolo_ = testi[0].substr(barra + 1);
    const double scritte = base::leggiNumero(testi[0].substr(0, barra)).value_or(0);
    if (scritte > CelleGriglia::righe)
        throw base::ErroreIndice(CelleGriglia::righe + 1, CelleGriglia::righe);
    std::size_t prossimo = 1;
    for (int r = 1; r <= static_cast<int>(scritte); ++r)
        for (int c = 1; c <= colonne() && prossimo < testi.size(); ++c)
            celle_.scrivi(r, c, base::senzaSpaziEsterni(testi[prossimo++]));
    iniziali_ = celle_;
    entra({1, 1});
}

std::string ModelloGriglia::righeDiTroppo() const {
    const int righe = celle_.righeConDati();
    if (righe <= capienza_) return {};
    return base::traduttore("righe scritte") + base::duePunti() + std::to_string(righe) + ", " +
           base::traduttore("capienza della tabella") + base::duePunti() +
           std::to_string(capienza_);
}

std::string ModelloGriglia::titolo() const {
    const std::string troppe = righeDiTroppo();
    return troppe.empty() ? titolo_ : titolo_ + " - " + troppe;
}

std::string ModelloGriglia::eccesso() const {
    const std::string troppe = righeDiTroppo();
    if (troppe.empty()) return {};
    return troppe + ". " +
           base::traduttore(
               "Eliminate le righe di troppo: con la conferma il programma le scrive "
               "in un file di testo e viene chiuso.");
}

const CampoMaschera& ModelloGriglia::colonna(int numero) const {
    return maschera_.campi.at(static_cast<std::size_t>(numero));
}

const std::string& ModelloGriglia::etichetta(int numero) const { return colonna(numero).etichetta; }

std::array<std::string, 2> ModelloGriglia::campioniLarghezza(int numero) const {
    const std::string cifre(base::numeroCaratteri(colonna(numero).tipo), '8');
    return {' ' + etichetta(numero) + ' ', ' ' + cifre + ' '};
}

bool ModelloGriglia::numerica(int numero) const { return !tipoColonna(colonna(numero).tipo).testo; }

bool ModelloGriglia::soloLettura(int numero) const { return colonna(numero).soloLettura; }

const std::string& ModelloGriglia::testo(PostoGriglia posto) const {
    return celle_.testo(posto.riga, posto.colonna);
}

void ModelloGriglia::scriviCella(std::string_view testo) {
    if (soloLettura(corrente_.colonna)) return;
    std::string prima = cella();
    mettiCella(corrente_, testo);
    storia_.scritto(passoCella(corrente_), corrente_, std::move(prima), cella());
}

void ModelloGriglia::entra(PostoGriglia posto) {
    storia_.chiudi();
    corrente_ = posto;
    comeAppenaEntrato();
}

void ModelloGriglia::comeAppenaEntrato() {
    allIngresso_ = cella();
    primoCarattere_ = true;
    testoScelto_ = false;
}

void ModelloGriglia::comincia(PostoGriglia posto) {
    entra(
        {std::clamp(posto.riga, 1, CelleGriglia::righe), std::clamp(posto.colonna, 1, colonne())});
}

bool ModelloGriglia::validazionedati(base::Dialogo& dialogo) {
    const CampoMaschera& campo = colonna(corrente_.colonna);
    if (campo.soloLettura) return true;  // a fault that can't be mended here would hold the user
    const Vizio vizio = controllaCella(campo, cella());
    if (vizio == Vizio::nessuno) return true;
    segnala(vizio, campo, campo.etichetta, "\r\n", dialogo);
    if (vizio == Vizio::lunghezza)
        scriviCella(tagliato(cella(), tipoColonna(campo.tipo).lunghezza));
    // The cursor is put back on the cell as if it had just been entered, but for what Esc restores.
    primoCarattere_ = true;
    testoScelto_ = true;
    return false;
}

bool ModelloGriglia::vaiA(PostoGriglia posto, base::Dialogo& dialogo) {
    if (posto == corrente_) return true;
    if (posto.riga < 1 || posto.riga > CelleGriglia::righe || posto.colonna < 1 ||
        posto.colonna > colonne())
        return false;
    chiudiEditore(true);
    if (!validazionedati(dialogo)) return false;
    entra(posto);
    return true;
}

void ModelloGriglia::avanza(base::Dialogo& dialogo) {
    chiudiEditore(true);
    const bool ultima = corrente_.colonna == colonne();
    const PostoGriglia prossimo = ultima ? PostoGriglia{corrente_.riga + 1, 1}
                                         : PostoGriglia{corrente_.riga, corrente_.colonna + 1};
    if (prossimo.riga > CelleGriglia::righe)
        validazionedati(dialogo);
    else
        vaiA(prossimo, dialogo);
}

void ModelloGriglia::arretra(base::Dialogo& dialogo) {
    vaiA(corrente_.colonna > 1 ? PostoGriglia{corrente_.riga, corrente_.colonna - 1}
                               : PostoGriglia{corrente_.riga - 1, colonne()},
         dialogo);
}

PostoGriglia ModelloGriglia::fine() const {
    const int ultima = celle_.ultimaRiga();
    return ultima == 0 ? PostoGriglia{} : PostoGriglia{ultima, colonne()};
}

void ModelloGriglia::batti(std::string_view carattere, bool sostituisce) {
    scriviCella(sostituisce && primoCarattere_ ? std::string(carattere)
                                               : cella() + std::string(carattere));
    primoCarattere_ = false;
    testoScelto_ = false;
}

void ModelloGriglia::togliUltimo() {
    const std::size_t caratteri = base::numeroCaratteri(cella());
    if (caratteri > 0) scriviCella(tagliato(cella(), caratteri - 1));
    primoCarattere_ = false;
    testoScelto_ = false;
}

void ModelloGriglia::premi(Tasto tasto, std::string_view carattere, base::Dialogo& dialogo) {
    if (editoreAperto_) {
        if (tasto == Tasto::invio || tasto == Tasto::esc) chiudiEditore(tasto == Tasto::invio);
        return;
    }
    const auto [riga, colonnaCorrente] = corrente_;
    switch (tasto) {
        case Tasto::carattere:
            return batti(carattere, true);
        // "." and Delete arrive with the same character code, which never replaces a cell; the key
        // that was pressed tells the two apart.
        case Tasto::punto:
            return batti(".", false);
        case Tasto::canc:
        case Tasto::backspace:
            return togliUltimo();
        case Tasto::esc:
            scriviCella(allIngresso_);
            primoCarattere_ = true;
            testoScelto_ = false;
            return;
        case Tasto::invio:
            return avanza(dialogo);
        case Tasto::f2:
            return apriEditore();
        case Tasto::su:
            vaiA({riga - 1, colonnaCorrente}, dialogo);
            return;
        case Tasto::giu:
            vaiA({riga + 1, colonnaCorrente}, dialogo);
            return;
        case Tasto::sinistra:
            vaiA({riga, colonnaCorrente - 1}, dialogo);
            return;
        case Tasto::destra:
            vaiA({riga, colonnaCorrente + 1}, dialogo);
            return;
        case Tasto::f1:
            return;
    }
}

void ModelloGriglia::apriEditore() {
    if (editoreAperto_ || soloLettura(corrente_.colonna)) return;
    editoreAperto_ = true;
    testoScelto_ = false;
    storia_.taci();
    testoEditore_ = cella();
}

void ModelloGriglia::chiudiEditore(bool scrivi) {
    if (!editoreAperto_) return;
    editoreAperto_ = false;
    if (scrivi) scriviCella(testoEditore_);
    primoCarattere_ = true;
}

std::string ModelloGriglia::lettura() const {
    if (!numerica(corrente_.colonna)) return {};
    return base::letturaMostrata(editoreAperto_ ? testoEditore_ : cella());
}

std::string ModelloGriglia::aiuto() const {
    return aiutoMostrato(colonna(corrente_.colonna).aiuto);
}

void ModelloGriglia::mostraAiuto(base::Dialogo& dialogo) const {
    dialogo.messaggio(aiuto(), etichetta(corrente_.colonna), base::Icona::informazione);
}

bool ModelloGriglia::scrivi(PostoGriglia posto, std::string_view testo, base::Dialogo& dialogo) {
    if (!vaiA(posto, dialogo) || soloLettura(posto.colonna)) return false;
    const CampoMaschera& campo = colonna(posto.colonna);
    const Vizio vizio = controllaCella(campo, testo);
    if (vizio != Vizio::nessuno) {
        segnala(vizio, campo, campo.etichetta, "\r\n", dialogo);
        return false;
    }
    chiudiEditore(false);
    storia_.chiudi();
    scriviCella(testo);
    entra(posto);
    return true;
}

void ModelloGriglia::inserisciRiga(base::Dialogo& dialogo) {
    chiudiEditore(true);
    if (!validazionedati(dialogo)) return;
    const CelleGriglia prima = celle_;
    if (!celle_.inserisci(corrente_.riga)) return;
    entra(corrente_);
    passoRiga("riga %1 inserita", prima);
}

void ModelloGriglia::eliminaRiga() {
    chiudiEditore(false);
    const CelleGriglia prima = celle_;
    if (!celle_.elimina(corrente_.riga)) return;
    entra(corrente_);
    passoRiga("riga %1 eliminata", prima);
}

std::vector<std::string> ModelloGriglia::valoriDigitati() const {
    if (!editoreAperto_) return valoriTesto();
    CelleGriglia celle = celle_;
    celle.scrivi(corrente_.riga, corrente_.colonna, testoEditore_);
    return celle.impacchettate();
}

bool ModelloGriglia::cambiata() const {
    return celle_ != iniziali_ || (editoreAperto_ && testoEditore_ != cella());
}

bool ModelloGriglia::siPuoLasciare(base::Dialogo& dialogo) const {
    if (!cambiata()) return true;
    return dialogo.domanda(base::traduttore("Le righe sono state modificate. Volete chiudere la "
                                            "tabella senza conservare le modifiche") +
                               "?",
                           base::traduttore("ATTENZIONE") + "!", base::Pulsanti::siNo,
                           base::Icona::avviso) == base::Risposta::si;
}

bool ModelloGriglia::conferma(base::Dialogo& dialogo) {
    chiudiEditore(true);
    if (!validazionedati(dialogo)) return false;
    if (maschera_.genere == GenereMaschera::grigliaLibera) return true;
    const int ultima = celle_.ultimaRiga();
    for (int r = 1; r <= ultima; ++r) {
        if (!celle_.haVuoti(r)) continue;
        const auto risposta = dialogo.domanda(
            base::traduttore("Alcune righe di dati non sono state completate: volete controllare i "
                             "dati inseriti") +
                "?",
            base::traduttore("ATTENZIONE") + "!", base::Pulsanti::siNo, base::Icona::domanda);
        return risposta == base::Risposta::no;
    }
    return true;
}

}  // namespace korven::masks
