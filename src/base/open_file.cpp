#include "base/open_file.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "base/disk.hpp"
#include "base/file_error.hpp"
#include "base/file_identity.hpp"
#include "base/system_reason.hpp"
#include "base/translated_texts.hpp"

namespace korven::base {

namespace {

[[noreturn]] void nonLetto(const std::string& percorso, int codice) {
    throw ErroreFile(
        percorso, 0,
        traduttore("impossibile leggere il file") + " (" + motivoSistema(codice) + ")");
}

}  // namespace

FileAperto::FileAperto(const std::string& percorso)
    : percorso_(percorso),
      // Without waiting: a pipe without a writer would hold the program.
      file_(discoDiSistema().apri(percorso, O_RDONLY | O_NONBLOCK, 0)) {
    if (file_ < 0) nonLetto(percorso, errno);
    try {
        struct stat stato {};
        if (::fstat(file_, &stato) != 0) nonLetto(percorso, errno);
        rifiutaSpeciale(percorso, stato);
    } catch (...) {
        ::close(file_);
        throw;
    }
}

FileAperto::~FileAperto() { ::close(file_); }

std::uint64_t FileAperto::lunghezza() const {
    struct stat stato {};
    if (::fstat(file_, &stato) != 0) nonLetto(percorso_, errno);
    return static_cast<std::uint64_t>(stato.st_size);
}

std::string FileAperto::leggi(std::uint64_t da, std::size_t quanti) const {
    std::string letti(quanti, '\0');
    std::size_t fatti = 0;
    while (fatti < quanti) {
        const ssize_t altri =
            ::pread(file_, letti.data() + fatti, quanti - fatti, static_cast<off_t>(da + fatti));
        if (altri < 0 && errno == EINTR) continue;  // a signal cut it short
        if (altri < 0) nonLetto(percorso_, errno);
        if (altri == 0) break;
        fatti += static_cast<std::size_t>(altri);
    }
    letti.resize(fatti);
    return letti;
}

}  // namespace korven::base
