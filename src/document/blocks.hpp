#pragma once

#include <array>
#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "tables/result_table.hpp"

// A document as a list of what stands in it, one below the other, whoever sets it: pages on paper
// and screen, plain text, a word-processor file. All texts are translated, in UTF-8.

namespace korven::document {

/// A heading. Those of level 1 begin a chapter; they and those of level 2 are bookmarks of a PDF.
struct Titolo {
    int livello = 1;  ///< 1 to 3
    std::string testo;
    /// Begins a page where less than this is left [cm].
    double posto = 0;
};

enum class Stile {
    normale,
    nota,      ///< smaller: what explains a table or a figure
    rilievo,   ///< bold: a verdict
    pericolo,  ///< bold, in the colour of danger
    fisso,     ///< typewriter, small, its line ends and blanks as they are: a file, a command
};

/// A text that is wrapped at the width of the page; a line feed in it begins a new line.
struct Paragrafo {
    std::string testo;
    Stile stile = Stile::normale;
};

/// A table with its title and its notes. One that is too wide is set smaller, and then in parts
/// that repeat the first column.
struct Tavola {
    tables::Prospetto prospetto;
};

/// A drawing by the plot engine.
struct Figura {
    std::string didascalia;   ///< one line below it
    std::string descrizione;  ///< what it shows, for those who don't see it: a sentence
    double larghezza = 0;     ///< [cm], up to the width of the text
    double altezza = 0;       ///< [cm]
    /// Draws from (0, 0), lower left, to (larghezza, altezza) [cm] with the plot engine, which is
    /// open (`plotApri`) for that sheet and empty. Called each time a page with it is painted.
    std::function<void()> disegna;
    /// Of a drawing that can be lower: how low [cm]; 0: it has one height. It is made so much lower
    /// that it stays on the page of what stands above it.
    double altezzaMinima = 0;
    std::function<void(double altezza)> disegnaBassa = {};  ///< draws it so high [cm]
};

/// What follows begins on a new page.
struct SaltoPagina {};

/// The headings of levels 1 and 2 that follow it, with their pages: each leads there in a PDF. A
/// word processor's file, which has no pages yet, lists the headings; plain text has none.
struct Indice {
    std::string titolo;
};

using Blocco = std::variant<Titolo, Paragrafo, Tavola, Figura, SaltoPagina, Indice>;

/// A file that a PDF carries within it, as it is on a disk.
struct FileAllegato {
    std::string nome;         ///< under which it is taken out
    std::string descrizione;  ///< what it is, a few words
    std::string byte;
};

/// What stands at the left and at the right of the head of each page. The foot has the number of
/// the page, "3 / 14", at its right.
struct Documento {
    std::string titolo;                  ///< of the file, as a reader of documents shows it
    std::string autore;                  ///< of the file
    std::string data;                    ///< of the file, "2026-11-22"; empty: it tells none
    std::string lingua;                  ///< of the texts: "it"
    std::array<std::string, 2> testata;  ///< left and right, on every page
    std::string piede;                   ///< left of the number, on every page
    std::vector<FileAllegato> allegati;  ///< of the PDF
    std::vector<Blocco> blocchi;
};

}  // namespace korven::document
