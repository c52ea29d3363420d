#include "support/program_run.hpp"

#include <fcntl.h>
#include <linux/capability.h>
#include <poll.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <fstream>
#include <stdexcept>
#include <thread>

namespace korven::test {

namespace {

std::array<int, 2> condotto() {
    std::array<int, 2> capi{};
    if (::pipe2(capi.data(), O_CLOEXEC) != 0) throw std::runtime_error("pipe");
    return capi;
}

// Root passes by the permissions of files by two of its capabilities, which the next program does
// not get when they are out of the bounding set.
bool cediPrivilegi() {
    if (::geteuid() != 0) return true;
    for (const int quale : {CAP_DAC_OVERRIDE, CAP_DAC_READ_SEARCH})
        if (::prctl(PR_CAPBSET_DROP, quale, 0, 0, 0) != 0) return false;
    return true;
}

void perdiLettore(int uscita) {
    std::array<int, 2> capi{};
    if (::pipe(capi.data()) != 0 || ::dup2(capi[1], uscita) < 0) ::_exit(127);
    ::close(capi[0]);
    ::close(capi[1]);
}

[[noreturn]] void diventa(const std::string& programma, std::vector<char*> argomenti,
                          const Ambiente& ambiente) {
    // A shell has its background jobs ignore signals, which is handed down to every program.
    // This process may ignore what korven32c ignores.
    for (const int segnale : {SIGINT, SIGQUIT, SIGHUP, SIGTERM, SIGPIPE, SIGXFSZ})
        ::signal(segnale, SIG_DFL);
    dimenticaLingua();
    for (const auto& [nome, valore] : ambiente.variabili) ::setenv(nome.c_str(), valore.c_str(), 1);
    if (!ambiente.cartella.empty() && ::chdir(ambiente.cartella.c_str()) != 0) ::_exit(127);
    if (ambiente.limiteFile) {
        const auto byte = static_cast<rlim_t>(*ambiente.limiteFile);
        const rlimit limite{byte, byte};
        if (::setrlimit(RLIMIT_FSIZE, &limite) != 0) ::_exit(127);
    }
    if (ambiente.uscitaNonLetta) perdiLettore(STDOUT_FILENO);
    if (ambiente.erroriNonLetti) perdiLettore(STDERR_FILENO);
    if (ambiente.senzaPrivilegi && !cediPrivilegi()) ::_exit(127);
    ::execv(programma.c_str(), argomenti.data());
    ::_exit(127);
}

// Both pipes at once: a program that fills one must not wait for the other to be read.
void leggiEntrambi(int uscita, int errori, EsitoProgramma& esito) {
    std::array<pollfd, 2> capi{pollfd{uscita, POLLIN, 0}, pollfd{errori, POLLIN, 0}};
    std::array<std::string*, 2> testi{&esito.uscita, &esito.errori};
    char blocco[4096];
    while (capi[0].fd >= 0 || capi[1].fd >= 0) {
        if (::poll(capi.data(), capi.size(), -1) < 0) continue;
        for (std::size_t i = 0; i < capi.size(); ++i) {
            if (capi[i].fd < 0 || capi[i].revents == 0) continue;
            const ssize_t letti = ::read(capi[i].fd, blocco, sizeof blocco);
            if (letti > 0)
                testi[i]->append(blocco, static_cast<std::size_t>(letti));
            else
                capi[i].fd = -1;
        }
    }
}

}  // namespace

void dimenticaLingua() {
    for (const char* nome : {"LC_ALL", "LC_MESSAGES", "LANG"}) ::unsetenv(nome);
}

ProgrammaInCorso::ProgrammaInCorso(const std::string& programma,
                                   const std::vector<std::string>& argomenti,
                                   const Ambiente& ambiente) {
    std::vector<std::string> testi = {programma};
    testi.insert(testi.end(), argomenti.begin(), argomenti.end());
    std::vector<char*> puntatori;
    for (auto& testo : testi) puntatori.push_back(testo.data());
    puntatori.push_back(nullptr);

    const auto uscita = condotto();
    const auto errori = condotto();
    processo_ = ::fork();
    if (processo_ < 0) throw std::runtime_error("fork");
    if (processo_ == 0) {
        ::dup2(uscita[1], STDOUT_FILENO);
        ::dup2(errori[1], STDERR_FILENO);
        if (!ambiente.uscita.empty()) {
            const int file = ::open(ambiente.uscita.c_str(), O_WRONLY | O_CLOEXEC);
            if (file < 0 || ::dup2(file, STDOUT_FILENO) < 0) ::_exit(127);
        }
        diventa(programma, puntatori, ambiente);
    }
    ::close(uscita[1]);
    ::close(errori[1]);
    uscita_ = uscita[0];
    errori_ = errori[0];
}

ProgrammaInCorso::~ProgrammaInCorso() {
    if (processo_ > 0) {
        ::kill(processo_, SIGKILL);
        ::waitpid(processo_, nullptr, 0);
    }
    for (const int capo : {uscita_, errori_})
        if (capo >= 0) ::close(capo);
}

void ProgrammaInCorso::segnale(int numero) const { ::kill(processo_, numero); }

bool ProgrammaInCorso::aspettaSegnale(int numero) const {
    const std::string stato = "/proc/" + std::to_string(processo_) + "/status";
    for (int i = 0; i < 1000; ++i) {
        std::ifstream righe(stato);
        for (std::string riga; std::getline(righe, riga);)
            if (riga.starts_with("SigCgt:") &&
                (std::stoull(riga.substr(7), nullptr, 16) >> (numero - 1) & 1) != 0)
                return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return false;
}

bool ProgrammaInCorso::aspetta(std::string_view negliErrori) {
    char blocco[4096];
    while (erroriLetti_.find(negliErrori) == std::string::npos) {
        const ssize_t letti = ::read(errori_, blocco, sizeof blocco);
        if (letti <= 0) return false;
        erroriLetti_.append(blocco, static_cast<std::size_t>(letti));
    }
    return true;
}

EsitoProgramma ProgrammaInCorso::attendi() {
    EsitoProgramma esito;
    esito.errori = erroriLetti_;
    leggiEntrambi(uscita_, errori_, esito);
    int stato = 0;
    ::waitpid(processo_, &stato, 0);
    processo_ = -1;
    if (WIFEXITED(stato)) esito.codice = WEXITSTATUS(stato);
    return esito;
}

}  // namespace korven::test
