#include "masks/reader.hpp"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string_view>

#include "base/code_page.hpp"
#include "base/colon.hpp"
#include "base/dos_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"

namespace korven::masks {

namespace {

using base::senzaSpaziEsterni;
using base::traduttore;

constexpr int massimaVoceGuida = 200;
constexpr int minimoPulsanti = 2;  // confirm and cancel
constexpr int massimoPulsanti = 10;

std::string etichettaTradotta(std::string_view etichetta) {
    const auto unita = etichetta.find('[');
    if (unita == std::string_view::npos) return traduttore(etichetta);
    return traduttore(etichetta.substr(0, unita)) + ' ' + std::string(etichetta.substr(unita));
}

// The items of a translated choice line.
std::vector<std::string> voci(std::string riga) {
    if (!riga.ends_with('|')) riga += '|';
    std::vector<std::string> tagliate;
    std::string_view resto = riga;
    for (std::size_t fine; (fine = resto.find('|')) != std::string_view::npos;
         resto.remove_prefix(fine + 1))
        tagliate.emplace_back(resto.substr(0, fine));
    return tagliate;
}

class Lettore {
 public:
    explicit Lettore(base::LettoreRighe& file) : file_(file) {}

    Maschera maschera() {
        Maschera letta;
        letta.genere = genere();
        letta.titolo = traduttore(valore("titolo della maschera"));
        const bool campi = letta.genere == GenereMaschera::campi;
        const int nCombo = campi ? intero("numero delle scelte", 0, massimoCampi) : 0;
        for (int i = 0; i < nCombo; ++i)
            letta.scelte.push_back(voci(traduttore(riga("voci della scelta"))));
        // A grid has its row numbers and at least one column of data, a form at least one field.
        const int minimo = !campi ? 2 : nCombo == 0 ? 1 : 0;
        const int nCampi = intero("numero dei campi", minimo, massimoCampi - nCombo);
        for (int i = 0; i < nCombo + nCampi; ++i) letta.campi.push_back(campo());
        // The DOS code page is that of the bytes, to which this leads back without a loss.
        letta.riferimento = base::daDos(base::inCp1252(riga("riferimento alla guida")));
        const int nBottoni = intero("numero dei pulsanti", minimoPulsanti, massimoPulsanti);
        for (int i = 0; i < nBottoni; ++i)
            letta.pulsanti.push_back(traduttore(valore("scritta del pulsante")));
        letta.contesto = contesto();
        return letta;
    }

 private:
    // What is left of a line of which values have been read, or the next line whole.
    std::string riga(std::string_view cosa) {
        if (!resto_) return file_.riga(traduttore(cosa));
        std::string letta = std::move(*resto_);
        resto_.reset();
        return letta;
    }

    std::string valore(std::string_view cosa) {
        std::string letta = riga(cosa);
        if (const auto virgola = letta.find(','); virgola != std::string::npos) {
            resto_ = letta.substr(virgola + 1);
            letta.resize(virgola);
        }
        return std::string(senzaSpaziEsterni(letta));
    }

    [[noreturn]] void nessunNumero(const std::string& cosa) const {
        file_.rifiuta(traduttore("atteso un numero") + base::duePunti() + cosa);
    }

    double numero(std::string_view cosa) {
        const std::string testo = valore(cosa);
        const auto letto = base::leggiNumero(testo);
        if (!letto || !base::soloUnNumero(testo)) nessunNumero(traduttore(cosa));
        return *letto;
    }

    int intero(std::string_view cosa, int minimo, int massimo) {
        const double letto = numero(cosa);
        if (letto != std::floor(letto) || letto < minimo || letto > massimo)
            nessunNumero(traduttore(cosa) + ", " + std::to_string(minimo) + "-" +
                         std::to_string(massimo));
        return static_cast<int>(letto);
    }

    GenereMaschera genere() {
        return static_cast<GenereMaschera>(intero("tipo della maschera",
                                                  static_cast<int>(GenereMaschera::campi),
                                                  static_cast<int>(GenereMaschera::grigliaLibera)));
    }

    CampoMaschera campo() {
        constexpr std::string_view segnoSoloLettura = "§";
        CampoMaschera letto;
        const std::string intera = riga("etichetta del campo");
        std::string_view etichetta = senzaSpaziEsterni(intera);
        letto.soloLettura = etichetta.starts_with(segnoSoloLettura);
        if (letto.soloLettura)
            etichetta = senzaSpaziEsterni(etichetta.substr(segnoSoloLettura.size()));
        letto.etichetta = etichettaTradotta(etichetta);
        letto.tipo = valore("tipo del campo");
        letto.minimo = numero("limite minimo del campo");
        letto.massimo = numero("limite massimo del campo");
        if (letto.massimo < letto.minimo) nessunNumero(traduttore("limite massimo del campo"));
        letto.aiuto = traduttore(riga("aiuto del campo"));
        return letto;
    }

    // The line is the last one, and only that line may come here.
    int contesto() {
        constexpr std::string_view segno = "MN=";
        int voce = 0;
        if (!file_.fine() || resto_) {
            const std::string letta = riga("voce della guida (MN=)");
            if (base::maiuscolo(letta).starts_with(segno)) {
                resto_ = letta.substr(segno.size());
                voce = intero("voce della guida (MN=)", 0, massimaVoceGuida);
            } else if (!senzaSpaziEsterni(letta).empty()) {
                file_.rifiuta(traduttore("voce della guida (MN=)"));
            }
        }
        while (resto_ || !file_.fine())
            if (!senzaSpaziEsterni(riga("attesa la fine del file")).empty())
                file_.rifiuta(traduttore("attesa la fine del file"));
        return voce;
    }

    base::LettoreRighe& file_;
    std::optional<std::string> resto_;
};

}  // namespace

int voceGuida(const Maschera& maschera) {
    const double numero = base::leggiNumero(maschera.riferimento).value_or(0);
    return static_cast<int>(std::clamp(numero, 0.0, double{massimaVoceGuida}));
}

Maschera leggiMaschera(base::LettoreRighe& file) { return Lettore(file).maschera(); }

Maschera leggiMaschera(const std::string& percorso) {
    auto file = base::LettoreRighe::apri(percorso);
    return leggiMaschera(file);
}

}  // namespace korven::masks
