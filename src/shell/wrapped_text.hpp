#pragma once

#include "base/bound_units.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

/// A text for a label or a list that breaks lines: no line ends between a number and its unit.
[[nodiscard]] inline QString inRighe(std::string_view testo) { return qt(base::unitaUnite(testo)); }
[[nodiscard]] inline QString inRighe(const QString& testo) { return inRighe(testo.toStdString()); }

}  // namespace korven::shell
