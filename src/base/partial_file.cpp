#include "base/partial_file.hpp"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>
#include <utility>

#include "base/file_custody.hpp"
#include "base/file_error.hpp"
#include "base/file_identity.hpp"
#include "base/translated_texts.hpp"

namespace korven::base {

namespace {

std::string meta(const std::string& percorso) {
    const auto dove = destinazione(percorso);
    if (!dove) nonScritto(percorso, ELOOP);
    return *dove;
}

}  // namespace

std::string nomeParziale(const std::string& percorso) { return meta(percorso) + ".parziale"; }

FileParziale::FileParziale(const std::string& percorso, const Disco& disco)
    : disco_(disco), meta_(meta(percorso)), nome_(nomeParziale(percorso)) {
    constexpr mode_t perTutti = 0666;
    file_ = disco_.apri(nome_, O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK, perTutti);
    if (file_ < 0) nonScritto(nome_, errno);
    if (prendiInCustodia(file_) != Custodia::altrui) return;
    ::close(std::exchange(file_, -1));
    throw ErroreScrittura(nome_, 0, traduttore("un altro programma sta scrivendo questo file"));
}

FileParziale::~FileParziale() {
    if (file_ >= 0) ::close(file_);
}

std::uint64_t FileParziale::leggi(std::string_view fineRiga,
                                  const std::function<bool(std::string_view)>& riga) const {
    std::ifstream flusso(nome_, std::ios::binary);
    std::string linea;
    std::uint64_t letti = 0;
    const std::string_view primaDelFine = fineRiga.substr(0, fineRiga.size() - 1);
    // The last line, if nothing ends it, is one that was cut short.
    while (std::getline(flusso, linea, fineRiga.back()) && !flusso.eof()) {
        if (!linea.ends_with(primaDelFine)) break;
        linea.resize(linea.size() - primaDelFine.size());
        if (!riga(linea)) break;
        letti += linea.size() + fineRiga.size();
    }
    return letti;
}

void FileParziale::tieni(std::uint64_t byte) {
    const auto fine = static_cast<off_t>(byte);
    if (!disco_.accorcia(file_, fine) || ::lseek(file_, fine, SEEK_SET) != fine)
        nonScritto(nome_, errno);
}

void FileParziale::scrivi(std::string_view byte) {
    if (!scriviTutto(disco_, file_, byte)) nonScritto(nome_, errno);
}

void FileParziale::concludi() {
    if (!disco_.versa(file_) || !disco_.rinomina(nome_, meta_)) nonScritto(nome_, errno);
    if (!disco_.chiudi(std::exchange(file_, -1))) nonScritto(meta_, errno);
}

}  // namespace korven::base
