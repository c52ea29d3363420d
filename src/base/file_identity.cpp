#include "base/file_identity.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "base/translated_texts.hpp"

namespace korven::base {

namespace {

namespace fs = std::filesystem;

// Where a file would lie: a folder that exists, and the names below it, most often one.
struct Posto {
    fs::path cartella, sotto;
};

std::optional<Posto> posto(const std::string& percorso) {
    const auto meta = destinazione(percorso);
    if (!meta) return std::nullopt;
    std::error_code errore;
    fs::path cartella = fs::absolute(*meta, errore);
    fs::path sotto;
    do {
        if (!cartella.has_relative_path()) return std::nullopt;
        sotto = sotto.empty() ? cartella.filename() : cartella.filename() / sotto;
        cartella = cartella.parent_path();
    } while (!fs::exists(cartella, errore));
    return Posto{cartella, sotto.lexically_normal()};
}

}  // namespace

std::optional<std::string> destinazione(const std::string& percorso) {
    constexpr int massimoLink = 40;  // as many as the system itself would follow
    fs::path meta = percorso;
    for (int i = 0; i < massimoLink; ++i) {
        std::error_code errore;
        const auto oltre = fs::read_symlink(meta, errore);
        if (errore) return meta.string();
        meta = meta.parent_path() / oltre;  // an absolute target replaces the folder
    }
    return std::nullopt;
}

bool stessoFile(const std::string& uno, const std::string& altro) {
    std::error_code errore;
    if (uno == altro || fs::equivalent(uno, altro, errore)) return true;
    const auto primo = posto(uno), secondo = posto(altro);
    if (!primo || !secondo) return false;
    const std::string qui = primo->sotto.string(), la = secondo->sotto.string();
    if (minuscolo(qui) != minuscolo(la)) return false;
    if (!fs::equivalent(primo->cartella, secondo->cartella, errore)) return false;
    return qui == la || senzaMaiuscole(primo->cartella.string());
}

bool senzaMaiuscole(const std::string& cartella) {
    std::string nome = cartella + "/.korven-XXXXXX";
    const int file = ::mkostemp(nome.data(), O_CLOEXEC);
    if (file < 0) return false;
    ::close(file);
    const std::string maiuscole = cartella + "/.KORVEN-" + nome.substr(nome.size() - 6);
    std::error_code errore;
    const bool uguali = fs::equivalent(nome, maiuscole, errore);
    ::unlink(nome.c_str());
    return uguali;
}

bool fileProprio(const std::string& percorso) {
    struct stat stato {};
    return ::lstat(percorso.c_str(), &stato) == 0 && S_ISREG(stato.st_mode) &&
           stato.st_uid == ::geteuid();
}

std::optional<std::time_t> quandoScritto(const std::string& percorso) {
    struct stat stato {};
    if (::stat(percorso.c_str(), &stato) != 0) return std::nullopt;
    return stato.st_mtime;
}

ImprontaFile::ImprontaFile(const std::string& percorso) {
    struct stat stato {};
    if (::stat(percorso.c_str(), &stato) != 0) return;
    numero_ = static_cast<long long>(stato.st_ino);
    secondi_ = stato.st_ctim.tv_sec;
    nanosecondi_ = stato.st_ctim.tv_nsec;
}

void rifiutaSpeciale(const std::string& percorso, const struct stat& stato) {
    if (!S_ISREG(stato.st_mode) && !S_ISDIR(stato.st_mode))
        throw ErroreFile(percorso, 0, traduttore("non è un file normale"));
}

}  // namespace korven::base
