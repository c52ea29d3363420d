#include "commands/rescue/kept_rescue.hpp"

#include <filesystem>
#include <utility>

#include "base/file_error.hpp"
#include "base/files.hpp"
#include "base/translated_texts.hpp"
#include "commands/rescue/rescue_names.hpp"

namespace korven::commands {

RecuperoTenuto recuperoTenuto;

namespace {

// Both may be the same place; the second is made, since a new user may have none yet.
FileRecupero creaDaQualcheParte(const std::string& progetto, const std::string& byte,
                                const base::Disco& disco) {
    try {
        return FileRecupero::crea(std::filesystem::path(progetto).parent_path().string(), progetto,
                                  byte, disco);
    } catch (const base::ErroreFile& accanto) {
        try {
            base::creaCartella(cartellaRecuperi());
            return FileRecupero::crea(cartellaRecuperi(), progetto, byte, disco);
        } catch (const base::ErroreFile&) {
            throw accanto;  // of the two the one about the user's own folder
        }
    }
}

}  // namespace

std::string RecuperoTenuto::guarda(const base::Disco& disco) {
    const std::string progetto = progettoAperto();
    if (!project::modificato || progetto != progetto_) rinuncia();
    progetto_ = progetto;
    if (!project::modificato || progetto.empty()) return {};
    const std::string byte = byteRecupero(project::Progetto, progetto);
    std::string perche;
    if (!riscritto(byte, disco)) perche = scriviAltrove(byte, disco);
    const bool nuovo = !perche.empty() && !fallito_;
    fallito_ = !perche.empty();
    return nuovo ? perche : std::string();
}

bool RecuperoTenuto::riscritto(const std::string& byte, const base::Disco& disco) {
    if (!tenuto()) return false;
    if (file_->byte() == byte) return true;
    try {
        file_->riscrivi(byte, disco);
        return true;
    } catch (const base::ErroreFile&) {
        return false;
    }
}

std::string RecuperoTenuto::scriviAltrove(const std::string& byte, const base::Disco& disco) {
    if (!tenuto()) rinuncia();  // somebody has taken it away, and its name may be free
    try {
        FileRecupero nuovo = creaDaQualcheParte(progetto_, byte, disco);
        rinuncia();  // the older state, which the new file replaces
        file_ = std::move(nuovo);
        return {};
    } catch (const base::ErroreFile& errore) {
        return base::traduttore(
                   "Le modifiche sono solo in memoria, il file di recupero non si può "
                   "scrivere") +
               ": " + errore.what();
    }
}

void RecuperoTenuto::adotta(FileRecupero file) {
    rinuncia();
    progetto_ = progettoAperto();
    file_ = std::move(file);
}

void RecuperoTenuto::rinuncia() {
    if (file_) file_->togli();
    file_.reset();
}

std::string RecuperoTenuto::chiudi(const base::Disco& disco) {
    if (progettoAperto() != progetto_ ||
        !riscritto(byteRecupero(project::Progetto, progetto_), disco))
        return {};
    return percorso();
}

}  // namespace korven::commands
