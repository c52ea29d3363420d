#pragma once

#include <QPainter>

#include "device/document_fonts.hpp"
#include "document/page.hpp"

namespace korven::device {

/// Paints pages of a document: on the pages of a file or a printer, and on the screen. The plotter
/// is borrowed for the drawings and given back as it was.
class PittorePagine {
 public:
    /// @param pittore  its unit is a point, its origin the upper left corner of the sheet
    PittorePagine(QPainter& pittore, const CaratteriPagine& caratteri)
        : pittore_(pittore), caratteri_(caratteri) {}

    /// @throws base::ErroreFile when the plotter can't read its pens
    void dipingi(const document::Pagina& pagina);

 private:
    void disegna(const document::Disegno& disegno);

    QPainter& pittore_;
    const CaratteriPagine& caratteri_;
};

}  // namespace korven::device
