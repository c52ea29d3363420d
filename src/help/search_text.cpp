#include "help/search_text.hpp"

#include <algorithm>
#include <charconv>
#include <iterator>

#include "base/code_page.hpp"

namespace korven::help {

namespace {

struct Coppia {
    std::string_view da;
    std::string_view a;
};

constexpr Coppia entita[] = {{"lt", "<"}, {"gt", ">"}, {"amp", "&"}, {"quot", "\""}};

constexpr Coppia pieghe[] = {
    {"à", "a"},       {"á", "a"},  {"â", "a"},     {"ã", "a"},    {"ä", "a"},     {"ç", "c"},
    {"è", "e"},       {"é", "e"},  {"ê", "e"},     {"ë", "e"},    {"ì", "i"},     {"í", "i"},
    {"î", "i"},       {"ï", "i"},  {"ñ", "n"},     {"ò", "o"},    {"ó", "o"},     {"ô", "o"},
    {"õ", "o"},       {"ö", "o"},  {"ù", "u"},     {"ú", "u"},    {"û", "u"},     {"ü", "u"},
    {"²", "2"},       {"³", "3"},  {"α", "alpha"}, {"β", "beta"}, {"γ", "gamma"}, {"δ", "delta"},
    {"ε", "epsilon"}, {"ν", "ny"}, {"π", "pi"},    {"ρ", "rho"},  {"σ", "sigma"}, {"τ", "tau"},
    {"φ", "phi"},
};

// Signs beside which a word begins: left as they are, they would count as letters of it.
constexpr Coppia segni[] = {
    {"\u00a0", " "}, {"\u202f", " "}, {"«", "\""}, {"»", "\""}, {"„", "\""}, {"“", "\""},
    {"”", "\""},     {"’", "'"},      {"–", "-"},  {"—", "-"},  {"−", "-"},  {"…", "..."},
};

// Tags within a line of text; every other one parts the text before it from that after it.
constexpr std::string_view nellaRiga[] = {"sub", "sup", "b", "i", "a", "code", "span"};

template <class Tabella>
const Coppia* cerca(const Tabella& tabella, std::string_view da) {
    const auto* trovata = std::find_if(std::begin(tabella), std::end(tabella),
                                       [=](const Coppia& c) { return c.da == da; });
    return trovata == std::end(tabella) ? nullptr : trovata;
}

void aggiungiCarattere(std::string& testo, unsigned codice) {
    const auto byte = [&testo](unsigned b) { testo += static_cast<char>(b); };
    if (codice < 0x80) {
        byte(codice);
    } else if (codice < 0x800) {
        byte(0xC0 | codice >> 6);
        byte(0x80 | (codice & 0x3F));
    } else if (codice < 0x10000) {
        byte(0xE0 | codice >> 12);
        byte(0x80 | (codice >> 6 & 0x3F));
        byte(0x80 | (codice & 0x3F));
    }
}

void aggiungiEntita(std::string& testo, std::string_view nome) {
    if (const Coppia* nota = cerca(entita, nome)) {
        testo += nota->a;
        return;
    }
    unsigned codice = 0;
    if (nome.starts_with('#')) std::from_chars(nome.data() + 1, nome.data() + nome.size(), codice);
    aggiungiCarattere(testo, codice == 0 ? unsigned{' '} : codice);
}

bool parte(std::string_view tag) {
    if (tag.starts_with('/')) tag.remove_prefix(1);
    tag = tag.substr(0, tag.find_first_of(" /"));
    return std::find(std::begin(nellaRiga), std::end(nellaRiga), tag) == std::end(nellaRiga);
}

std::string senzaSegni(std::string_view html) {
    std::string testo;
    while (!html.empty()) {
        const char c = html.front();
        const auto fine = c == '<' ? html.find('>') : c == '&' ? html.find(';') : html.npos;
        if (fine == html.npos) {
            testo += c;
            html.remove_prefix(1);
            continue;
        }
        const auto dentro = html.substr(1, fine - 1);
        if (c == '&')
            aggiungiEntita(testo, dentro);
        else if (parte(dentro))
            testo += ' ';
        html.remove_prefix(fine + 1);
    }
    return testo;
}

}  // namespace

std::string testoPagina(std::string_view html) {
    std::string testo;
    for (const char c : senzaSegni(html)) {
        const bool bianco = c == ' ' || c == '\n' || c == '\r' || c == '\t';
        if (!bianco)
            testo += c;
        else if (!testo.empty() && testo.back() != ' ')
            testo += ' ';
    }
    return std::string(base::senzaSpaziEsterni(testo));
}

TestoPiegato piega(std::string_view testo) {
    TestoPiegato piegato;
    for (std::size_t i = 0; i < testo.size();) {
        const auto lunghezza = base::lunghezzaPrimoCarattere(testo.substr(i));
        const std::string minuscola = base::minuscolo(testo.substr(i, lunghezza));
        const Coppia* piega = cerca(pieghe, minuscola);
        if (piega == nullptr) piega = cerca(segni, minuscola);
        const std::string_view nuovo = piega != nullptr ? piega->a : std::string_view(minuscola);
        piegato.testo += nuovo;
        piegato.origine.insert(piegato.origine.end(), nuovo.size(), i);
        i += lunghezza;
    }
    return piegato;
}

}  // namespace korven::help
