#include "base/file_custody.hpp"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "base/file_error.hpp"
#include "base/files.hpp"

namespace korven::base {

namespace {

bool sostituisci(int file, std::string_view contenuto, const Disco& disco) {
    return disco.accorcia(file, 0) && ::lseek(file, 0, SEEK_SET) == 0 &&
           scriviTutto(disco, file, contenuto);
}

}  // namespace

Custodia prendiInCustodia(int file) {
    while (::flock(file, LOCK_EX | LOCK_NB) != 0)
        if (errno != EINTR) return errno == EWOULDBLOCK ? Custodia::altrui : Custodia::impossibile;
    return Custodia::presa;
}

bool portaIlNome(int file, const std::string& percorso) {
    struct stat suo {
    }, delNome{};
    return ::fstat(file, &suo) == 0 && ::lstat(percorso.c_str(), &delNome) == 0 &&
           suo.st_dev == delNome.st_dev && suo.st_ino == delNome.st_ino;
}

InCustodia::InCustodia(InCustodia&& altra) noexcept
    : percorso_(std::move(altra.percorso_)), file_(std::exchange(altra.file_, -1)) {}

InCustodia& InCustodia::operator=(InCustodia&& altra) noexcept {
    std::swap(percorso_, altra.percorso_);
    std::swap(file_, altra.file_);
    return *this;
}

bool InCustodia::prendiFile(const std::string& percorso) {
    constexpr int modo = O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    constexpr mode_t soloSuo = 0600;
    lascia();
    percorso_ = percorso;
    file_ = ::open(percorso.c_str(), modo, soloSuo);
    if (file_ < 0) {
        const int codice = errno;
        if (codice == ELOOP || (codice == EACCES && esisteNome(percorso))) return false;
        nonScritto(percorso, codice);
    }
    if (prendiInCustodia(file_) != Custodia::altrui && portaIlNome()) return true;
    lascia();
    return false;
}

bool InCustodia::prendiCartella(const std::string& percorso) {
    lascia();
    percorso_ = percorso;
    file_ = ::open(percorso.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (file_ < 0) return errno != ENOENT;
    if (prendiInCustodia(file_) != Custodia::altrui && portaIlNome()) return true;
    lascia();
    return false;
}

bool InCustodia::portaIlNome() const { return file_ >= 0 && base::portaIlNome(file_, percorso_); }

void InCustodia::riscrivi(std::string_view contenuto, const Disco& disco) {
    if (sostituisci(file_, contenuto, disco)) return;
    const int codice = errno;
    cancellaFile(percorso_);
    lascia();
    nonScritto(percorso_, codice);
}

void InCustodia::lascia() {
    if (file_ >= 0) ::close(std::exchange(file_, -1));
}

}  // namespace korven::base
