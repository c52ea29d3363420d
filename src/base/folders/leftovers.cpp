#include "base/folders/leftovers.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <system_error>
#include <vector>

#include "base/file_custody.hpp"
#include "base/file_identity.hpp"
#include "base/files.hpp"

namespace korven::base {

namespace {

namespace fs = std::filesystem;

// A name as mkstemp and mkdtemp make it.
bool nomeDelSistema(std::string_view nome, std::string_view inizio) {
    constexpr std::size_t lettere = 6;
    if (nome.size() != inizio.size() + lettere || !nome.starts_with(inizio)) return false;
    const auto coda = nome.substr(inizio.size());
    return std::all_of(coda.begin(), coda.end(),
                       [](unsigned char c) { return c < 128 && std::isalnum(c) != 0; });
}

bool nomeDiSerratura(std::string_view nome) {
    return nome.starts_with(inizioProvvisori) && nome.ends_with(fineSerrature);
}

bool fileProvvisorio(const fs::path& percorso) {
    std::error_code errore;
    const std::string nome = percorso.filename().string();
    return fileProprio(percorso.string()) &&
           (nomeDelSistema(nome, inizioProvvisori) ||
            (nomeDiSerratura(nome) && fs::file_size(percorso, errore) == 0));
}

bool cartellaProvvisoria(const fs::path& percorso) {
    struct stat stato {};
    return ::lstat(percorso.c_str(), &stato) == 0 && S_ISDIR(stato.st_mode) &&
           stato.st_uid == ::geteuid() &&
           nomeDelSistema(percorso.filename().string(), inizioCartelle);
}

// Collected first, since what is removed would disturb the search.
std::vector<std::string> trovati(const fs::path& cartella, bool (*resto)(const fs::path&)) {
    std::vector<std::string> tutti;
    std::error_code errore;
    fs::directory_iterator voce(cartella, errore);
    for (; !errore && voce != fs::directory_iterator(); voce.increment(errore))
        if (resto(voce->path())) tutti.push_back(voce->path().string());
    return tutti;
}

// What bears the name and is nobody's, held until it is removed: whoever made it only this moment
// finds that it has lost its name, and makes another.
template <class Rimozione>
void togliSeDiNessuno(const std::string& percorso, const Rimozione& rimozione) {
    const int file = ::open(percorso.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file < 0) return;
    if (prendiInCustodia(file) == Custodia::presa && portaIlNome(file, percorso))
        rimozione(percorso);
    ::close(file);
}

}  // namespace

void togliProvvisori(const std::string& cartella) {
    for (const auto& file : trovati(cartella.empty() ? "." : cartella, fileProvvisorio))
        togliSeDiNessuno(file, cancellaFile);
}

void togliCartelleProvvisorie() {
    std::error_code errore;
    const fs::path provvisoria = fs::temp_directory_path(errore);
    if (errore) return;
    for (const auto& cartella : trovati(provvisoria, cartellaProvvisoria))
        togliSeDiNessuno(cartella,
                         [&errore](const std::string& sua) { fs::remove_all(sua, errore); });
}

}  // namespace korven::base
