#include "commands/key_table.hpp"

#include <string_view>

#include "base/translated_texts.hpp"
#include "commands/menu_tree.hpp"

namespace korven::commands {

namespace {

using base::traduttore;

struct Riga {
    std::string_view finestra, tasti, effetto;  // Italian
};

constexpr const char *principale = "Finestra principale", *immagine = "Immagine del progetto",
                     *accanto = "Finestre accanto alla principale", *schede = "Schede dei dati",
                     *tabelle = "Tabelle dei dati", *calcolo = "Calcolo in corso",
                     *visore = "Visore dei disegni", *anteprima = "Anteprima dei tabulati",
                     *guida = "Finestra della guida", *chiude = "chiude la finestra";

// The rows of a window stand together.
constexpr Riga righe[] = {
    {principale, "F10", "apre i menu"},
    {immagine, "PgUp, PgDown", "fase precedente, fase seguente"},
    {immagine, "1, 2, 3, 4", "pressioni, spostamenti, momenti, tagli"},
    {immagine, "Up, Down", "legge la paratia più in alto, più in basso"},
    {immagine, "Home, End", "legge la testa, il piede della paratia"},
    {immagine, "Ctrl+C", "copia l'immagine"},
    {accanto, "F1", "apre la pagina della guida"},
    {accanto, "Return", "apre la scheda al campo dell'osservazione"},
    {accanto, "Esc", chiude},
    {schede, "Up, Down", "campo precedente, campo seguente"},
    {schede, "Ctrl+Z, Ctrl+Y", "annulla e ripete ciò che si è scritto"},
    {schede, "Esc", "lascia la scheda senza modifiche"},
    {tabelle, "F2", "modifica il testo della cella"},
    {tabelle, "Tab, Shift+Tab", "cella seguente, cella precedente"},
    {tabelle, "Home, End", "inizio e fine della riga"},
    {tabelle, "Ctrl+Home, Ctrl+End", "inizio e fine della tabella"},
    {tabelle, "Ctrl+C, Ctrl+V", "copia le righe, incolla dalla cella in poi"},
    {tabelle, "Ctrl+Z, Ctrl+Y", "annulla e ripete ciò che si è scritto"},
    {tabelle, "Ctrl+Tab", "esce dalla tabella"},
    {tabelle, "F1", "apre la pagina della guida"},
    {calcolo, "Esc, Return, Space", "ferma il calcolo"},
    {visore, "S, I, D, U", "stampa, stampa su un foglio, DXF, chiude"},
    {visore, "Esc", "rinuncia allo zoom o chiude"},
    {anteprima, "Ctrl+C", "copia le righe scelte"},
    {anteprima, "Esc", chiude},
    {guida, "Alt+Left, Alt+Right", "pagina precedente, pagina seguente"},
    {guida, "Alt+Home", "sommario della guida"},
    {guida, "Ctrl+F", "cerca nelle pagine"},
    {guida, "Ctrl++, Ctrl+-, Ctrl+0", "caratteri più grandi, più piccoli, come all'inizio"},
    {guida, "Esc", chiude},
};

std::string senzaTasto(std::string testo) {
    std::erase(testo, '&');
    return testo;
}

}  // namespace

std::vector<TastiFinestra> tastiProgramma() {
    std::vector<TastiFinestra> tutte{{traduttore(principale), {}}};
    for (const auto& voce : albero())
        if (!voce.tasti.empty())
            tutte.back().righe.push_back(
                {std::string(voce.tasti), senzaTasto(traduttore(voce.testo))});
    for (const auto& riga : righe) {
        const std::string finestra = traduttore(riga.finestra);
        if (tutte.back().finestra != finestra) tutte.push_back({finestra, {}});
        tutte.back().righe.push_back({std::string(riga.tasti), traduttore(riga.effetto)});
    }
    return tutte;
}

}  // namespace korven::commands
