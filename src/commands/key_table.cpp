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
                     *accanto = "Finestre accanto alla principale",
                     *osservazioni = "Elenco delle osservazioni",
                     *prospetti = "Tabelle dei risultati", *curve = "Curve dei risultati",
                     *schede = "Schede dei dati", *sezione = "Scheda della sezione",
                     *tabelle = "Tabelle dei dati", *campiture = "Scelta della campitura",
                     *catalogo = "Catalogo dei profili", *calcolo = "Calcolo in corso",
                     *disegno = "Disegno in corso", *visore = "Visore dei disegni",
                     *penne = "Penne e colori dei disegni", *anteprima = "Anteprima dei tabulati",
                     *allegato = "Pagine dell'allegato e del confronto",
                     *guida = "Finestra della guida";
constexpr const char *chiude = "chiude la finestra", *paginaGuida = "apre la pagina della guida",
                     *storia = "annulla e ripete ciò che si è scritto",
                     *nodi = "legge la paratia più in alto, più in basso",
                     *estremi = "legge la testa, il piede della paratia",
                     *fasi = "fase precedente, fase seguente", *prende = "prende la voce scelta",
                     *rinuncia = "lascia tutto com'era";

// The rows of a window stand together.
constexpr Riga righe[] = {
    {principale, "F10", "apre i menu"},
    {principale, "Ctrl+Shift+Z", "ripete, come Ctrl+Y"},
    {immagine, "PgUp, PgDown", fasi},
    {immagine, "1, 2, 3, 4", "pressioni, spostamenti, momenti, tagli"},
    {immagine, "Up, Down", nodi},
    {immagine, "Home, End", estremi},
    {immagine, "Ctrl+C, Ctrl+Ins", "copia l'immagine"},
    {immagine, "Menu, Shift+F10", "copia o salva l'immagine"},
    {immagine, "F1", paginaGuida},
    {accanto, "F1", paginaGuida},
    {accanto, "Esc", chiude},
    {osservazioni, "Up, Down", "osservazione precedente, osservazione seguente"},
    {osservazioni, "Return, Enter", "apre la scheda al campo dell'osservazione"},
    {prospetti, "Ctrl+C, Ctrl+Ins", "copia le celle scelte, o tutta la tabella"},
    {prospetti, "Ctrl+A", "sceglie tutta la tabella"},
    {prospetti, "Menu, Shift+F10", "ordina e copia"},
    {curve, "Up, Down", nodi},
    {curve, "Home, End", estremi},
    {curve, "PgUp, PgDown", fasi},
    {schede, "Up, Down", "campo precedente, campo seguente"},
    {schede, "Return, Enter", "campo seguente; su un pulsante lo preme"},
    {schede, "Left, Right", "scelta precedente, scelta seguente"},
    {schede, "Alt+Down", "apre l'elenco delle scelte"},
    {schede, "Backspace, Del", "cancella un carattere"},
    {schede, "Menu, Shift+F10", "menu con Copia e Incolla"},
    {schede, "Space", "sulla striscia gialla: dice per intero che cosa chiede il campo"},
    {schede, "Ctrl+Z, Ctrl+Y, Ctrl+Shift+Z", storia},
    {schede, "Esc", "lascia la scheda senza modifiche"},
    {sezione, "Up, Down", "campo precedente, campo seguente"},
    {sezione, "Return, Enter", "prende la sezione"},
    {sezione, "Ctrl+Z, Ctrl+Y, Ctrl+Shift+Z", storia},
    {sezione, "F1", paginaGuida},
    {sezione, "Esc", "lascia la scheda senza modifiche"},
    {tabelle, "Up, Down, Left, Right", "cella vicina"},
    {tabelle, "Return, Enter", "cella seguente; nella cella aperta con F2 prende il testo"},
    {tabelle, "Tab, Shift+Tab", "cella seguente, cella precedente"},
    {tabelle, "Home, End", "inizio e fine della riga"},
    {tabelle, "Ctrl+Home, Ctrl+End", "inizio e fine della tabella"},
    {tabelle, "PgUp, PgDown", "righe più su, righe più giù"},
    {tabelle, "F2", "modifica il testo della cella"},
    {tabelle, "Backspace, Del", "cancella un carattere"},
    {tabelle, "Esc", "riprende il testo che la cella aveva; fuori dalle celle chiude la scheda"},
    {tabelle, "Ctrl+C, Ctrl+Ins", "copia le righe"},
    {tabelle, "Ctrl+V, Shift+Ins", "incolla dalla cella in poi"},
    {tabelle, "Ctrl+Z, Ctrl+Y, Ctrl+Shift+Z", storia},
    {tabelle, "Ctrl+Tab, Ctrl+Shift+Tab", "esce dalla tabella"},
    {tabelle, "F1", paginaGuida},
    {campiture, "Down", "dalla ricerca all'elenco"},
    {campiture, "Up, Down, Left, Right", "campitura vicina"},
    {campiture, "Return, Enter", prende},
    {campiture, "Esc", rinuncia},
    {catalogo, "Down", "dalla ricerca all'elenco"},
    {catalogo, "Return, Enter", prende},
    {catalogo, "Esc", rinuncia},
    {calcolo, "Esc, Return, Enter, Space", "ferma il calcolo"},
    {disegno, "Esc, Return, Enter", "rinuncia al disegno"},
    {visore, "S, I, D, U", "stampa, stampa su un foglio, DXF, chiude"},
    {visore, "Esc", "rinuncia allo zoom o chiude"},
    {penne, "F2", "cambia il colore scelto"},
    {anteprima, "Ctrl+C, Ctrl+Ins", "copia le righe scelte"},
    {anteprima, "Esc", chiude},
    {allegato, "PgUp, PgDown", "pagina precedente, pagina seguente"},
    {allegato, "Home, End", "prima pagina, ultima pagina"},
    {allegato, "Ctrl++, Ctrl+-", "pagine più grandi, più piccole"},
    {allegato, "Ctrl+=", "pagine più grandi"},
    {guida, "Alt+Left, Alt+Right", "pagina precedente, pagina seguente"},
    {guida, "Alt+Home", "sommario della guida"},
    {guida, "Ctrl+F", "cerca nelle pagine"},
    {guida, "Down", "dalla ricerca all'elenco"},
    {guida, "Ctrl++, Ctrl+-, Ctrl+0", "caratteri più grandi, più piccoli, come all'inizio"},
    {guida, "Ctrl+=", "testo più grande"},
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
