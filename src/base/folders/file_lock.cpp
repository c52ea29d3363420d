#include "base/folders/file_lock.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <filesystem>
#include <utility>

#include "base/file_custody.hpp"
#include "base/file_identity.hpp"
#include "base/folders/leftovers.hpp"

namespace korven::base {

namespace {

// A file that another user's program has made can be locked without the right to write it.
int apri(const std::string& percorso) {
    constexpr int comune = O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
    constexpr mode_t permessi = 0666;
    const int file = ::open(percorso.c_str(), O_RDWR | O_CREAT | comune, permessi);
    return file >= 0 ? file : ::open(percorso.c_str(), O_RDONLY | comune);
}

bool ingombro(int errore) { return errore == ELOOP || errore == EISDIR || errore == ENXIO; }

bool fileComune(int file) {
    struct stat stato {};
    return ::fstat(file, &stato) == 0 && S_ISREG(stato.st_mode);
}

// FNV-1a: names that differ in one character must not meet.
// Source: Fowler, Noll and Vo (1991) (not looked up).
std::string impronta(const std::string& nome) {
    std::uint64_t somma = 14695981039346656037u;
    for (const char c : nome) somma = (somma ^ static_cast<unsigned char>(c)) * 1099511628211u;
    return std::to_string(somma);
}

}  // namespace

Serratura::Esito Serratura::prendi(const std::string& percorso) {
    constexpr int tentativi = 100;  // each fails only because another let go meanwhile
    lascia();
    percorso_ = percorso;
    for (int i = 0; i < tentativi; ++i) {
        const int file = apri(percorso);
        if (file < 0) return ingombro(errno) ? Esito::ingombra : Esito::impossibile;
        if (!fileComune(file)) {
            ::close(file);
            return Esito::ingombra;
        }
        const Custodia custodia = prendiInCustodia(file);
        if (custodia == Custodia::presa && portaIlNome(file, percorso)) {
            file_ = file;
            return Esito::presa;
        }
        ::close(file);
        if (custodia == Custodia::altrui) return Esito::occupata;
        if (custodia == Custodia::impossibile) return Esito::impossibile;
    }
    return Esito::occupata;
}

void Serratura::lascia() {
    if (file_ < 0) return;
    if (portaIlNome(file_, percorso_)) ::unlink(percorso_.c_str());
    ::close(std::exchange(file_, -1));
}

std::string nomeSerratura(const std::string& file) {
    constexpr std::size_t massimo = 255;  // bytes that a name may have on the usual file systems
    const std::filesystem::path meta = destinazione(file).value_or(file);
    const std::string nome = meta.filename().string();
    const std::string inizio(inizioProvvisori), fine(fineSerrature);
    std::string serratura = inizio + nome + fine;
    if (serratura.size() > massimo) serratura = inizio + impronta(nome) + fine;
    return (meta.parent_path() / serratura).string();
}

}  // namespace korven::base
