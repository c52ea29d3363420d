#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/disk.hpp"
#include "plot/geometry.hpp"
#include "plot/printer.hpp"

namespace korven::shell {

/// A kind of file in a save dialog: "PNG (*.png)", "png".
struct TipoFile {
    std::string nome;        ///< ends in the pattern of the files that the dialog shows
    std::string estensione;  ///< without the point, for a name typed without one
    bool operator==(const TipoFile&) const = default;
};

/// What a save dialog is to ask. It asks before a file is replaced.
struct FileDaSalvare {
    std::string titolo;  ///< translated
    std::string nome;    ///< proposed; without a folder in that of the project
    std::vector<TipoFile> tipi;
};

/// What the viewer needs of the outside beyond its own window.
class PorteGrafica {
 public:
    virtual ~PorteGrafica() = default;
    /// Path that the user chose, with an extension; nothing when the dialog was cancelled.
    virtual std::optional<std::string> fileDaSalvare(const FileDaSalvare& richiesta) = 0;
    /// Takes the files of the drawing.
    [[nodiscard]] virtual const base::Disco& disco() const = 0;
    /// Tells that a file of the drawing was written.
    virtual void scritto(const std::string& percorso) = 0;
    /// Page of the printer [cm], to be marked in the drawing.
    virtual plot::Foglio foglioStampante() = 0;
    /// The printer for one job; null when there is none and the user gave up.
    /// @param titolo  of the job
    virtual std::unique_ptr<plot::Stampante> stampante(const std::string& titolo) = 0;
};

}  // namespace korven::shell
