#include "base/process/processi.hpp"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <thread>
#include <utility>

namespace korven::base {

namespace {

using Orologio = std::chrono::steady_clock;

constexpr auto intervallo = std::chrono::milliseconds(10);

// A process group of its own keeps a viewer alive when the terminal interrupts this program.
pid_t genera(const std::string& programma, const std::vector<std::string>& argomenti,
             bool perConto) {
    std::vector<std::string> parole{programma};
    parole.insert(parole.end(), argomenti.begin(), argomenti.end());
    std::vector<char*> argv;
    argv.reserve(parole.size() + 1);
    for (auto& parola : parole) argv.push_back(parola.data());
    argv.push_back(nullptr);

    posix_spawnattr_t attributi;
    ::posix_spawnattr_init(&attributi);
    if (perConto) ::posix_spawnattr_setflags(&attributi, POSIX_SPAWN_SETPGROUP);
    pid_t processo = 0;
    const int errore =
        ::posix_spawnp(&processo, programma.c_str(), nullptr, &attributi, argv.data(), environ);
    ::posix_spawnattr_destroy(&attributi);
    return errore == 0 ? processo : 0;
}

enum class Stato { inCorso, uscito, interrotto };

struct Controllo {
    Stato stato = Stato::inCorso;
    int codice = 0;
};

Controllo controlla(pid_t processo) {
    int esito = 0;
    const pid_t finito = ::waitpid(processo, &esito, WNOHANG);
    if (finito == 0 || (finito < 0 && errno == EINTR)) return {};
    if (finito > 0 && WIFEXITED(esito)) return {Stato::uscito, WEXITSTATUS(esito)};
    return {Stato::interrotto, 0};
}

}  // namespace

Processi::Processi(std::function<void()> servi, std::chrono::milliseconds attesaApertura)
    : servi_(std::move(servi)), attesaApertura_(attesaApertura) {}

bool Processi::avvia(const std::string& programma, const std::vector<std::string>& argomenti,
                     Finestra) {
    raccogliFiniti();
    const pid_t processo = genera(programma, argomenti, true);
    if (processo == 0) return false;
    avviati_.push_back(processo);
    return true;
}

std::optional<int> Processi::esegui(const std::string& programma,
                                    const std::vector<std::string>& argomenti) {
    const pid_t processo = genera(programma, argomenti, false);
    if (processo == 0) return std::nullopt;
    for (;; pausa()) {
        const Controllo controllo = controlla(processo);
        if (controllo.stato == Stato::uscito) return controllo.codice;
        if (controllo.stato == Stato::interrotto) return std::nullopt;
    }
}

bool Processi::apri(const std::string& file) {
    raccogliFiniti();
    const pid_t processo = genera("xdg-open", {file}, true);
    if (processo == 0) return false;
    for (const auto fine = Orologio::now() + attesaApertura_; Orologio::now() < fine; pausa()) {
        const Controllo controllo = controlla(processo);
        if (controllo.stato == Stato::uscito) return controllo.codice == 0;
        if (controllo.stato == Stato::interrotto) return false;
    }
    avviati_.push_back(processo);
    return true;
}

void Processi::pausa() const {
    if (servi_) servi_();
    std::this_thread::sleep_for(intervallo);
}

// A child that has ended stays in the system's table until somebody asks for its fate.
void Processi::raccogliFiniti() {
    std::erase_if(avviati_,
                  [](pid_t processo) { return controlla(processo).stato != Stato::inCorso; });
}

}  // namespace korven::base
