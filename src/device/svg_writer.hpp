#pragma once

#include <string>
#include <string_view>

#include "base/files.hpp"
#include "plot/drawing_store.hpp"
#include "plot/geometry.hpp"

namespace korven::device {

/// Writes a stored drawing as SVG line by line, in hundredths of a millimetre. Texts are texts, as
/// wide as they were measured in whatever font shows them; a control character in one becomes
/// U+FFFD, since XML takes none.
class ScrittoreSvg {
 public:
    /// @param vista        the part of the sheet that is shown [cm]
    /// @param pennaMinima  thinnest line [cm]
    /// @throws base::ErroreFile with the system's reason
    ScrittoreSvg(const std::string& percorso, const plot::Riquadro& vista, double pennaMinima,
                 const base::Disco& disco = base::discoDiSistema());

    /// @throws base::ErroreFile with the system's reason, or when a spill file can't be read
    /// @throws plot::DisegnoInterrotto when `plot::statoPlot.sorveglia` wants the end
    void scrivi(const plot::ArchivioDisegno& archivio);

 private:
    void inizio();
    void poligono(const plot::PoligonoPlot& poligono);
    void linea(const plot::Segmento& linea);
    void chiudiTracciato();
    void testo(const plot::TestoPlot& testo);
    void scarica(std::size_t oltre);
    [[nodiscard]] std::string punto(double x, double y) const;

    base::ScrittoreFile file_;
    plot::Riquadro vista_;
    double pennaMinima_;
    std::string pezzo_;        // not yet in the file
    plot::Segmento ultima_{};  // last line of the path in the making
    int linee_ = 0;            // of that path
};

}  // namespace korven::device
