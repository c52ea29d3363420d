#include "exchange/delimited_reader.hpp"

#include <algorithm>

#include "base/code_page.hpp"
#include "base/translated_texts.hpp"
#include "exchange/fault_texts.hpp"

namespace korven::exchange {

bool RigaLetta::vuota() const {
    return std::all_of(celle.begin(), celle.end(), [](const CellaLetta& c) {
        return base::senzaSpaziEsterni(c.testo).empty();
    });
}

std::string_view RigaLetta::cella(std::size_t numero) const {
    return numero < celle.size() ? base::senzaSpaziEsterni(celle[numero].testo)
                                 : std::string_view{};
}

bool LettoreDelimitato::aFineCella() const {
    return finito() || qui() == separatore_ || qui() == '\r' || qui() == '\n';
}

void LettoreDelimitato::saltaSpazi() {
    while (!finito() && qui() == ' ') ++posizione_;
}

// CR LF is one line end.
bool LettoreDelimitato::saltaFineRiga() {
    if (finito() || (qui() != '\r' && qui() != '\n')) return false;
    const bool cr = qui() == '\r';
    ++posizione_;
    if (cr && !finito() && qui() == '\n') ++posizione_;
    ++riga_;
    return true;
}

CellaLetta LettoreDelimitato::traVirgolette(std::size_t numero) {
    const long inizio = riga_;
    CellaLetta letta{{}, true};
    ++posizione_;
    while (!finito()) {
        if (qui() == '"') {
            ++posizione_;
            if (finito() || qui() != '"') {
                saltaSpazi();
                if (!aFineCella())
                    difetto_ =
                        inRiga(riga_, numero,
                               base::traduttore("dopo le virgolette chiuse c'è altro testo; "
                                                "le virgolette nel testo vanno raddoppiate"));
                return letta;
            }
            letta.testo += '"';
            ++posizione_;
            continue;
        }
        const std::size_t prima = posizione_;
        if (!saltaFineRiga()) ++posizione_;
        letta.testo += testo_.substr(prima, posizione_ - prima);
    }
    difetto_ =
        inRiga(inizio, numero, base::traduttore("le virgolette aperte non vengono mai chiuse"));
    return letta;
}

CellaLetta LettoreDelimitato::cella(std::size_t numero) {
    const std::size_t inizio = posizione_;
    saltaSpazi();
    if (!finito() && qui() == '"') return traVirgolette(numero);
    while (!aFineCella()) ++posizione_;
    return {std::string(testo_.substr(inizio, posizione_ - inizio)), false};
}

std::optional<RigaLetta> LettoreDelimitato::prossima() {
    if (finito() || !difetto_.empty()) return {};
    RigaLetta letta{riga_, {}};
    while (true) {
        letta.celle.push_back(cella(letta.celle.size() + 1));
        if (!difetto_.empty()) return {};
        if (finito() || saltaFineRiga()) return letta;
        ++posizione_;  // the sign between two cells
    }
}

std::optional<RigaLetta> LettoreDelimitato::prossimaPiena() {
    auto riga = prossima();
    while (riga && riga->vuota()) riga = prossima();
    return riga;
}

}  // namespace korven::exchange
