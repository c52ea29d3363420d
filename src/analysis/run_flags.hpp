#pragma once

#include <string>

namespace korven::analysis {

/// True when the last run was refused, failed or was stopped. Cleared at the start of every run;
/// the caller goes on to its viewer or preview only when it is false.
extern bool erroreCalcolo;

/// Set by the stop button, asked for after every iteration; cleared before the first stage.
extern bool stopCalcolo;

/// Partial factor of the actions, set at the start of every run and stored with its results.
extern double fsAzioni;

/// The name at which a run without a stiffness left `fileCorrente`. It is no project's: the next
/// run writes its results there.
extern std::string nomeLasciato;

}  // namespace korven::analysis
