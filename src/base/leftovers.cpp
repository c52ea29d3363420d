#include "base/leftovers.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <system_error>
#include <vector>

#include "base/file_custody.hpp"
#include "base/files.hpp"

namespace korven::base {

namespace {

namespace fs = std::filesystem;

// Of the user's own and of this kind; a link is neither file nor folder.
bool suo(const std::string& percorso, mode_t tipo) {
    struct stat stato {};
    return ::lstat(percorso.c_str(), &stato) == 0 && (stato.st_mode & S_IFMT) == tipo &&
           stato.st_uid == ::geteuid();
}

// Collected first, since what is removed would disturb the search.
std::vector<std::string> trovati(const fs::path& cartella, std::string_view inizio, mode_t tipo) {
    std::vector<std::string> tutti;
    std::error_code errore;
    fs::directory_iterator voce(cartella, errore);
    for (; !errore && voce != fs::directory_iterator(); voce.increment(errore))
        if (voce->path().filename().string().starts_with(inizio) && suo(voce->path(), tipo))
            tutti.push_back(voce->path().string());
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
    for (const auto& file : trovati(cartella.empty() ? "." : cartella, inizioProvvisori, S_IFREG))
        togliSeDiNessuno(file, cancellaFile);
}

void togliCartelleProvvisorie() {
    std::error_code errore;
    const fs::path provvisoria = fs::temp_directory_path(errore);
    if (errore) return;
    for (const auto& cartella : trovati(provvisoria, inizioCartelle, S_IFDIR))
        togliSeDiNessuno(cartella,
                         [&errore](const std::string& sua) { fs::remove_all(sua, errore); });
}

}  // namespace korven::base
