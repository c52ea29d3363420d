#include "base/number_text.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>
#include <utility>

#include "base/decimal_digits.hpp"

namespace korven::base {

namespace {

bool cifra(char c) { return c >= '0' && c <= '9'; }

std::size_t dopoLeCifre(std::string_view testo, std::size_t da) {
    while (da < testo.size() && cifra(testo[da])) ++da;
    return da;
}

// Length of the number at the head of a text that begins with neither blank nor sign; 0 if none.
std::size_t lunghezzaNumero(std::string_view testo) {
    std::size_t fine = dopoLeCifre(testo, 0);
    std::size_t quante = fine;
    if (fine < testo.size() && testo[fine] == '.') {
        const std::size_t decimali = dopoLeCifre(testo, fine + 1);
        quante += decimali - (fine + 1);
        fine = decimali;
    }
    if (quante == 0) return 0;
    if (fine < testo.size() && (testo[fine] == 'e' || testo[fine] == 'E')) {
        std::size_t esponente = fine + 1;
        if (esponente < testo.size() && (testo[esponente] == '+' || testo[esponente] == '-'))
            ++esponente;
        const std::size_t ultimo = dopoLeCifre(testo, esponente);
        if (ultimo > esponente) fine = ultimo;  // an e without digits belongs to what follows
    }
    return fine;
}

// The exponent after an e; one beyond all doubles and all lengths of text is held at a bound.
long long esponenteScritto(std::string_view cifre) {
    constexpr long long limite = 1'000'000'000'000'000;
    const bool negativo = cifre.starts_with('-');
    if (negativo || cifre.starts_with('+')) cifre.remove_prefix(1);
    long long valore = 0;
    for (const char c : cifre) valore = std::min(limite, 10 * valore + (c - '0'));
    return negativo ? -valore : valore;
}

// A number out of range is either too small to tell from 0 or too large to be one: the power of ten
// of its first digit that is no zero tells.
bool troppoPiccolo(std::string_view numero) {
    const auto e = std::min(numero.find_first_of("eE"), numero.size());
    const std::string_view cifre = numero.substr(0, e);
    const auto prima = cifre.find_first_of("123456789");
    if (prima == std::string_view::npos) return true;
    const auto punto = static_cast<long long>(std::min(cifre.find('.'), cifre.size()));
    const long long posto = punto - static_cast<long long>(prima);
    return posto + (e < numero.size() ? esponenteScritto(numero.substr(e + 1)) : 0) < 0;
}

// What follows the leading blanks, without its sign.
struct Segnato {
    bool negativo;
    std::string_view resto;
};

Segnato dividiSegno(std::string_view testo) {
    testo.remove_prefix(std::min(testo.find_first_not_of(" \t"), testo.size()));
    const bool negativo = testo.starts_with('-');
    if (negativo || testo.starts_with('+')) testo.remove_prefix(1);
    return {negativo, testo};
}

}  // namespace

std::optional<double> leggiNumero(std::string_view testo) {
    const auto [negativo, resto] = dividiSegno(testo);
    const std::string_view numero = resto.substr(0, lunghezzaNumero(resto));
    if (numero.empty()) return std::nullopt;
    double valore = 0;
    const auto esito = std::from_chars(numero.data(), numero.data() + numero.size(), valore);
    if (esito.ec == std::errc::result_out_of_range) {
        if (!troppoPiccolo(numero)) return std::nullopt;
        valore = 0;
    }
    return negativo ? -valore : valore;
}

bool soloUnNumero(std::string_view testo) {
    const std::string_view resto = dividiSegno(testo).resto;
    const std::size_t lunghezza = lunghezzaNumero(resto);
    return lunghezza > 0 && resto.find_first_not_of(" \t", lunghezza) == std::string_view::npos;
}

std::string formattaNumero(double valore) {
    std::string testo = testoNudo(arrotondaDecimali(cifrePiuBrevi(valore), 7));
    if (testo.front() == '.') testo.insert(0, 1, '0');
    if (testo.back() == '.') testo.pop_back();
    return testo;
}

std::string formattaMaschera(double valore, std::string_view maschera) {
    const std::size_t larghezza = std::min(maschera.find('.'), maschera.size());
    const std::size_t decimali = maschera.size() - std::min(larghezza + 1, maschera.size());

    // The rounding is that of the drawings: half goes up, also below zero.
    const double potenza = std::pow(10.0, static_cast<double>(decimali));
    const double arrotondato = std::floor(valore * potenza + 0.5) / potenza;

    std::string testo = testoNudo(arrotondaDecimali(cifrePiuBrevi(arrotondato), 11));
    if (testo.front() == '.') testo.insert(0, 1, '0');
    if (testo.back() == '.') testo += '0';

    const std::size_t punto = testo.find('.');
    std::string intera = testo.substr(0, punto);
    std::string frazione;
    if (decimali > 0)
        frazione = '.' + (testo.substr(punto + 1) + std::string(15, '0')).substr(0, decimali);

    if (intera.size() > maschera.size()) return intera;
    if (intera.size() > larghezza) return (intera + frazione).substr(0, maschera.size());
    return std::string(larghezza - intera.size(), ' ') + intera + frazione;
}

std::string formattaDecimali(double valore, int decimali) {
    std::string testo = testoNudo(arrotondaDecimali(cifrePiuBrevi(valore), 4)) + "000000000000";
    if (testo.front() == '.') testo.insert(0, 1, '0');
    const std::size_t finoAlPunto = testo.find('.') + 1;
    return testo.substr(
        0, decimali < 0 ? finoAlPunto - 1 : finoAlPunto + static_cast<std::size_t>(decimali));
}

std::string testoDecimali(double valore, int decimali, int potenza) {
    CifreDecimali cifre = cifrePiuBrevi(valore);
    if (!cifre.cifre.empty()) cifre.punto += potenza;
    std::string testo = testoNudo(arrotondaDecimali(std::move(cifre), decimali));
    const std::size_t segno = testo.starts_with('-') ? 1 : 0;
    if (testo[segno] == '.') testo.insert(segno, 1, '0');
    if (decimali <= 0) return testo.substr(0, testo.find('.'));
    testo.resize(testo.find('.') + 1 + static_cast<std::size_t>(decimali), '0');
    return testo;
}

std::string testoNumero(double valore) {
    std::string testo = testoNudo(arrotondaSignificative(cifrePiuBrevi(valore), 15));
    if (testo.back() == '.') testo.pop_back();
    const std::size_t segno = testo.starts_with('-') ? 1 : 0;
    if (testo.size() == segno || testo[segno] == '.') testo.insert(segno, 1, '0');
    return testo;
}

std::string tutteLeCifre(double valore) {
    if (!std::isfinite(valore)) return {};
    char testo[32];
    return {testo, std::to_chars(testo, testo + sizeof testo, valore + 0.0).ptr};
}

std::string quindiciCifre(double valore) {
    if (!std::isfinite(valore)) return {};
    char testo[32];
    return {testo, std::to_chars(testo, testo + sizeof testo, valore + 0.0,
                                 std::chars_format::general, std::numeric_limits<double>::digits10)
                       .ptr};
}

}  // namespace korven::base
