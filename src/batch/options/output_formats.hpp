#pragma once

#include <string>
#include <vector>

#include "plot/geometry.hpp"

namespace korven::batch {

/// What a report leaves besides its mark-up. The names of plain text and word-processor file follow
/// from that of the mark-up.
struct FormatiRelazione {
    bool testo = false;
    bool documento = false;
    std::string pdf;        ///< file; empty: none
    std::string stampante;  ///< name of a printer; empty: none

    /// True when pages are painted, which needs fonts.
    [[nodiscard]] bool dipinte() const { return !pdf.empty() || !stampante.empty(); }
};

/// The files that a drawing goes to; empty names are not written.
struct FormatiDisegno {
    std::string dxf, pdf, svg, png;
    int dpi = 150;                    ///< resolution of the PNG file
    plot::Foglio foglio{21.0, 29.7};  ///< sheet [cm]: page of the PDF file, height of a log

    [[nodiscard]] bool nessuna() const { return file().empty(); }
    /// True when one of the files is painted, which needs fonts.
    [[nodiscard]] bool dipinte() const { return !pdf.empty() || !svg.empty() || !png.empty(); }
    /// All that will be written, in this order.
    [[nodiscard]] std::vector<std::string> file() const;
};

/// What an annex leaves; empty names are not written.
struct FormatiAllegato {
    std::string pdf, documento, testo;
    int righe = 51;  ///< of a stage's table of nodes; its ends and peaks are always there

    [[nodiscard]] bool nessuno() const { return file().empty(); }
    /// All that will be written, in this order.
    [[nodiscard]] std::vector<std::string> file() const;
};

/// What the tables of a computed project go to; empty names are not written.
struct FormatiTabelle {
    std::string xlsx;  ///< file of the workbook
    std::string csv;   ///< folder of a file for each sheet
};

}  // namespace korven::batch
