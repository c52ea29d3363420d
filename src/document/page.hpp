#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "document/blocks.hpp"
#include "plot/colour.hpp"

// The pages of a document. Lengths are points, from the upper left corner of the sheet, y downward.

namespace korven::document {

inline constexpr double puntiPerCentimetro = 72 / 2.54;

/// The sheet and the part of it that the text takes; head and foot stand outside that part.
struct Formato {
    double larghezza = 21.0 * puntiPerCentimetro;
    double altezza = 29.7 * puntiPerCentimetro;
    double sinistra = 2.0 * puntiPerCentimetro, destra = sinistra;  ///< margins beside the text
    double sopra = 2.3 * puntiPerCentimetro, sotto = 2.2 * puntiPerCentimetro;
    bool cornice = true;  ///< with head and foot

    [[nodiscard]] double larghezzaTesto() const { return larghezza - sinistra - destra; }
    [[nodiscard]] double altezzaTesto() const { return altezza - sopra - sotto; }
};

/// The widest and the highest drawing that an A4 page shows at true size, with a heading above it
/// and its caption below [cm].
inline constexpr double larghezzaFigura = 17.0, altezzaFigura = 22.0;

struct Carattere {
    double corpo = 9.5;  ///< [pt]
    bool grassetto = false;
    bool corsivo = false;
    bool fisso = false;  ///< typewriter
    bool operator==(const Carattere&) const = default;
};

/// What a part of a page is, and so its colour.
enum class Tinta {
    testo,
    tenue,  ///< head and foot, notes
    titolo,
    pericolo,
    filetto,     ///< lines about a table
    riga,        ///< lines between its rows
    fondoTesta,  ///< ground of its head
    barra,       ///< bar behind a number
};

/// Colours that stay apart in grey.
[[nodiscard]] plot::Colore colore(Tinta tinta);

struct Scritta {
    double x = 0, y = 0;  ///< where the base line begins
    double larghezza = 0;
    std::string testo;
    Carattere carattere;
    Tinta tinta = Tinta::testo;
};

/// A straight line.
struct Filetto {
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    double spessore = 0.5;
    Tinta tinta = Tinta::filetto;
};

/// A filled rectangle, below all else.
struct Fondo {
    double x = 0, y = 0, larghezza = 0, altezza = 0;
    Tinta tinta = Tinta::fondoTesta;
};

/// A drawing: where its upper left corner is, and how much smaller it is than it was asked for.
struct Disegno {
    double x = 0, y = 0;
    double scala = 1;
    const Figura* figura = nullptr;  ///< of the document that was laid out
    double altezza = 0;              ///< of the drawing before it is scaled [cm]
};

/// A part of a page that leads to a heading.
struct Rimando {
    double x = 0, y = 0, larghezza = 0, altezza = 0;
    std::size_t segnalibro = 0;  ///< which of the document's headings, from 0
};

struct Pagina {
    std::vector<Fondo> fondi;
    std::vector<Filetto> filetti;
    std::vector<Disegno> disegni;
    std::vector<Scritta> scritte;
    std::vector<Rimando> rimandi;

    /// Adds what stands on another one, moved.
    void aggiungi(const Pagina& altra, double dx, double dy);
};

/// Where a heading stands, for the list of contents that a reader of documents shows.
struct Segnalibro {
    int livello = 1;
    std::string testo;
    std::size_t pagina = 0;  ///< from 0
    double y = 0;            ///< upper end of the heading
};

/// A document set on pages. It keeps the document, whose drawings are made when a page is painted.
struct Impaginato {
    std::shared_ptr<const Documento> documento;
    Formato formato;
    std::vector<Pagina> pagine;
    std::vector<Segnalibro> segnalibri;
};

/// Measures texts in the fonts that the pages are painted with.
class MisuraCaratteri {
 public:
    virtual ~MisuraCaratteri() = default;
    /// Width of a text [pt]: the sum of its characters.
    [[nodiscard]] virtual double larghezza(std::string_view testo,
                                           const Carattere& carattere) const = 0;
};

/// Takes the place of fonts: the widths of the usual faces.
class CaratteriStimati : public MisuraCaratteri {
 public:
    [[nodiscard]] double larghezza(std::string_view testo,
                                   const Carattere& carattere) const override;
};

}  // namespace korven::document
