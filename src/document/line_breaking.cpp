#include "document/line_breaking.hpp"

#include <algorithm>

#include "base/bound_units.hpp"
#include "base/code_page.hpp"

namespace korven::document {

namespace {

// Sums of widths that are compared with the very sum again must not fail by a last digit [pt].
constexpr double gioco = 0.01;

std::vector<std::string_view> partita(std::string_view testo, char dove) {
    std::vector<std::string_view> parti;
    while (true) {
        const auto fine = testo.find(dove);
        parti.push_back(testo.substr(0, fine));
        if (fine == std::string_view::npos) return parti;
        testo.remove_prefix(fine + 1);
    }
}

// How many bytes of a word fit, at least one character.
std::size_t cheStanno(std::string_view parola, double larghezza, const Carattere& carattere,
                      const MisuraCaratteri& misura) {
    constexpr std::string_view segni = "/\\-_.,;:=+)";
    std::size_t fine = 0, dopoSegno = 0;
    double usata = 0;
    while (fine < parola.size()) {
        const std::size_t byte = base::lunghezzaPrimoCarattere(parola.substr(fine));
        usata += misura.larghezza(parola.substr(fine, byte), carattere);
        if (usata > larghezza + gioco && fine > 0) return dopoSegno > 0 ? dopoSegno : fine;
        const bool segno = segni.find(parola[fine]) != std::string_view::npos;
        fine += byte;
        if (segno) dopoSegno = fine;
    }
    return fine;
}

// Where a line of a file is cut, not later than wished: between two signs that are no blanks, since
// nobody sees on paper whether one stood at the cut.
std::size_t traLettere(std::string_view riga, std::size_t voluto) {
    const auto bianco = [&](std::size_t i) { return riga[i] == ' '; };
    const auto dentroLettera = [&](std::size_t i) { return (riga[i] & 0xC0) == 0x80; };
    std::size_t fine = voluto;
    while (fine > 0 && fine < riga.size() && (bianco(fine) || bianco(fine - 1))) {
        --fine;
        while (fine > 0 && dentroLettera(fine)) --fine;
    }
    return fine > 0 ? fine : voluto;
}

class Compositore {
 public:
    Compositore(double larghezza, const Carattere& carattere, const MisuraCaratteri& misura)
        : larghezza_(larghezza), carattere_(carattere), misura_(misura) {}

    void parola(std::string_view testo) {
        const double larga = misura_.larghezza(testo, carattere_);
        if (!riga_.empty() && usata_ + bianco_ + larga <= larghezza_ + gioco) {
            riga_ += ' ';
            metti(testo, bianco_ + larga);
            return;
        }
        if (!riga_.empty()) finisci();
        if (larga <= larghezza_ + gioco) return metti(testo, larga);
        if (testo.find(' ') != std::string_view::npos) {  // a unit leaves its number after all
            for (const std::string_view parte : partita(testo, ' ')) parola(parte);
            return;
        }
        const std::size_t primi = cheStanno(testo, larghezza_, carattere_, misura_);
        metti(testo.substr(0, primi), misura_.larghezza(testo.substr(0, primi), carattere_));
        if (primi < testo.size()) {
            finisci();
            parola(testo.substr(primi));
        }
    }
    void finisci() {
        righe_.push_back(std::move(riga_));
        riga_.clear();
        usata_ = 0;
    }
    [[nodiscard]] std::vector<std::string> righe() { return std::move(righe_); }

 private:
    void metti(std::string_view testo, double larga) {
        riga_ += testo;
        usata_ += larga;
    }

    const double larghezza_;
    const Carattere carattere_;
    const MisuraCaratteri& misura_;
    const double bianco_ = misura_.larghezza(" ", carattere_);
    std::vector<std::string> righe_;
    std::string riga_;
    double usata_ = 0;
};

}  // namespace

std::vector<std::string> inRighe(std::string_view testo, double larghezza,
                                 const Carattere& carattere, const MisuraCaratteri& misura) {
    Compositore compositore(larghezza, carattere, misura);
    for (const std::string_view capoverso : partita(testo, '\n')) {
        for (const std::string_view parola : base::paroleUnite(capoverso))
            if (!parola.empty()) compositore.parola(parola);
        compositore.finisci();
    }
    return compositore.righe();
}

std::vector<std::string> inRigheFisse(std::string_view testo, double larghezza,
                                      const Carattere& carattere, const MisuraCaratteri& misura) {
    constexpr std::string_view rientro = "    ";
    const double seguito = larghezza - misura.larghezza(rientro, carattere);
    std::vector<std::string> righe;
    for (std::string_view resto : partita(testo, '\n')) {
        if (resto.ends_with('\r')) resto.remove_suffix(1);
        bool prima = true;
        do {
            std::size_t fine = 0;
            double usata = 0;
            while (fine < resto.size()) {
                const std::size_t byte = base::lunghezzaPrimoCarattere(resto.substr(fine));
                usata += misura.larghezza(resto.substr(fine, byte), carattere);
                if (usata > (prima ? larghezza : seguito) + gioco && fine > 0) break;
                fine += byte;
            }
            fine = traLettere(resto, fine);
            righe.push_back(
                (prima ? std::string() : std::string(rientro)).append(resto.substr(0, fine)));
            resto.remove_prefix(fine);
            prima = false;
        } while (!resto.empty());
    }
    return righe;
}

std::string accorciato(std::string_view testo, double larghezza, const Carattere& carattere,
                       const MisuraCaratteri& misura) {
    if (misura.larghezza(testo, carattere) <= larghezza + gioco) return std::string(testo);
    double usata = misura.larghezza("…", carattere);
    std::size_t fine = 0;
    while (fine < testo.size()) {
        const std::size_t byte = base::lunghezzaPrimoCarattere(testo.substr(fine));
        usata += misura.larghezza(testo.substr(fine, byte), carattere);
        if (usata > larghezza + gioco) break;
        fine += byte;
    }
    return std::string(testo.substr(0, fine)) + "…";
}

double parolaPiuLarga(std::string_view testo, const Carattere& carattere,
                      const MisuraCaratteri& misura) {
    double larga = 0;
    for (const std::string_view capoverso : partita(testo, '\n'))
        for (const std::string_view parola : base::paroleUnite(capoverso))
            larga = std::max(larga, misura.larghezza(parola, carattere));
    return larga;
}

}  // namespace korven::document
