#include "base/file_error.hpp"

#include <utility>

#include "base/system_reason.hpp"
#include "base/translated_texts.hpp"

namespace korven::base {

namespace {

std::string posizione(const std::string& percorso, long riga) {
    if (riga <= 0) return percorso;
    return percorso + ", " + traduttore("riga") + " " + std::to_string(riga);
}

}  // namespace

ErroreFile::ErroreFile(std::string percorso, long riga, std::string atteso)
    : std::runtime_error(posizione(percorso, riga) + ": " + atteso),
      percorso_(std::move(percorso)),
      riga_(riga),
      atteso_(std::move(atteso)) {}

void nonScritto(const std::string& percorso, int codice) {
    throw ErroreScrittura(
        percorso, 0,
        traduttore("impossibile scrivere il file") + " (" + motivoSistema(codice) + ")");
}

}  // namespace korven::base
