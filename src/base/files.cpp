#include "base/files.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

#include "base/file_custody.hpp"
#include "base/file_error.hpp"
#include "base/file_identity.hpp"
#include "base/open_file.hpp"
#include "base/system_reason.hpp"
#include "base/translated_texts.hpp"

namespace korven::base {

namespace {

[[noreturn]] void nonCreata(const std::string& cartella, int codice) {
    throw ErroreFile(
        cartella, 0,
        traduttore("impossibile creare la cartella") + " (" + motivoSistema(codice) + ")");
}

class Descrittore {
 public:
    Descrittore(const Disco& disco, const std::string& percorso, int modo, mode_t permessi = 0)
        : disco_(disco), numero_(disco.apri(percorso, modo, permessi)) {}
    Descrittore(const Descrittore&) = delete;
    Descrittore& operator=(const Descrittore&) = delete;
    ~Descrittore() {
        if (numero_ >= 0) ::close(numero_);
    }
    [[nodiscard]] int operator*() const { return numero_; }
    [[nodiscard]] bool chiudi() { return disco_.chiudi(std::exchange(numero_, -1)); }

 private:
    const Disco& disco_;
    int numero_;
};

void rifiutaEnorme(const std::string& percorso, std::size_t byte) {
    if (byte > massimoByte) throw ErroreFile(percorso, 0, traduttore("il file è troppo grande"));
}

std::string cartellaDi(const std::string& percorso) {
    const auto cartella = std::filesystem::path(percorso).parent_path();
    return cartella.empty() ? "." : cartella.string();
}

mode_t permessi(const std::string& percorso) {
    struct stat stato {};
    if (::stat(percorso.c_str(), &stato) == 0) return stato.st_mode & 07777;
    const mode_t maschera = ::umask(0);
    ::umask(maschera);
    return 0666 & ~maschera;
}

// The name of a file is what its folder holds. A folder that can't be flushed loses nothing.
void versaCartella(const Disco& disco, const std::string& cartella) {
    const Descrittore file(disco, cartella, O_RDONLY | O_DIRECTORY);
    if (*file >= 0) static_cast<void>(disco.versa(*file));
}

}  // namespace

std::string leggiFile(const std::string& percorso) {
    constexpr std::size_t blocco = 65536;
    const FileAperto file(percorso);
    rifiutaEnorme(percorso, file.lunghezza());
    std::string contenuto;
    for (;;) {
        const std::string altri = file.leggi(contenuto.size(), blocco);
        if (altri.empty()) return contenuto;
        contenuto += altri;
        rifiutaEnorme(percorso, contenuto.size());  // it may grow, or not know its size
    }
}

ScrittoreFile::ScrittoreFile(const std::string& percorso, const Disco& disco)
    : disco_(disco), percorso_(percorso) {
    const auto meta = destinazione(percorso);
    if (!meta) nonScritto(percorso, ELOOP);
    meta_ = *meta;
    if (struct stat stato{}; ::stat(meta_.c_str(), &stato) == 0) {
        if (S_ISDIR(stato.st_mode)) nonScritto(percorso, EISDIR);
        rifiutaSpeciale(percorso, stato);
    }
    // Taking over the name would get past a file's own write protection.
    if (::access(meta_.c_str(), F_OK) == 0 && ::access(meta_.c_str(), W_OK) != 0)
        nonScritto(percorso, errno);
    // A name of its own: after the longest name that a folder takes there is no room for more.
    const std::string modello = cartellaDi(meta_) + "/.korven-XXXXXX";
    // In custody, so that nobody takes it for what a killed program left (folders/leftovers.hpp).
    // Whoever sweeps may be quicker once, not always: a disk on which no file ever bears its own
    // name tells it otherwise by the numbers of its files, and would be asked for ever.
    constexpr int tentativi = 20;
    for (int i = 0; i < tentativi; ++i) {
        provvisorio_ = modello;
        file_ = disco_.creaProvvisorio(provvisorio_);
        if (file_ < 0) nonScritto(percorso, errno);
        if (prendiInCustodia(file_) != Custodia::altrui && portaIlNome(file_, provvisorio_)) return;
        abbandona();
    }
    nonScritto(percorso, EIO);
}

ScrittoreFile::~ScrittoreFile() { abbandona(); }

void ScrittoreFile::abbandona() {
    if (file_ < 0) return;
    ::close(std::exchange(file_, -1));
    ::unlink(provvisorio_.c_str());
}

void ScrittoreFile::fallito() {
    const int codice = errno;
    abbandona();
    nonScritto(percorso_, codice);
}

void ScrittoreFile::scrivi(std::string_view contenuto) {
    if (!scriviTutto(disco_, file_, contenuto)) fallito();
}

void ScrittoreFile::concludi() {
    const bool scritto = ::fchmod(file_, permessi(meta_)) == 0 && disco_.versa(file_) &&
                         disco_.rinomina(provvisorio_, meta_);
    if (!scritto) fallito();
    ::close(std::exchange(file_, -1));
    versaCartella(disco_, cartellaDi(meta_));
}

void controllaScrivibile(const std::string& percorso, const Disco& disco) {
    const ScrittoreFile prova(percorso, disco);
}

void scriviFile(const std::string& percorso, std::string_view contenuto, const Disco& disco) {
    ScrittoreFile file(percorso, disco);
    file.scrivi(contenuto);
    file.concludi();
}

void scriviFileNuovo(const std::string& percorso, std::string_view contenuto, const Disco& disco) {
    constexpr int nuovo = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW;
    constexpr mode_t permessiUsuali = 0666;  // less what the user's mask takes
    Descrittore file(disco, percorso, nuovo, permessiUsuali);
    if (*file < 0) nonScritto(percorso, errno);
    const bool scritto =
        scriviTutto(disco, *file, contenuto) && disco.versa(*file) && file.chiudi();
    if (!scritto) {
        const int codice = errno;
        ::unlink(percorso.c_str());
        nonScritto(percorso, codice);
    }
    versaCartella(disco, cartellaDi(percorso));
}

void accodaFile(const std::string& percorso, std::string_view contenuto, const Disco& disco) {
    Descrittore file(disco, percorso, O_WRONLY | O_APPEND);
    if (*file < 0) nonScritto(percorso, errno);
    const off_t prima = ::lseek(*file, 0, SEEK_END);
    if (!scriviTutto(disco, *file, contenuto)) {
        const int codice = errno;
        if (!disco.accorcia(*file, prima)) ::unlink(percorso.c_str());
        nonScritto(percorso, codice);
    }
    if (!file.chiudi()) nonScritto(percorso, errno);
}

bool esisteFile(const std::string& percorso) {
    std::error_code errore;
    return std::filesystem::exists(percorso, errore) &&
           !std::filesystem::is_directory(percorso, errore);
}

bool accettaFile(const std::string& cartella) {
    std::string prova = cartella + "/.korven-XXXXXX";
    const int file = ::mkostemp(prova.data(), O_CLOEXEC);
    if (file < 0) return false;
    ::close(file);
    ::unlink(prova.c_str());
    return true;
}

bool esisteNome(const std::string& percorso) {
    struct stat stato {};
    return ::lstat(percorso.c_str(), &stato) == 0;
}

void cancellaFile(const std::string& percorso) {
    ::unlink(percorso.c_str());  // an empty folder of that name stays
}

void controllaCartella(const std::string& cartella) {
    std::error_code errore;
    if (std::filesystem::is_directory(cartella, errore)) return;
    auto esistente = std::filesystem::absolute(cartella, errore);
    while (!std::filesystem::exists(esistente, errore) && esistente.has_relative_path())
        esistente = esistente.parent_path();
    if (!std::filesystem::is_directory(esistente, errore)) nonCreata(cartella, ENOTDIR);
    if (!accettaFile(esistente.string())) nonCreata(cartella, errno);
}

void creaCartella(const std::string& cartella) {
    std::error_code errore;
    std::filesystem::create_directories(cartella, errore);
    std::error_code altro;
    if (std::filesystem::is_directory(cartella, altro)) return;
    nonCreata(cartella, errore ? errore.value() : ENOTDIR);
}

}  // namespace korven::base
