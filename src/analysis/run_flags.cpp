#include "analysis/run_flags.hpp"

namespace korven::analysis {

bool erroreCalcolo = false;
bool stopCalcolo = false;
double fsAzioni = 0;
std::string nomeLasciato;

}  // namespace korven::analysis
