#include "base/number_text.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <system_error>

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

// A number out of range is either too small to tell from 0 or too large to be one.
bool troppoPiccolo(std::string_view numero) {
    const auto e = numero.find_first_of("eE");
    if (e != std::string_view::npos) return numero[e + 1] == '-';
    return numero.find_first_not_of('0') == numero.find('.');
}

}  // namespace

std::optional<double> leggiNumero(std::string_view testo) {
    testo.remove_prefix(std::min(testo.find_first_not_of(" \t"), testo.size()));
    const bool negativo = testo.starts_with('-');
    if (negativo || testo.starts_with('+')) testo.remove_prefix(1);
    const std::string_view numero = testo.substr(0, lunghezzaNumero(testo));
    if (numero.empty()) return std::nullopt;
    double valore = 0;
    const auto esito = std::from_chars(numero.data(), numero.data() + numero.size(), valore);
    if (esito.ec == std::errc::result_out_of_range) {
        if (!troppoPiccolo(numero)) return std::nullopt;
        valore = 0;
    }
    return negativo ? -valore : valore;
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

std::string testoNumero(double valore) {
    std::string testo = testoNudo(arrotondaSignificative(cifrePiuBrevi(valore), 15));
    if (testo.back() == '.') testo.pop_back();
    const std::size_t segno = testo.starts_with('-') ? 1 : 0;
    if (testo.size() == segno || testo[segno] == '.') testo.insert(segno, 1, '0');
    return testo;
}

}  // namespace korven::base
