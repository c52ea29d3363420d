#include "markup/text_fitting.hpp"

#include <algorithm>
#include <span>
#include <utility>

#include "base/code_page.hpp"
#include "base/table.hpp"
#include "base/translated_texts.hpp"
#include "markup/syllable_rule.hpp"

namespace korven::markup {

namespace {

constexpr char fineRiga = '|';

void togliSpaziIniziali(std::string_view& testo) {
    testo.remove_prefix(std::min(testo.find_first_not_of(' '), testo.size()));
}

class Adattamento {
 public:
    Adattamento(std::string_view testo, double larghezza, const Misura& misura)
        : resto_(testo), larghezza_(larghezza), misura_(misura) {}

    std::vector<std::string> righe() {
        for (togliSpaziIniziali(resto_); !resto_.empty(); togliSpaziIniziali(resto_)) {
            const std::string_view tratto = resto_.substr(0, resto_.find(fineRiga));
            if (misura_(tratto) < larghezza_)
                rigaIntera(tratto);
            else
                rigaTagliata(tratto);
        }
        return std::move(righe_);
    }

 private:
    void aggiungi(std::string riga) {
        if (righe_.size() == massimoRighe)
            throw base::ErroreIndice(
                base::traduttore("la descrizione di uno strato ha più di 100 righe"));
        righe_.push_back(std::move(riga));
    }

    // Goes on after `lunghezza` bytes, and after the line end if one follows.
    void prosegui(std::size_t lunghezza) {
        resto_.remove_prefix(lunghezza);
        if (resto_.starts_with(fineRiga)) resto_.remove_prefix(1);
    }

    void rigaIntera(std::string_view tratto) {
        aggiungi(std::string(base::senzaSpaziEsterni(tratto)));
        prosegui(tratto.size());
    }

    void rigaTagliata(std::string_view tratto) {
        const std::string_view testa = tratto.substr(0, lunghezzaTesta(tratto));
        std::string_view coda = tratto.substr(testa.size());
        const bool dentroParola = !coda.empty() && !testa.ends_with(' ') && !coda.starts_with(' ');
        aggiungi(std::string(base::senzaSpaziEsterni(testa)) + (dentroParola ? "-" : ""));
        // Blanks before a line end are no line of their own.
        togliSpaziIniziali(coda);
        prosegui(tratto.size() - coda.size());
    }

    // Bytes of the syllables that the line takes: the last one that overran is taken back.
    [[nodiscard]] std::size_t lunghezzaTesta(std::string_view tratto) const {
        const auto lettere = caratteri(tratto);
        std::span<const std::string_view> daDividere = lettere;
        std::size_t testa = 0;
        while (!daDividere.empty()) {
            const auto pezzo = daDividere.first(std::min(sillaba(daDividere), daDividere.size()));
            std::size_t nuova = testa;
            for (const auto lettera : pezzo) nuova += lettera.size();
            const bool entra = misura_(tratto.substr(0, nuova)) < larghezza_;
            if (entra || testa == 0) testa = nuova;
            if (!entra) break;
            daDividere = daDividere.subspan(pezzo.size());
        }
        return testa;
    }

    std::string_view resto_;
    double larghezza_;
    const Misura& misura_;
    std::vector<std::string> righe_;
};

}  // namespace

std::vector<std::string> adattaTesto(std::string_view testo, double larghezza,
                                     const Misura& misura) {
    return Adattamento(testo, larghezza, misura).righe();
}

}  // namespace korven::markup
