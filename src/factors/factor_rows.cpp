#include "factors/factor_rows.hpp"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "base/code_page.hpp"
#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "exchange/file_text.hpp"

namespace korven::factors {

namespace {

using base::traduttore;
using Parti = std::array<std::string_view, 3>;

constexpr char separatore = ';';
constexpr std::string_view bianchi = " \t\r\v\f";
constexpr std::string_view parolaNorma = "norma", parolaCombinazione = "combinazione";

std::string_view rifilata(std::string_view testo) {
    const auto da = testo.find_first_not_of(bianchi);
    if (da == std::string_view::npos) return {};
    return testo.substr(da, testo.find_last_not_of(bianchi) - da + 1);
}

// A name is read on a line of its own and shown in lists.
bool conControlli(std::string_view testo) {
    return std::any_of(testo.begin(), testo.end(),
                       [](unsigned char c) { return c < 0x20 || c == 0x7f; });
}

std::optional<Parti> parti(std::string_view riga) {
    Parti trovate;
    for (std::size_t i = 0; i < trovate.size(); ++i) {
        const auto fine = i + 1 < trovate.size() ? riga.find(separatore) : riga.size();
        if (fine == std::string_view::npos) return std::nullopt;
        trovate[i] = rifilata(riga.substr(0, fine));
        riga.remove_prefix(std::min(fine + 1, riga.size()));
    }
    if (trovate.back().find(separatore) != std::string_view::npos) return std::nullopt;
    return trovate;
}

class Lettura {
 public:
    Lettura(std::string file, Catalogo& catalogo) : file_(std::move(file)), catalogo_(catalogo) {}

    void riga(long numero, std::string_view testo) {
        numero_ = numero;
        const auto tre = parti(testo);
        if (!tre || std::any_of(tre->begin(), tre->end(), [](auto p) { return p.empty(); }))
            return guasto(
                "una riga ha tre parti: norma, combinazione o coefficiente; nome o numero; fonte");
        if (conControlli(testo)) return guasto("la riga ha un carattere che non si può mostrare");
        if ((*tre)[0] == parolaNorma) return norma(*tre);
        if ((*tre)[0] == parolaCombinazione) return combinazione(*tre);
        fattore(*tre);
    }
    // What only the end of a part can tell.
    void chiudiNorma() {
        chiudiCombinazione();
        if (norma_ != nullptr && norma_->combinazioni.empty())
            guasto(rigaNorma_, "«%1» non ha combinazioni", norma_->nome);
        norma_ = nullptr;
    }
    void guasto(std::string_view chiave, std::string parte = {}) {
        guasto(numero_, chiave, std::move(parte));
    }

 private:
    void norma(const Parti& tre) {
        chiudiNorma();
        const bool presa = catalogo_.norma(tre[1]) != nullptr;
        if (presa) guasto("il nome «%1» è già di un'altra norma", std::string(tre[1]));
        norma_ = &catalogo_.norme.emplace_back(
            Norma{std::string(tre[1]), std::string(tre[2]), file_, {}});
        rigaNorma_ = numero_;
    }

    void combinazione(const Parti& tre) {
        chiudiCombinazione();
        if (norma_ == nullptr) return guasto("una combinazione sta sotto la riga della sua norma");
        const auto& altre = norma_->combinazioni;
        if (std::any_of(altre.begin(), altre.end(),
                        [&](const auto& c) { return c.nome == tre[1]; }))
            guasto("il nome «%1» è già di un'altra combinazione", std::string(tre[1]));
        combinazione_ = &norma_->combinazioni.emplace_back(
            Combinazione{std::string(tre[1]), std::string(tre[2]), {}, {}});
        combinazione_->fonti.resize(vociFattori().size());
        rigaCombinazione_ = numero_;
    }

    void chiudiCombinazione() {
        if (combinazione_ == nullptr) return;
        std::string mancanti;
        for (std::size_t i = 0; i < vociFattori().size(); ++i) {
            if (!vociFattori()[i].obbligatoria || !combinazione_->fonti[i].empty()) continue;
            mancanti.append(mancanti.empty() ? "" : ", ").append(vociFattori()[i].chiave);
        }
        if (!mancanti.empty())
            guasto(rigaCombinazione_, "alla combinazione mancano coefficienti: %1", mancanti);
        combinazione_ = nullptr;
    }

    void fattore(const Parti& tre) {
        const auto voci = vociFattori();
        const auto voce = std::find_if(voci.begin(), voci.end(),
                                       [&](const auto& v) { return v.chiave == tre[0]; });
        if (voce == voci.end())
            return guasto("«%1» non è un coefficiente di questo file", std::string(tre[0]));
        if (combinazione_ == nullptr)
            return guasto("un coefficiente sta sotto la riga della sua combinazione");
        std::string& fonte = combinazione_->fonti[static_cast<std::size_t>(voce - voci.begin())];
        if (!fonte.empty())
            return guasto("«%1» c'è già in questa combinazione", std::string(tre[0]));
        fonte = tre[2];
        const auto numero = base::leggiNumero(tre[1]);
        if (!base::soloUnNumero(tre[1]) || !numero)
            return guasto("«%1» non è un numero (il segno decimale è il punto)",
                          std::string(tre[1]));
        if (!(*numero >= voce->minimo && *numero <= voce->massimo)) return fuori(*voce, tre[1]);
        combinazione_->fattori.*(voce->membro) = *numero;
    }

    void fuori(const VoceFattore& voce, std::string_view numero) {
        catalogo_.guaste.push_back(
            {file_, numero_,
             base::riempito(traduttore("%1 non sta fra %2 e %3"),
                            {std::string(numero), base::testoNumero(voce.minimo),
                             base::testoNumero(voce.massimo)})});
    }

    void guasto(long numero, std::string_view chiave, std::string parte) {
        catalogo_.guaste.push_back(
            {file_, numero, base::riempito(traduttore(chiave), {std::move(parte)})});
    }

    std::string file_;
    Catalogo& catalogo_;
    Norma* norma_ = nullptr;                // the one that is being read, last in the catalogue
    Combinazione* combinazione_ = nullptr;  // likewise, last of the code
    long numero_ = 0, rigaNorma_ = 0, rigaCombinazione_ = 0;
};

}  // namespace

std::string RigaGuasta::frase() const {
    std::string testo = file;
    if (riga > 0) testo += ", " + traduttore("riga") + " " + std::to_string(riga);
    return testo + base::duePunti() + motivo;
}

const Norma* Catalogo::norma(std::string_view nome) const {
    const std::string cercato = base::minuscolo(nome);
    const auto trovata = std::find_if(norme.begin(), norme.end(), [&](const Norma& una) {
        return base::minuscolo(una.nome) == cercato;
    });
    return trovata == norme.end() ? nullptr : &*trovata;
}

void leggiCombinazioni(std::string_view byte, const std::string& file, Catalogo& catalogo) {
    const std::string testo = exchange::testoDiFile(byte);
    Lettura lettura(file, catalogo);
    long numero = 0;
    for (std::string_view resto = testo; !resto.empty();) {
        const auto fine = std::min(resto.find('\n'), resto.size());
        const std::string_view riga = rifilata(resto.substr(0, fine));
        resto.remove_prefix(std::min(fine + 1, resto.size()));
        ++numero;
        if (riga.empty() || riga.front() == '#') continue;
        if (numero > massimoRighe) {
            catalogo.guaste.push_back({file, numero, traduttore("il file ha troppe righe")});
            break;
        }
        lettura.riga(numero, riga);
    }
    lettura.chiudiNorma();
}

}  // namespace korven::factors
