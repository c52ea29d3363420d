#pragma once

#include <QObject>
#include <functional>

namespace korven::shell {

/// Between two looks at what is unsaved [ms].
inline constexpr int minutoDiSicurezza = 60000;

/// Calls `guarda` once a minute (`Programma::tieniAlSicuro`), also while a form is open, for as
/// long as `padre` lives.
void sorvegliaLavoro(QObject& padre, std::function<void()> guarda, int ogni = minutoDiSicurezza);

}  // namespace korven::shell
