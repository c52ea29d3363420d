#include "help/pages.hpp"

#include <algorithm>
#include <charconv>

#include "base/code_page.hpp"
#include "base/text_lines.hpp"
#include "base/translated_texts.hpp"
#include "help/contexts.hpp"

namespace korven::help {

namespace {

constexpr std::string_view segnoCapitolo = "@capitolo ";
constexpr std::string_view segnoPagina = "@pagina ";

// Entry and name after "@pagina ": "5 stratigrafia".
bool leggiSegno(std::string_view testo, PaginaGuida& pagina) {
    const char* fine = testo.data() + testo.size();
    const auto [resto, errore] = std::from_chars(testo.data(), fine, pagina.voce);
    if (errore != std::errc() || resto == fine || *resto != ' ') return false;
    if (pagina.voce < 0 || pagina.voce > ultimaVoceGuida) return false;
    pagina.nome = base::senzaSpaziEsterni(std::string_view(resto, fine));
    return !pagina.nome.empty();
}

bool giaUsata(const Guida& guida, const PaginaGuida& nuova) {
    return std::any_of(guida.pagine.begin(), guida.pagine.end(), [&nuova](const auto& p) {
        return p.nome == nuova.nome || (nuova.voce != 0 && p.voce == nuova.voce);
    });
}

// Reads the lines after "@pagina", up to the next "@" or the end.
// @return the line that ended the page; empty at the end of the file
std::string leggiPagina(base::LettoreRighe& lettore, PaginaGuida& pagina) {
    const std::string attesoTitolo = base::traduttore("atteso il titolo della pagina");
    pagina.titolo = lettore.riga(attesoTitolo);
    if (pagina.titolo.empty() || pagina.titolo.front() == '@') lettore.rifiuta(attesoTitolo);
    pagina.parole = lettore.riga(attesoTitolo);
    std::string riga;
    while (!lettore.fine()) {
        riga = lettore.riga({});
        if (riga.starts_with('@')) break;
        pagina.html += riga + '\n';
        riga.clear();
    }
    if (pagina.html.empty()) lettore.rifiuta(base::traduttore("atteso il testo della pagina"));
    return riga;
}

Guida leggi(base::LettoreRighe& lettore) {
    const std::string attesaPrima =
        base::traduttore("attesa la prima riga di una guida") + ": " + std::string(primaRigaGuida);
    if (lettore.riga(attesaPrima) != primaRigaGuida) lettore.rifiuta(attesaPrima);
    const std::string attesoSegno = base::traduttore("attesa una riga @capitolo o @pagina");
    Guida guida;
    std::string riga = lettore.riga(attesoSegno);
    while (!riga.empty()) {
        if (riga.starts_with(segnoCapitolo)) {
            guida.capitoli.push_back(riga.substr(segnoCapitolo.size()));
            riga = lettore.fine() ? std::string() : lettore.riga(attesoSegno);
            continue;
        }
        PaginaGuida pagina;
        if (!riga.starts_with(segnoPagina) || guida.capitoli.empty()) lettore.rifiuta(attesoSegno);
        if (!leggiSegno(std::string_view(riga).substr(segnoPagina.size()), pagina))
            lettore.rifiuta(base::traduttore("attesi la voce di aiuto e il nome di una pagina"));
        if (giaUsata(guida, pagina))
            lettore.rifiuta(base::traduttore("attesi una voce e un nome non ancora usati"));
        pagina.capitolo = guida.capitoli.size() - 1;
        riga = leggiPagina(lettore, pagina);
        guida.pagine.push_back(std::move(pagina));
    }
    if (!lettore.fine() || guida.pagine.empty()) lettore.rifiuta(attesoSegno);
    return guida;
}

template <class Regola>
const PaginaGuida* prima(const Guida& guida, Regola regola) {
    const auto trovata = std::find_if(guida.pagine.begin(), guida.pagine.end(), regola);
    return trovata == guida.pagine.end() ? nullptr : &*trovata;
}

}  // namespace

Guida leggiGuida(const std::string& percorso) {
    auto lettore = base::LettoreRighe::apri(percorso);
    return leggi(lettore);
}

Guida leggiGuida(const std::string& percorso, std::string contenuto) {
    base::LettoreRighe lettore(percorso, std::move(contenuto));
    return leggi(lettore);
}

const PaginaGuida* paginaDelContesto(const Guida& guida, int contesto) {
    if (contesto == 0) return nullptr;
    return prima(guida, [=](const auto& p) { return contestoGuida(p.voce) == contesto; });
}

const PaginaGuida* paginaDiNome(const Guida& guida, std::string_view nome) {
    return prima(guida, [=](const auto& p) { return p.nome == nome; });
}

bool haAncora(const PaginaGuida& pagina, std::string_view ancora) {
    return !ancora.empty() &&
           pagina.html.find("<a name=\"" + std::string(ancora) + "\">") != std::string::npos;
}

}  // namespace korven::help
