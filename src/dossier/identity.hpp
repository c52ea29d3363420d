#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "project/project_data.hpp"

namespace korven::dossier {

/// Of which file, by which program and when: what a reader needs to ask for the same again.
struct Identita {
    std::string programma, versione;
    std::string file;      ///< path as it was given; empty for a project never saved
    std::string impronta;  ///< of the project as written; empty for one that no file can hold
    std::string data;      ///< "2026-11-22", of the run or as it was set
    std::vector<std::string> opzioni;  ///< that override the project, as typed: "--nseg 200"
    std::string comando;               ///< that makes the document again
    bool nonSalvato = false;           ///< no file, or an older one, lies on the disk
};

/// SHA-256 of the file that saving this project would write, 64 lower-case digits. `sha256sum
/// muro.kvd` gives the same of a file that this program has written, but for one with a method of
/// the pressures that reading does not keep.
/// @throws base::ErroreValore for a number that no file can hold
[[nodiscard]] std::string impronta(const project::DatiProgetto& dati);

/// The first digits of an imprint, as a page has room for.
[[nodiscard]] std::string_view inBreve(std::string_view impronta);

/// Where the date of a document may come from, the first that there is.
struct FontiData {
    std::string voluta;                ///< as it was asked for; empty: it was not
    std::optional<std::string> epoca;  ///< seconds of UTC since 1970, as SOURCE_DATE_EPOCH has them
    std::function<std::string()> oggi;  ///< the clock
};

/// True for a day of the calendar from 1900 on, "2026-11-22".
[[nodiscard]] bool dataValida(std::string_view data);

/// The date of a document. An `epoca` that is no such number is passed over: where somebody can be
/// told, `base::secondiEpoca` is asked first.
/// @pre `voluta` is empty or valid, which whoever read it has told the user: asserted
[[nodiscard]] std::string data(const FontiData& fonti);

/// The sources of this process: its environment, where an empty variable is none, and its clock, in
/// local time.
[[nodiscard]] FontiData fontiDiSistema(std::string voluta);

}  // namespace korven::dossier
