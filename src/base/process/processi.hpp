#pragma once

#include <sys/types.h>

#include <chrono>
#include <functional>
#include <vector>

#include "base/process/avvia_programma.hpp"

namespace korven::base {

/// Programs as processes of the system. They inherit the open channels of this program; what the
/// window of one is to look like nobody can tell them here, so the wish is dropped.
class Processi : public AvviaProgramma {
 public:
    /// @param servi  called again and again while a program is waited for, to serve the window
    /// system; may be empty
    /// @param attesaApertura  how long `apri` watches the program that it started
    explicit Processi(std::function<void()> servi = {},
                      std::chrono::milliseconds attesaApertura = std::chrono::seconds(3));

    bool avvia(const std::string& programma, const std::vector<std::string>& argomenti,
               Finestra finestra) override;
    std::optional<int> esegui(const std::string& programma,
                              const std::vector<std::string>& argomenti) override;
    /// Through xdg-open, which knows the default programs of all desktops. One that is still at
    /// work after `attesaApertura` counts as having found its program.
    bool apri(const std::string& file) override;

 private:
    void pausa() const;
    void raccogliFiniti();

    std::function<void()> servi_;
    std::chrono::milliseconds attesaApertura_;
    std::vector<pid_t> avviati_;
};

}  // namespace korven::base
