#include "shell/program_printer.hpp"

#include <QPrinter>

namespace korven::shell {

StampanteProgramma::StampanteProgramma() = default;
StampanteProgramma::~StampanteProgramma() = default;

QPrinter& StampanteProgramma::stampante() {
    if (!stampante_) stampante_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    return *stampante_;
}

}  // namespace korven::shell
