#pragma once

#include <memory>
#include <string>
#include <vector>

#include "plot/geometry.hpp"

namespace korven::batch {

/// The files that a drawing goes to; empty names are not written.
struct UsciteDisegno {
    std::string dxf, pdf, svg, png;
    int dpi = 150;                    ///< resolution of the PNG file
    plot::Foglio foglio{21.0, 29.7};  ///< sheet [cm]: page of the PDF file, height of a log

    [[nodiscard]] bool nessuna() const;
    /// True when one of the files is painted, which needs fonts.
    [[nodiscard]] bool dipinte() const;
    /// All that will be written, in this order.
    [[nodiscard]] std::vector<std::string> file() const;
};

/// Refuses a name under which the project, its results or its report would be lost, and one given
/// twice, whether the files exist yet or not.
/// @throws base::ErroreFile, for a report NomiInConflitto, with both names
void controllaUscite(const UsciteDisegno& uscite);

/// Fonts and painting for the drawings to come, when one of their files needs them. Texts are
/// measured in the fonts they are written in, whatever the files: the same command makes the same
/// drawing. An interrupt ends drawing and writing.
class AmbienteDisegno {
 public:
    explicit AmbienteDisegno(bool dipinti);
    AmbienteDisegno(const AmbienteDisegno&) = delete;
    AmbienteDisegno& operator=(const AmbienteDisegno&) = delete;
    ~AmbienteDisegno();

 private:
    class Interruzione;
    class Metrica;
    std::unique_ptr<Interruzione> interruzione_;
    std::unique_ptr<Metrica> metrica_;
};

/// Writes the stored drawing.
/// @pre an AmbienteDisegno lives, a painting one if a file is to be painted
/// @throws base::ErroreFile with the system's reason
void scriviDisegno(const UsciteDisegno& uscite);

}  // namespace korven::batch
