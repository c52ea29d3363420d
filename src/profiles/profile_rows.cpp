#include "profiles/profile_rows.hpp"

#include <algorithm>
#include <array>
#include <cassert>
#include <cmath>
#include <optional>

#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "exchange/file_text.hpp"

namespace korven::profiles {

namespace {

using base::traduttore;

constexpr char separatore = ';';
constexpr std::string_view nomeDiametro = "diametro", nomeSpessore = "spessore";
constexpr std::string_view prefisso = "sezione.";

// Why a line is no row: a key of the table of texts with what it is about.
struct Guasto {
    std::string_view testo;
    std::string parte;
    [[nodiscard]] std::string detto() const { return base::riempito(traduttore(testo), {parte}); }
};

std::string_view rifila(std::string_view testo) {
    constexpr std::string_view bianchi = " \t\r\n\v\f";
    const auto da = testo.find_first_not_of(bianchi);
    if (da == std::string_view::npos) return {};
    return testo.substr(da, testo.find_last_not_of(bianchi) - da + 1);
}

std::string_view nomeMisura(std::size_t campo) {
    return masks::campiSezione[campo].campo().nome.substr(prefisso.size());
}

std::optional<std::size_t> misura(std::string_view nome) {
    for (std::size_t i = 0; i < masks::numeroCampiSezione; ++i)
        if (nomeMisura(i) == nome) return i;
    return std::nullopt;
}

// A control character would break the row, or the list that shows it.
bool conControlli(std::string_view testo) {
    return std::any_of(testo.begin(), testo.end(),
                       [](unsigned char c) { return c < 0x20 || c == 0x7f; });
}

std::optional<Genere> genere(std::string_view nome) {
    for (const Genere g : {Genere::ferro, Genere::tubo, Genere::diaframma, Genere::pali,
                           Genere::palancola, Genere::paliArmati})
        if (parola(g) == nome) return g;
    return std::nullopt;
}

bool diProfilato(const Profilo& p) { return p.genere == Genere::ferro || p.genere == Genere::tubo; }

// The place of a number in the profile; nullptr for a name that its kind does not have.
double* posto(std::string_view nome, Profilo& p) {
    if (diProfilato(p)) {
        if (nome == nomeDiametro) return &p.diametro;
        return nome == nomeSpessore && p.genere == Genere::tubo ? &p.spessore : nullptr;
    }
    const auto campo = misura(nome);
    if (!campo || !ammessa(p.genere, *campo)) return nullptr;
    for (auto& [quale, valore] : p.misure)
        if (quale == *campo) return &valore;
    return &p.misure.emplace_back(*campo, 0).second;
}

std::optional<Guasto> leggiMisura(std::string_view parte, Profilo& p) {
    const auto uguale = parte.find('=');
    if (uguale == std::string_view::npos)
        return Guasto{"«%1»: una misura si scrive nome=numero", std::string(parte)};
    double* dove = posto(parte.substr(0, uguale), p);
    if (dove == nullptr)
        return Guasto{"«%1» non è una misura di questo genere",
                      std::string(parte.substr(0, uguale))};
    if (*dove != 0) return Guasto{"«%1» è scritta due volte", std::string(parte.substr(0, uguale))};
    const std::string_view testo = parte.substr(uguale + 1);
    const auto valore = base::leggiNumero(testo);
    if (!base::soloUnNumero(testo) || !valore || !(*valore > 0) || !std::isfinite(*valore))
        return Guasto{"«%1» non è un numero maggiore di 0 (il segno decimale è il punto)",
                      std::string(testo)};
    *dove = *valore;
    return std::nullopt;
}

std::optional<Guasto> leggiMisure(std::string_view testo, Profilo& p) {
    for (auto resto = rifila(testo); !resto.empty();) {
        const auto fine = std::min(resto.find_first_of(" \t"), resto.size());
        if (auto guasto = leggiMisura(resto.substr(0, fine), p)) return guasto;
        resto = rifila(resto.substr(fine));
    }
    return std::nullopt;
}

std::optional<Guasto> guasto(const Profilo& p) {
    if (p.nome.empty()) return Guasto{"manca il nome", {}};
    if (p.fonte.empty()) return Guasto{"manca la fonte", {}};
    for (const auto& testo : {p.nome, p.fonte})
        if (testo.find(separatore) != std::string::npos || conControlli(testo))
            return Guasto{"nome e fonte non possono contenere il punto e virgola", {}};
    if (p.genere == Genere::ferro && p.diametro == 0) return Guasto{"manca il diametro", {}};
    if (p.genere == Genere::tubo && (p.diametro == 0 || p.spessore == 0))
        return Guasto{"mancano diametro e spessore", {}};
    if (p.genere == Genere::tubo && 2 * p.spessore >= p.diametro)
        return Guasto{"lo spessore non sta nel diametro", {}};
    if (!diProfilato(p) && p.misure.empty()) return Guasto{"mancano le misure", {}};
    return std::nullopt;
}

std::optional<Guasto> leggiRiga(std::string_view riga, Profilo& p) {
    std::array<std::string_view, 4> parti;
    for (std::size_t i = 0; i < parti.size(); ++i) {
        const auto fine = i + 1 < parti.size() ? riga.find(separatore) : riga.size();
        if (fine == std::string_view::npos)
            return Guasto{"una riga ha quattro parti: genere; nome; misure; fonte", {}};
        parti[i] = rifila(riga.substr(0, fine));
        riga.remove_prefix(std::min(fine + 1, riga.size()));
    }
    const auto quale = genere(parti[0]);
    if (!quale) return Guasto{"«%1» non è un genere di profilo", std::string(parti[0])};
    p.genere = *quale;
    p.nome = parti[1];
    p.fonte = parti[3];
    if (auto delleMisure = leggiMisure(parti[2], p)) return delleMisure;
    return guasto(p);
}

void aggiungi(std::string& misure, std::string_view nome, double valore) {
    if (!misure.empty()) misure += ' ';
    misure.append(nome).append("=").append(base::testoNumero(valore));
}

}  // namespace

std::vector<std::string_view> righeIntere(std::string_view byte) {
    std::vector<std::string_view> righe;
    while (!byte.empty()) {
        const auto fine = byte.find('\n');
        const auto lunga = fine == std::string_view::npos ? byte.size() : fine + 1;
        righe.push_back(byte.substr(0, lunga));
        byte.remove_prefix(lunga);
    }
    return righe;
}

void leggiProfili(std::string_view byte, const std::string& file, bool proprio,
                  Catalogo& catalogo) {
    const std::string testo = exchange::testoDiFile(byte);
    long numero = 0;
    std::size_t letti = 0;
    for (const auto intera : righeIntere(testo)) {
        ++numero;
        const auto riga = rifila(intera);
        if (riga.empty() || riga.front() == '#') continue;
        if (++letti > massimoProfili) {
            catalogo.guaste.push_back(
                {file, numero, Guasto{"il catalogo ha troppe righe", {}}.detto()});
            return;
        }
        Profilo p;
        p.proprio = proprio;
        if (const auto guasta = leggiRiga(riga, p))
            catalogo.guaste.push_back({file, numero, guasta->detto()});
        else
            catalogo.profili.push_back(std::move(p));
    }
}

std::string rigaProfilo(const Profilo& p) {
    assert(!guasto(p));
    std::string misure;
    if (diProfilato(p)) aggiungi(misure, nomeDiametro, p.diametro);
    if (p.genere == Genere::tubo) aggiungi(misure, nomeSpessore, p.spessore);
    for (const auto& [campo, valore] : p.misure) aggiungi(misure, nomeMisura(campo), valore);
    return std::string(parola(p.genere)) + "; " + p.nome + "; " + misure + "; " + p.fonte;
}

std::string difetto(const Profilo& profilo) {
    const auto trovato = guasto(profilo);
    return trovato ? trovato->detto() : std::string();
}

}  // namespace korven::profiles
