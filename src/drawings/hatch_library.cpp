#include "drawings/hatch_library.hpp"

#include <cmath>
#include <limits>
#include <optional>
#include <string_view>

#include "base/file_error.hpp"
#include "base/files.hpp"
#include "base/folders/program_folder.hpp"
#include "base/language.hpp"
#include "base/text_lines.hpp"
#include "base/translated_texts.hpp"

namespace korven::drawings {

namespace {

using base::traduttore;

// The first stroke after the last pattern has to have a number of 16 bits as well.
constexpr int massimoTratti = std::numeric_limits<std::int16_t>::max() - 1;
constexpr std::streamsize byteTratto = 8;

std::optional<Campiture> lette;

base::LettoreRighe apri(std::string_view nome) {
    return base::LettoreRighe::apri(base::fileProgramma(nome));
}

int leggiNumeroTratti(base::LettoreRighe& file, int disponibili) {
    const std::string atteso = traduttore("numero dei tratti della campitura");
    const double numero = file.numeroSolo(0, 1e9, atteso);
    if (numero != std::floor(numero))
        file.rifiuta(traduttore("atteso un numero intero da 0") + ": " + atteso);
    if (numero > disponibili)
        file.rifiuta(traduttore(
            "le campiture hanno tutte insieme più tratti di quanti ne possa contare la libreria"));
    return static_cast<int>(numero);
}

double leggiUnita(base::LettoreRighe& file, bool conTratti) {
    const std::string atteso = traduttore("unità della campitura in centimetri");
    // Smaller tiles are a grey that costs a million strokes, larger ones hide the pattern.
    constexpr double minima = 0.00005, massima = 10;
    return file.numeroSolo(conTratti ? minima : 0, massima, atteso);
}

Campiture leggi() {
    auto conteggi = apri("set1.rtn");
    auto unita = apri("set2.rtn");
    auto nomi = apri("set3" + std::string(base::siglaLingua(base::linguaCorrente())) + ".rtn");
    return leggiCampiture(conteggi, unita, nomi);
}

std::int16_t numero16(const char* byte) {
    const auto basso = static_cast<unsigned char>(byte[0]);
    const auto alto = static_cast<unsigned char>(byte[1]);
    return static_cast<std::int16_t>(static_cast<std::uint16_t>(basso | alto << 8));
}

}  // namespace

Campiture leggiCampiture(base::LettoreRighe& conteggi, base::LettoreRighe& unita,
                         base::LettoreRighe& nomi) {
    Campiture tutte;
    int tratti = 0;
    for (int i = 1; i <= numeroCampiture; ++i) {
        Campitura& campitura = tutte[i];
        campitura.nTratti = leggiNumeroTratti(conteggi, massimoTratti - tratti);
        campitura.unita = leggiUnita(unita, campitura.nTratti > 0);
        campitura.nome = nomi.riga(traduttore("nome della campitura"));
        campitura.primoTratto = tratti + 1;
        tratti += campitura.nTratti;
    }
    return tutte;
}

const Campiture& campiture() {
    if (!lette) lette = leggi();
    return *lette;
}

void dimenticaCampiture() { lette.reset(); }

std::vector<TrattoCampitura> leggiTratti(const Campitura& campitura) {
    const std::string percorso = base::fileProgramma("set4.rtn");
    return trattiDi(campitura, base::leggiFile(percorso), percorso);
}

std::vector<TrattoCampitura> trattiDi(const Campitura& campitura, std::string_view byte,
                                      const std::string& percorso) {
    const auto inizio = static_cast<std::size_t>((campitura.primoTratto - 1) * byteTratto);
    const auto quanti = static_cast<std::size_t>(campitura.nTratti * byteTratto);
    if (byte.size() < inizio + quanti)
        throw base::ErroreFile(
            percorso, 0,
            traduttore("il file termina prima dei tratti della campitura") + ": " + campitura.nome);
    byte = byte.substr(inizio, quanti);
    std::vector<TrattoCampitura> tratti;
    for (std::size_t i = 0; i < byte.size(); i += byteTratto) {
        const char* t = byte.data() + i;
        tratti.push_back({numero16(t), numero16(t + 2), numero16(t + 4), numero16(t + 6)});
    }
    return tratti;
}

}  // namespace korven::drawings
