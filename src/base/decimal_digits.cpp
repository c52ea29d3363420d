#include "base/decimal_digits.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "base/value_error.hpp"

namespace korven::base {

namespace {

void togliZeri(CifreDecimali& numero) {
    numero.cifre.erase(numero.cifre.find_last_not_of('0') + 1);
    const auto zeri = std::min(numero.cifre.find_first_not_of('0'), numero.cifre.size());
    numero.cifre.erase(0, zeri);
    numero.punto -= static_cast<int>(zeri);
    if (numero.cifre.empty()) numero = {};
}

// Keeps the first `quante` digits, which may be none or fewer.
CifreDecimali tieni(CifreDecimali numero, int quante) {
    if (quante >= static_cast<int>(numero.cifre.size())) return numero;
    if (quante < 0) return {};
    const bool su = numero.cifre[static_cast<std::size_t>(quante)] >= '5';
    numero.cifre.resize(static_cast<std::size_t>(quante));
    if (su) {
        auto cifra = numero.cifre.rbegin();
        while (cifra != numero.cifre.rend() && *cifra == '9') *cifra++ = '0';
        if (cifra != numero.cifre.rend()) {
            ++*cifra;
        } else {
            numero.cifre.insert(numero.cifre.begin(), '1');
            ++numero.punto;
        }
    }
    togliZeri(numero);
    return numero;
}

}  // namespace

CifreDecimali cifrePiuBrevi(double valore) {
    if (!std::isfinite(valore)) throw ErroreValore();
    char testo[40];
    const auto fine =
        std::to_chars(testo, testo + sizeof testo, std::fabs(valore), std::chars_format::scientific)
            .ptr;
    const char* e = std::find(testo, fine, 'e');
    CifreDecimali numero{std::signbit(valore), {}, 0};
    std::copy_if(static_cast<const char*>(testo), e, std::back_inserter(numero.cifre),
                 [](char c) { return c != '.'; });
    const char* esponente = e + 1;
    if (*esponente == '+') ++esponente;  // from_chars takes no plus sign
    std::from_chars(esponente, fine, numero.punto);
    ++numero.punto;  // the text is d.ddd, the digits here are 0.dddd
    togliZeri(numero);
    return numero;
}

CifreDecimali arrotondaDecimali(CifreDecimali numero, int decimali) {
    const int quante = numero.punto + decimali;
    return tieni(std::move(numero), quante);
}

CifreDecimali arrotondaSignificative(const CifreDecimali& numero, int significative) {
    return tieni(numero, significative);
}

std::string testoNudo(const CifreDecimali& numero) {
    std::string testo = numero.negativo ? "-" : "";
    const auto cifre = static_cast<int>(numero.cifre.size());
    if (numero.punto <= 0) {
        testo += '.';
        if (cifre > 0) testo.append(static_cast<std::size_t>(-numero.punto), '0');
        return testo + numero.cifre;
    }
    const int intere = std::min(cifre, numero.punto);
    testo.append(numero.cifre, 0, static_cast<std::size_t>(intere));
    testo.append(static_cast<std::size_t>(numero.punto - intere), '0');
    testo += '.';
    return testo.append(numero.cifre, static_cast<std::size_t>(intere));
}

}  // namespace korven::base
