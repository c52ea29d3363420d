#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/dialogo.hpp"
#include "shell/viewer/ports.hpp"

class QLabel;

namespace korven::shell {

/// A save dialog that proposes the name of an output of a project: "muro-allegato.pdf".
/// @param titolo    of the dialog, an Italian key
/// @param progetto  its path; may be empty
/// @param parola    what the output is called, behind the name of the project
/// @param tipi      the first is proposed
[[nodiscard]] FileDaSalvare richiestaUscita(const char* titolo, const std::string& progetto,
                                            std::string_view parola, std::vector<TipoFile> tipi);

/// Asks where an output goes and has it written: a box tells of a failure, and the question comes
/// again, until it is written or given up.
/// @param scrivi      writes it, or throws why it can't
/// @param daProporre  makes the next proposal of what was typed; empty: the first one stays
/// @return where it was written; nothing when it was given up
std::optional<std::string> salvaUscita(
    FileDaSalvare richiesta, PorteGrafica& porte, base::Dialogo& dialogo,
    const std::function<void(const std::string& percorso)>& scrivi,
    const std::function<std::string(const std::string& percorso)>& daProporre = {});

/// The same for an output of the open project, whose place it can't take. Where it was written
/// stands in `nota` then.
void salvaDelProgetto(FileDaSalvare richiesta, PorteGrafica& porte, base::Dialogo& dialogo,
                      QLabel& nota, const std::function<void(const std::string& percorso)>& scrivi);

}  // namespace korven::shell
