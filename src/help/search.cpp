#include "help/search.hpp"

#include <algorithm>

#include "base/code_page.hpp"
#include "help/search_text.hpp"

namespace korven::help {

namespace {

constexpr int pesoTitolo = 100;
constexpr int pesoParole = 10;
constexpr int pesoTesto = 1;

constexpr std::size_t primaDelBrano = 40;  // bytes of the excerpt before the word found
constexpr std::size_t lunghezzaBrano = 130;

bool dellaParola(char c) {
    return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || static_cast<unsigned char>(c) > 127;
}

// Where a word begins with `parola`; npos if nowhere.
std::size_t trovaParola(std::string_view testo, std::string_view parola, std::size_t da = 0) {
    for (auto i = testo.find(parola, da); i != testo.npos; i = testo.find(parola, i + 1))
        if (i == 0 || !dellaParola(testo[i - 1]) || !dellaParola(parola.front())) return i;
    return testo.npos;
}

// From a blank before `centro` to a blank after it, so that no word and no character is cut.
std::string brano(std::string_view testo, std::size_t centro) {
    std::size_t inizio = centro > primaDelBrano ? centro - primaDelBrano : 0;
    if (inizio > 0) inizio = std::min(testo.find(' ', inizio) + 1, centro);
    std::size_t fine = testo.size();
    if (fine - inizio > lunghezzaBrano) {
        fine = testo.rfind(' ', inizio + lunghezzaBrano);
        if (fine == testo.npos || fine <= centro) fine = testo.size();
    }
    std::string fatto(testo.substr(inizio, fine - inizio));
    if (inizio > 0) fatto.insert(0, "… ");
    if (fine < testo.size()) fatto += " …";
    return fatto;
}

struct Pesata {
    Trovata trovata;
    int peso = 0;
};

// Weight 0 when a word is missing.
Pesata pesa(const PaginaGuida& pagina, const std::vector<std::string>& parole) {
    const std::string titolo = piega(pagina.titolo).testo;
    const std::string chiavi = piega(pagina.parole).testo;
    const std::string testo = testoPagina(pagina.html);
    const TestoPiegato piegato = piega(testo);
    Pesata pesata{{&pagina, {}}, 0};
    std::size_t primo = testo.npos;
    for (const auto& parola : parole) {
        const auto posto = trovaParola(piegato.testo, parola);
        const int peso = trovaParola(titolo, parola) != titolo.npos   ? pesoTitolo
                         : trovaParola(chiavi, parola) != chiavi.npos ? pesoParole
                         : posto != testo.npos                        ? pesoTesto
                                                                      : 0;
        if (peso == 0) return {};
        pesata.peso += peso;
        if (posto != testo.npos) primo = std::min(primo, piegato.origine[posto]);
    }
    pesata.trovata.brano = brano(testo, primo == testo.npos ? 0 : primo);
    return pesata;
}

}  // namespace

std::vector<std::string> paroleCercate(std::string_view cerca) {
    const std::string piegato = piega(cerca).testo;
    std::vector<std::string> parole;
    std::string parola;
    for (const char c : piegato + ' ') {
        if (c != ' ' && c != '\t' && c != '\n') {
            parola += c;
        } else if (!parola.empty()) {
            parole.push_back(parola);
            parola.clear();
        }
    }
    return parole;
}

std::vector<std::pair<std::size_t, std::size_t>> postiTrovati(
    std::string_view testo, const std::vector<std::string>& parole) {
    const TestoPiegato piegato = piega(testo);
    const auto origine = [&](std::size_t i) {
        return i < piegato.origine.size() ? piegato.origine[i] : testo.size();
    };
    std::vector<std::pair<std::size_t, std::size_t>> posti;
    for (const auto& parola : parole)
        for (auto i = trovaParola(piegato.testo, parola); i != testo.npos;
             i = trovaParola(piegato.testo, parola, i + 1))
            posti.emplace_back(origine(i), origine(i + parola.size()));
    return posti;
}

std::vector<Trovata> cercaNellaGuida(const Guida& guida, std::string_view cerca) {
    const auto parole = paroleCercate(cerca);
    if (parole.empty()) return {};
    std::vector<Pesata> pesate;
    for (const auto& pagina : guida.pagine)
        if (auto pesata = pesa(pagina, parole); pesata.peso > 0)
            pesate.push_back(std::move(pesata));
    std::stable_sort(pesate.begin(), pesate.end(),
                     [](const Pesata& a, const Pesata& b) { return a.peso > b.peso; });
    std::vector<Trovata> trovate;
    trovate.reserve(pesate.size());
    for (auto& pesata : pesate) trovate.push_back(std::move(pesata.trovata));
    return trovate;
}

}  // namespace korven::help
