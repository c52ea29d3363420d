#pragma once

#include <functional>
#include <memory>

#include "base/disk.hpp"
#include "batch/options/output_formats.hpp"
#include "batch/run/outcome.hpp"

namespace korven::batch {

/// Refuses a name under which the project, its results or its report would be lost, and one given
/// twice, whether the files exist yet or not.
/// @throws base::ErroreFile, for a report NomiInConflitto, with both names
void controllaUscite(const FormatiDisegno& formati);

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

/// Writes the stored drawing and names its files in the outcome.
/// @pre an AmbienteDisegno lives, a painting one if a file is to be painted: asserted
/// @throws base::ErroreFile with the system's reason
void scriviDisegno(const FormatiDisegno& formati, const base::Disco& disco, Esito& esito);

/// Makes one drawing and writes it; its names are looked at before.
/// @param disegno  leaves the drawing in the store, or returns false and has told why not
/// @return the exit code
/// @throws base::ErroreFile if a file can't be read or written
[[nodiscard]] int disegna(const FormatiDisegno& formati, const base::Disco& disco, Esito& esito,
                          const std::function<bool()>& disegno);

/// True for a log that is too high to be drawn, which is told.
[[nodiscard]] bool stratigrafiaTroppoAlta(Esito& esito);

}  // namespace korven::batch
