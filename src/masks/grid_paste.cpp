#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "base/decimal_commas.hpp"
#include "base/translated_texts.hpp"
#include "masks/clipboard_text.hpp"
#include "masks/grid_model.hpp"

namespace korven::masks {

namespace {

bool chiede(std::string_view domanda, std::string_view seguito, base::Dialogo& dialogo) {
    return dialogo.domanda(base::traduttore(domanda) + "?" + std::string(seguito),
                           base::traduttore("ATTENZIONE") + "!", base::Pulsanti::siNo,
                           base::Icona::domanda) == base::Risposta::si;
}

void troppeRighe(base::Dialogo& dialogo) {
    dialogo.messaggio(base::traduttore("Non è possibile inserire un numero di righe superiore a") +
                          ' ' + std::to_string(CelleGriglia::righe),
                      base::traduttore("ATTENZIONE") + "!", base::Icona::avviso);
}

using Righe = std::vector<std::vector<std::string>>;

// The values that go to a column of numbers from the current cell on and have a decimal comma.
std::vector<std::string*> conVirgola(Righe& righe, const ModelloGriglia& griglia) {
    std::vector<std::string*> trovati;
    for (auto& riga : righe) {
        int c = griglia.corrente().colonna;
        for (auto valore = riga.begin(); valore != riga.end() && c <= griglia.colonne();
             ++valore, ++c)
            if (griglia.numerica(c) && !griglia.soloLettura(c) && base::conIlPunto(*valore))
                trovati.push_back(&*valore);
    }
    return trovati;
}

// Offers to take decimal commas as points: on no they stay as they are, and their cells empty.
// Returns false where the paste is called off.
bool leggiVirgole(Righe& righe, const ModelloGriglia& griglia, base::Dialogo& dialogo) {
    const auto trovati = conVirgola(righe, griglia);
    if (trovati.empty()) return true;
    const std::string domanda =
        base::traduttore("Alcuni numeri hanno la virgola decimale, per esempio") + ' ' +
        *trovati.front() + ".\r\n" + base::traduttore("Volete leggere la virgola come punto") +
        "?\r\n" + base::traduttore("Con No le loro celle restano vuote.");
    const auto risposta = dialogo.domanda(domanda, base::traduttore("ATTENZIONE") + "!",
                                          base::Pulsanti::siNoAnnulla, base::Icona::domanda);
    if (risposta == base::Risposta::si)
        for (auto* valore : trovati) *valore = *base::conIlPunto(*valore);
    return risposta != base::Risposta::annulla;
}

}  // namespace

// A bad value leaves its cell empty. A column in a wrong unit has the same fault in every row: one
// box tells it.
void ModelloGriglia::incollaCella(PostoGriglia posto, const std::string& valore, ViziDetti& detti,
                                  base::Dialogo& dialogo) {
    const CampoMaschera& campo = colonna(posto.colonna);
    const Vizio vizio = controllaCella(campo, valore);
    mettiCella(posto, vizio == Vizio::nessuno ? valore : std::string());
    if (vizio != Vizio::nessuno && detti.emplace(posto.colonna, vizio).second)
        segnala(vizio, campo, campo.etichetta, "\r\n", dialogo);
}

void ModelloGriglia::incolla(std::string_view testo, base::Dialogo& dialogo) {
    auto righe = righeAppunti(testo);
    if (righe.empty()) return;
    if (!chiede("Confermate l'inserimento dei seguenti dati", "\r\n" + anteprimaAppunti(testo),
                dialogo))
        return;
    if (!leggiVirgole(righe, *this, dialogo)) return;
    chiudiEditore(true);
    const CelleGriglia prima = celle_;
    std::optional<bool> sovrascrive;
    ViziDetti detti;
    int r = corrente_.riga;
    for (const auto& riga : righe) {
        if (r > CelleGriglia::righe) {
            troppeRighe(dialogo);
            break;
        }
        int c = corrente_.colonna;
        for (auto valore = riga.begin(); valore != riga.end() && c <= colonne(); ++valore, ++c) {
            if (soloLettura(c)) continue;
            if (celle_.piena(r, c)) {
                if (!sovrascrive)
                    sovrascrive = chiede(
                        "Uno o più dati sono già presenti nella tabella. Volete sovrascriverli", "",
                        dialogo);
                if (!*sovrascrive) continue;
            }
            incollaCella({r, c}, *valore, detti, dialogo);
        }
        ++r;
    }
    passoIncolla(prima);
    primoCarattere_ = true;
}

void ModelloGriglia::sostituisci(const std::vector<std::vector<std::string>>& righe,
                                 std::string passo, base::Dialogo& dialogo) {
    chiudiEditore(false);
    const CelleGriglia prima = celle_;
    const auto nuove = std::min<std::size_t>(righe.size(), CelleGriglia::righe);
    if (nuove < righe.size()) troppeRighe(dialogo);
    ViziDetti detti;
    for (int r = 1; r <= CelleGriglia::righe; ++r) {
        const auto i = static_cast<std::size_t>(r - 1);
        for (int c = 1; c <= colonne(); ++c) {
            if (soloLettura(c)) continue;
            const auto k = static_cast<std::size_t>(c - 1);
            const bool cE = i < nuove && k < righe[i].size();
            incollaCella({r, c}, cE ? righe[i][k] : std::string(), detti, dialogo);
        }
    }
    entra({1, 1});
    storia_.fatto({std::move(passo), corrente_, cambiDa(prima)});
}

}  // namespace korven::masks
