#include "base/text_lines.hpp"

#include "base/code_page.hpp"
#include "base/colon.hpp"
#include "base/file_error.hpp"
#include "base/files.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"

namespace korven::base {

namespace {

// What an editor did to the file on saving it, an Italian key; empty if it looks like plain text.
// A mark of UTF-8 spoils the first line alone.
std::string_view altraCodifica(std::string_view contenuto, long riga) {
    if (contenuto.starts_with("\xFF\xFE") || contenuto.starts_with("\xFE\xFF"))
        return "il file comincia con un segno d'ordine dei byte (BOM) di UTF-16: salvarlo come "
               "testo "
               "ANSI (Windows-1252)";
    if (riga == 1 && contenuto.starts_with("\xEF\xBB\xBF"))
        return "il file comincia con un segno d'ordine dei byte (BOM) di UTF-8: salvarlo come "
               "testo "
               "ANSI (Windows-1252)";
    if (contenuto.find('\0') != std::string_view::npos)
        return "il file contiene byte nulli: è in UTF-16 oppure non è un testo";
    return {};
}

// The mark with which programs of DOS ended a text.
std::string senzaSegnoFinale(std::string contenuto) {
    const std::size_t ultimo = contenuto.find_last_not_of("\r\n\x1A");
    const std::size_t fine = contenuto.find('\x1A', ultimo == std::string::npos ? 0 : ultimo + 1);
    if (fine != std::string::npos) contenuto.resize(fine);
    return contenuto;
}

}  // namespace

LettoreRighe LettoreRighe::apri(const std::string& percorso, std::string rimedio) {
    return {percorso, leggiFile(percorso), std::move(rimedio)};
}

LettoreRighe::LettoreRighe(std::string percorso, std::string contenuto, std::string rimedio)
    : percorso_(std::move(percorso)),
      contenuto_(senzaSegnoFinale(std::move(contenuto))),
      rimedio_(std::move(rimedio)) {}

bool LettoreRighe::fine() const {
    const std::string_view resto = std::string_view(contenuto_).substr(posizione_);
    return resto.empty() || resto == "\n" || resto == "\r\n" || resto == "\r";
}

bool LettoreRighe::soloRigheVuote() const {
    return contenuto_.find_first_not_of(" \t\r\n", posizione_) == std::string::npos;
}

std::string_view LettoreRighe::prossima(std::string_view atteso) {
    ++letta_;
    if (posizione_ >= contenuto_.size())
        rifiuta(traduttore("il file termina qui, atteso") + duePunti() + std::string(atteso));
    std::string_view riga = std::string_view(contenuto_).substr(posizione_);
    const std::size_t fine = riga.find('\n');
    posizione_ += fine == std::string_view::npos ? riga.size() : fine + 1;
    riga = riga.substr(0, fine);
    if (riga.ends_with('\r')) riga.remove_suffix(1);
    return riga;
}

std::string LettoreRighe::riga(std::string_view atteso) { return daCp1252(prossima(atteso)); }

double LettoreRighe::numero(std::string_view atteso) {
    if (const auto valore = leggiNumero(prossima(atteso))) return *valore;
    rifiuta(traduttore("atteso un numero") + duePunti() + std::string(atteso));
}

double LettoreRighe::numeroSolo(double minimo, double massimo, std::string_view atteso) {
    const std::string_view scritto = prossima(atteso);
    const auto valore = leggiNumero(scritto);
    if (!valore || !soloUnNumero(scritto))
        rifiuta(traduttore("atteso un numero") + duePunti() + std::string(atteso));
    if (!(*valore >= minimo && *valore <= massimo))
        rifiuta(traduttore("valore fuori dai limiti") + " (" + testoNumero(minimo) + " - " +
                testoNumero(massimo) + "): " + std::string(atteso));
    return *valore;
}

bool LettoreRighe::rigaIntera() const {
    return posizione_ > 0 && contenuto_[posizione_ - 1] == '\n';
}

void LettoreRighe::rifiuta(std::string_view atteso) const {
    std::string testo(atteso);
    if (const auto causa = altraCodifica(contenuto_, letta_); !causa.empty())
        testo += "; " + traduttore(causa);
    if (!rimedio_.empty()) testo += "; " + rimedio_;
    throw ErroreFile(percorso_, letta_, testo);
}

}  // namespace korven::base
