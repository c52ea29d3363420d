#pragma once

#include <functional>
#include <vector>

#include "base/disk.hpp"
#include "plot/strokes.hpp"

namespace korven::plot {

inline constexpr int massimoLinee = 32000;  ///< in memory; any number goes to spill files
inline constexpr int massimoTestiPlot = 2000;
inline constexpr int massimoPoligoni = 64000;

/// All that a drawing consists of, in the order in which it was drawn. Lines beyond the rows of
/// memory go to spill files of `massimoLinee` records, numbered from 1; texts and polygons never
/// leave memory.
class ArchivioDisegno {
 public:
    ArchivioDisegno() : ArchivioDisegno(base::discoDiSistema()) {}
    /// @param disco  takes the spill files; not owned
    explicit ArchivioDisegno(const base::Disco& disco) : disco_(&disco) {}

    /// Forgets the drawing. Its spill files stay where they are, the next drawing writes over them.
    void svuota();

    /// Adds a line. When all rows are taken they go to the next spill file first.
    /// @throws ErroreFile when that file can't be written, ErroreValore when one of its numbers is
    /// not finite; the store is then empty, so that nobody shows or prints part of a drawing
    void aggiungi(const Segmento& linea);

    /// @throws ErroreIndice at text 2001
    void aggiungi(TestoPlot testo);

    /// @throws ErroreIndice at polygon 64001
    void aggiungi(const PoligonoPlot& poligono);

    /// Ends the drawing. If there are spill files, the lines in memory go to one more, so that the
    /// files hold all of them; the rows stay in memory as well. Ending twice changes nothing.
    /// @throws ErroreFile, ErroreValore as `aggiungi`
    void chiudi();

    /// Hands every line to `uso` in the order drawn: from the spill files alone when there are any,
    /// else from memory. So a drawing with spill files is whole only after `chiudi`.
    /// @throws ErroreFile when a spill file can't be read
    void perOgniLinea(const std::function<void(const Segmento&)>& uso) const;

    [[nodiscard]] const std::vector<Segmento>& lineeInMemoria() const { return linee_; }
    [[nodiscard]] const std::vector<TestoPlot>& testi() const { return testi_; }
    [[nodiscard]] const std::vector<PoligonoPlot>& poligoni() const { return poligoni_; }
    [[nodiscard]] int nFileScarico() const { return nFile_; }

 private:
    void scarica();

    const base::Disco* disco_;
    std::vector<Segmento> linee_;
    std::vector<TestoPlot> testi_;
    std::vector<PoligonoPlot> poligoni_;
    int nFile_ = 0;
    bool scaricate_ = false;  // the rows in memory are those of the last spill file
};

}  // namespace korven::plot
