#include "dossier/identity.hpp"

#include <nettle/sha2.h>

#include <array>
#include <cassert>
#include <charconv>
#include <chrono>
#include <ctime>
#include <utility>

#include "base/code_page.hpp"
#include "base/source_date.hpp"
#include "project/project_file.hpp"

namespace korven::dossier {

namespace {

constexpr std::size_t cifreBrevi = 12;

std::string esadecimale(const std::array<std::uint8_t, SHA256_DIGEST_SIZE>& byte) {
    constexpr std::string_view cifre = "0123456789abcdef";
    std::string testo;
    for (const std::uint8_t b : byte) {
        testo += cifre[b / cifre.size()];
        testo += cifre[b % cifre.size()];
    }
    return testo;
}

template <class Numero>
std::optional<Numero> intero(std::string_view testo) {
    Numero n{};
    const auto [fine, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), n);
    if (errore != std::errc() || fine != testo.data() + testo.size()) return std::nullopt;
    return n;
}

std::string cifre(unsigned numero, std::size_t quante) {
    std::string testo = std::to_string(numero);
    return std::string(quante > testo.size() ? quante - testo.size() : 0, '0') + testo;
}

std::string scritta(int anno, unsigned mese, unsigned giorno) {
    return cifre(static_cast<unsigned>(anno), 4) + '-' + cifre(mese, 2) + '-' + cifre(giorno, 2);
}

std::optional<std::string> daEpoca(std::string_view testo) {
    const auto secondi = base::secondiEpoca(testo);
    if (!secondi) return std::nullopt;
    const std::chrono::sys_days giorno{
        std::chrono::floor<std::chrono::days>(std::chrono::seconds(*secondi))};
    const std::chrono::year_month_day d{giorno};
    return scritta(int(d.year()), unsigned(d.month()), unsigned(d.day()));
}

std::string oggi() {
    const std::time_t ora = std::time(nullptr);
    std::tm locale{};
    localtime_r(&ora, &locale);
    return scritta(locale.tm_year + 1900, static_cast<unsigned>(locale.tm_mon) + 1,
                   static_cast<unsigned>(locale.tm_mday));
}

}  // namespace

std::string impronta(const project::DatiProgetto& dati) {
    const std::string byte = base::inCp1252(project::testoProgetto(dati));
    sha256_ctx somma;
    sha256_init(&somma);
    sha256_update(&somma, byte.size(), reinterpret_cast<const std::uint8_t*>(byte.data()));
    std::array<std::uint8_t, SHA256_DIGEST_SIZE> cifra{};
    sha256_digest(&somma, cifra.size(), cifra.data());
    return esadecimale(cifra);
}

std::string_view inBreve(std::string_view impronta) { return impronta.substr(0, cifreBrevi); }

bool dataValida(std::string_view data) {
    if (data.size() != 10 || data[4] != '-' || data[7] != '-') return false;
    const auto anno = intero<unsigned>(data.substr(0, 4));
    const auto mese = intero<unsigned>(data.substr(5, 2));
    const auto giorno = intero<unsigned>(data.substr(8, 2));
    if (!anno || !mese || !giorno || *anno < 1900) return false;
    return std::chrono::year_month_day(std::chrono::year(static_cast<int>(*anno)),
                                       std::chrono::month(*mese), std::chrono::day(*giorno))
        .ok();
}

std::string data(const FontiData& fonti) {
    assert(fonti.voluta.empty() || dataValida(fonti.voluta));
    if (!fonti.voluta.empty()) return fonti.voluta;
    if (fonti.epoca)
        if (auto scelta = daEpoca(*fonti.epoca)) return *scelta;
    return fonti.oggi();
}

FontiData fontiDiSistema(std::string voluta) {
    return {.voluta = std::move(voluta), .epoca = base::epocaVoluta(), .oggi = oggi};
}

}  // namespace korven::dossier
