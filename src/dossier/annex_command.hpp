#pragma once

#include <optional>
#include <string>
#include <vector>

#include "factors/requested_code.hpp"

namespace korven::dossier {

/// What the command line puts in the place of a project's own.
struct AlPostoDelProgetto {
    std::optional<double> metodoSpinte{};  ///< code of the method of the pressures
    bool ricalcolaEJ = false;              ///< the stiffness is that of the section
    std::optional<std::string> nSeg{};     ///< segments, as typed
};

/// The options that do so, as they are typed in the language in use: "--pressures rankine".
[[nodiscard]] std::vector<std::string> opzioni(const AlPostoDelProgetto& alPosto);

/// The same for a document to tell, of a run with so many segments: they are told unless they are
/// the program's own number, whether they were typed or come from a file of the installation. So a
/// document that is made again by a command with all options tells the same.
[[nodiscard]] std::vector<std::string> opzioniDette(AlPostoDelProgetto alPosto,
                                                    std::optional<int> nSeg);

/// What makes an annex: a command of korven32c.
struct ComandoAllegato {
    std::string progetto;                          ///< path
    std::string pdf{}, documento{}, testo{};       ///< paths of its files; empty: not written
    AlPostoDelProgetto alPosto{};                  ///< with the segments of the run
    std::optional<factors::NormaChiesta> norma{};  ///< that the document has a chapter on
    std::optional<int> righe{};  ///< of a stage's table of nodes; nothing: as usual
    std::string data;            ///< of the document
};

/// It makes the same document again, byte by byte, in the language in use; words are quoted as a
/// shell takes them.
[[nodiscard]] std::string comando(const ComandoAllegato& allegato);

}  // namespace korven::dossier
