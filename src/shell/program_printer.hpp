#pragma once

#include <memory>

class QPrinter;

namespace korven::shell {

/// The printer of the program: the system's usual one until the printer set-up chooses another.
/// Made when it is first needed, since looking for printers takes time.
class StampanteProgramma {
 public:
    StampanteProgramma();
    StampanteProgramma(const StampanteProgramma&) = delete;
    StampanteProgramma& operator=(const StampanteProgramma&) = delete;
    ~StampanteProgramma();

    [[nodiscard]] QPrinter& stampante();

 private:
    std::unique_ptr<QPrinter> stampante_;
};

}  // namespace korven::shell
