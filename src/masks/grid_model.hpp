#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/dialogo.hpp"
#include "masks/field_check.hpp"
#include "masks/grid_cells.hpp"
#include "masks/history.hpp"
#include "masks/key.hpp"
#include "masks/mask.hpp"

namespace korven::masks {

/// A place in a grid: row 1 to 500, data column from 1 (column 0 holds the row numbers).
struct PostoGriglia {
    int riga = 1;
    int colonna = 1;
    bool operator==(const PostoGriglia&) const = default;
};

/// What a button of a grid does.
enum class AzioneGriglia { conferma, annulla, inserisciRiga, eliminaRiga, guida };

/// Button `indice` from 0: confirm, cancel, then insert and delete a row where the kind of the mask
/// offers them; any further one is help.
[[nodiscard]] AzioneGriglia azionePulsante(const Maschera& maschera, std::size_t indice);

/// A form with a table, as a mask of a grid describes it: the cells, the current cell, what is
/// being typed into it, what a key, a button or the clipboard does.
///
/// Cells are typed into in two ways: the grid itself takes what is typed, or F2 (a double click)
/// opens an editor that floats on the current cell. Either way the cell is checked when it is left.
class ModelloGriglia {
 public:
    /// The mask must outlive the model.
    /// @param testi  the number of rows as text, then the cells row after row; what follows a "|"
    ///               in the first text replaces the title of the form
    /// @param capienza  rows that whoever takes the table back can hold; more may be typed
    /// @throws base::ErroreIndice for more than 500 rows
    ModelloGriglia(const Maschera& maschera, const std::vector<std::string>& testi,
                   int capienza = CelleGriglia::righe);

    /// Title of the form; followed by the number of rows and the capacity where there are more.
    [[nodiscard]] std::string titolo() const;
    [[nodiscard]] int colonne() const { return celle_.colonne(); }
    /// Head of a column, 0 for that of the row numbers.
    [[nodiscard]] const std::string& etichetta(int numero) const;
    /// The texts that a column must have room for: its label, and as many digits as its type is
    /// long; each between blanks. The wider one counts.
    [[nodiscard]] std::array<std::string, 2> campioniLarghezza(int numero) const;
    /// True when a column holds numbers, which are aligned at the right.
    [[nodiscard]] bool numerica(int numero) const;
    /// True when a column is shown and never changed: typing and pasting leave it as it is.
    [[nodiscard]] bool soloLettura(int numero) const;
    [[nodiscard]] const std::string& testo(PostoGriglia posto) const;

    [[nodiscard]] PostoGriglia corrente() const { return corrente_; }
    /// Begins at another cell than the first, before anything is typed: nothing is checked. A place
    /// beyond the grid is the nearest cell.
    void comincia(PostoGriglia posto);
    /// Moves to another cell, if the one that is left is good; otherwise a box tells the fault, a
    /// text that was too long is cut, and the cursor stays. An open editor writes its text first.
    /// @return true when `posto` is the current cell
    bool vaiA(PostoGriglia posto, base::Dialogo& dialogo);

    /// Enter, and the tab key: to the next column, after the last one to the next row. An open
    /// editor writes its text first; at the very last cell it stays and the cell is checked.
    void avanza(base::Dialogo& dialogo);
    /// Shift and the tab key: the way back, at the first cell nowhere.
    void arretra(base::Dialogo& dialogo);
    /// The last cell of the last row with data; the first cell of all where there is none.
    [[nodiscard]] PostoGriglia fine() const;

    /// A key pressed on the grid or in its editor. In the grid a character is appended to the cell,
    /// the first one after entering it replaces the old text; Backspace removes the last one, Esc
    /// brings back what the cell had on entry, Enter moves to the next column and from the last one
    /// to the next row, arrows move by one cell. A typed "." never replaces: it is appended even as
    /// the first, and opens the way for more to be appended, as Backspace does; Delete removes the
    /// last character. In the editor Enter writes its text into the cell, Esc drops it.
    /// @param carattere  what the key types, UTF-8; for `Tasto::carattere` alone
    void premi(Tasto tasto, std::string_view carattere, base::Dialogo& dialogo);

    /// F2 or a double click: opens the editor on the current cell, with its text.
    void apriEditore();
    [[nodiscard]] bool editoreAperto() const { return editoreAperto_; }
    [[nodiscard]] const std::string& testoEditore() const { return testoEditore_; }
    /// The text of the open editor that a key leaves.
    void scriviEditore(std::string_view testo) { testoEditore_ = testo; }

    /// True after a box told a fault of the current cell, until it is typed into or left: its text
    /// is selected, and the first character replaces it.
    [[nodiscard]] bool testoScelto() const { return testoScelto_ && !editoreAperto_; }

    /// What the strip says above all else where there are more rows than can be taken back: how
    /// many, how many there may be, and what confirming them does; empty otherwise.
    [[nodiscard]] std::string eccesso() const;
    /// What the strip says of the number typed into the current cell where it is read otherwise
    /// than typed (base/number_reading.hpp); empty otherwise.
    [[nodiscard]] std::string lettura() const;
    /// Text of the strip: the help of the current column, its keys on a line of their own.
    [[nodiscard]] std::string aiuto() const;
    /// A click on the strip shows its text in a box.
    void mostraAiuto(base::Dialogo& dialogo) const;

    /// Ctrl+C: what goes to the clipboard (CelleGriglia::copia).
    [[nodiscard]] std::string copia() const { return celle_.copia(corrente_.riga); }

    /// Ctrl+V or Shift+Insert: writes the text of the clipboard from the current cell to the right
    /// and downward, after a question. Where numbers have a decimal comma a second question, before
    /// anything is written, offers to take it as a point. Cells with data are overwritten only
    /// after one more, asked once. A bad value leaves its cell empty; each fault of a column is
    /// told once. Cells beyond the last column are dropped, rows beyond the last one end the paste
    /// with a message.
    void incolla(std::string_view testo, base::Dialogo& dialogo);

    /// Puts rows in place of all that are there, as one step: what an import does. Values are
    /// checked as those of a paste; cells beyond the last column are dropped, rows beyond the last
    /// one are left out with a message. What was being typed is dropped, the cursor goes to the
    /// first cell.
    /// @param passo  name of the step, translated
    void sostituisci(const std::vector<std::vector<std::string>>& righe, std::string passo,
                     base::Dialogo& dialogo);

    /// A panel beside the grid writes into a cell, to which the cursor goes: the current one must
    /// be good to be left. A text that its column does not take is told, and a read-only cell
    /// stays.
    /// @return true when the cell has the text
    bool scrivi(PostoGriglia posto, std::string_view testo, base::Dialogo& dialogo);

    /// Inserts an empty row at the current one; a bad current cell is told and nothing happens.
    void inserisciRiga(base::Dialogo& dialogo);
    /// Deletes the current row, whatever is in it; the cursor stays.
    void eliminaRiga();

    /// Ctrl+Z: takes the last step back, Ctrl+Y: does it again; the cursor goes to its cell,
    /// without a check of the one that it leaves. A step is what was typed into one cell from
    /// entering it until it was left, a row inserted or deleted, a paste, what a panel wrote. An
    /// open editor writes its text into the cell first, so that Ctrl+Z takes it back and Ctrl+Y
    /// brings it again.
    void annulla();
    void ripeti();
    /// What was taken back or done again, for the strip, until the next key; empty otherwise.
    [[nodiscard]] const std::string& detto() const { return storia_.detto(); }
    void taci() { storia_.taci(); }
    [[nodiscard]] bool annullabile() const { return storia_.annullabile(); }
    [[nodiscard]] bool ripetibile() const { return storia_.ripetibile(); }

    /// The confirm button: closes the editor, checks the current cell and asks about rows with
    /// empty cells where the kind of the mask wants it. "No" to "will you look at them" closes.
    /// @return true when the form closes and hands back `valoriTesto`
    bool conferma(base::Dialogo& dialogo);
    /// True when a cell, or the open editor, holds another text than at the beginning.
    [[nodiscard]] bool cambiata() const;
    /// The form is to be left without confirming: asks where rows were changed.
    /// @return true when the form may close
    [[nodiscard]] bool siPuoLasciare(base::Dialogo& dialogo) const;
    /// The number of rows that have data, then their cells.
    [[nodiscard]] std::vector<std::string> valoriTesto() const { return celle_.impacchettate(); }
    /// The same at this moment, with the text of the open editor in its cell.
    [[nodiscard]] std::vector<std::string> valoriDigitati() const;

 private:
    [[nodiscard]] const CampoMaschera& colonna(int numero) const;
    [[nodiscard]] const std::string& cella() const { return testo(corrente_); }
    void scriviCella(std::string_view testo);
    void entra(PostoGriglia posto);
    void comeAppenaEntrato();
    bool validazionedati(base::Dialogo& dialogo);
    void chiudiEditore(bool scrivi);
    [[nodiscard]] std::string righeDiTroppo() const;
    using ViziDetti = std::set<std::pair<int, Vizio>>;  // of a column
    void incollaCella(PostoGriglia posto, const std::string& valore, ViziDetti& detti,
                      base::Dialogo& dialogo);
    void batti(std::string_view carattere, bool sostituisce);
    void togliUltimo();

    using StoriaCelle = Storia<PostoGriglia, std::string>;
    [[nodiscard]] std::string passoCella(PostoGriglia posto) const;
    [[nodiscard]] std::vector<StoriaCelle::Cambio> cambiDa(const CelleGriglia& prima) const;
    void passoRiga(std::string_view chiave, const CelleGriglia& prima);
    void passoIncolla(const CelleGriglia& prima);
    void torna(std::optional<PostoGriglia> cursore);
    void mettiCella(PostoGriglia posto, std::string_view testo) {
        celle_.scrivi(posto.riga, posto.colonna, testo);
    }

    const Maschera& maschera_;
    std::string titolo_;
    int capienza_;
    CelleGriglia celle_;
    CelleGriglia iniziali_;
    StoriaCelle storia_;
    PostoGriglia corrente_;
    std::string allIngresso_;     // the current cell's text when it was entered
    bool primoCarattere_ = true;  // nothing has been typed into it yet
    bool testoScelto_ = false;
    bool editoreAperto_ = false;
    std::string testoEditore_;
};

}  // namespace korven::masks
