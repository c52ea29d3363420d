#include "masks/edited_tables.hpp"

#include <string_view>
#include <type_traits>
#include <utility>

#include "base/code_page.hpp"
#include "base/number_text.hpp"
#include "masks/edited_fields.hpp"

namespace korven::masks {

namespace {

using project::Campo;
using project::DatiProgetto;
using Campi = std::vector<const Campo*>;
using Testi = std::vector<std::string>;

double letto(const std::string& testo) { return base::leggiNumero(testo).value_or(0); }

bool stesso(std::string_view uno, std::string_view altro) {
    return base::senzaSpaziEsterni(uno) == base::senzaSpaziEsterni(altro);
}

// The number of rows, then the cells.
Testi testiTabella(const DatiProgetto& dati, NumeroMaschera numero, int righe) {
    const Campi colonne = campiEditati(numero);
    Testi testi{base::testoNumero(righe)};
    for (int i = 1; i <= righe; ++i)
        for (const Campo* colonna : colonne) testi.push_back(testoMostrato(dati, *colonna, i));
    return testi;
}

// Takes the texts of a table editor back, cell after cell. A cell that reads as one that was shown
// gives back the value that it was made of, with all its digits: ten times a number and its tenth
// need not be the same double, and a form shows no more than fifteen digits.
class Ripresa {
 public:
    Ripresa(DatiProgetto& dati, const Testi& testi, Testi mostrati, NumeroMaschera numero)
        : dati_(dati),
          prima_(dati),
          testi_(testi),
          mostrati_(std::move(mostrati)),
          colonne_(campiEditati(numero)) {}

    // More rows than the table holds end the program, before anything of the project has changed.
    [[nodiscard]] int righe(int capacita) const {
        const double scritte = testi_.empty() ? 0 : letto(testi_[0]);
        if (scritte > capacita)
            throw base::ErroreIndice(capacita + 1, static_cast<std::size_t>(capacita));
        return scritte > 0 ? static_cast<int>(scritte) : 0;
    }

    void leggi(int righe) {
        for (int i = 1; i <= righe; ++i)
            for (const Campo* colonna : colonne_) cella(*colonna, i);
    }

    // A plain exchange sort by depth, the first column; rows of the same depth stay in their order.
    void ordina(int righe) {
        const auto& profondita = *colonne_.front();
        for (int i = 1; i <= righe - 1; ++i)
            for (int j = 1; j <= righe - i; ++j)
                if (project::numeroConservato(dati_, profondita, j) >
                    project::numeroConservato(dati_, profondita, j + 1))
                    scambia(j, j + 1);
    }

 private:
    void cella(const Campo& colonna, int riga) {
        ++posto_;
        const std::string testo = posto_ < testi_.size() ? testi_[posto_] : std::string();
        const int come = mostrata(testo);
        std::visit(
            [&](auto membro) {
                auto& valore = project::cella(dati_, membro, riga);
                using Valore = std::remove_reference_t<decltype(valore)>;
                if (come > 0) {
                    valore = project::cella(prima_, membro, come);
                    return;
                }
                if constexpr (std::is_same_v<Valore, std::string>) valore = testo;
                if constexpr (std::is_same_v<Valore, double>)
                    valore = project::conservato(colonna, letto(testo));
            },
            colonna.membro);
    }
    // The row that showed this text in the column of the current cell, its own row before others,
    // since rows move when one is inserted or taken out; 0 if none did.
    [[nodiscard]] int mostrata(const std::string& testo) const {
        const std::size_t n = colonne_.size();
        if (posto_ < mostrati_.size() && stesso(testo, mostrati_[posto_]))
            return static_cast<int>((posto_ - 1) / n) + 1;
        for (std::size_t i = (posto_ - 1) % n + 1; i < mostrati_.size(); i += n)
            if (stesso(testo, mostrati_[i])) return static_cast<int>((i - 1) / n) + 1;
        return 0;
    }
    // Only what the editor shows changes its place.
    void scambia(int a, int b) {
        for (const Campo* colonna : colonne_)
            std::visit(
                [&](auto membro) {
                    std::swap(project::cella(dati_, membro, a), project::cella(dati_, membro, b));
                },
                colonna->membro);
    }

    DatiProgetto& dati_;
    const DatiProgetto prima_;
    const Testi& testi_;
    const Testi mostrati_;
    const Campi colonne_;
    std::size_t posto_ = 0;  // of the current cell; the number of rows is at 0
};

}  // namespace

std::string testoMostrato(const DatiProgetto& dati, const Campo& campo, int riga) {
    std::string testo;
    project::conValore(dati, campo, riga, [&](const auto& valore) {
        if constexpr (std::is_same_v<std::remove_cvref_t<decltype(valore)>, std::string>)
            testo = valore;
        else
            testo = base::testoNumero(project::mostrato(campo, valore));
    });
    return testo;
}

Testi testiStrati(const DatiProgetto& dati) {
    return testiTabella(dati, NumeroMaschera::strati, dati.nStrati);
}

Testi testiTiranti(const DatiProgetto& dati) {
    return testiTabella(dati, NumeroMaschera::tiranti, dati.nTiranti);
}

Testi testiFasi(const DatiProgetto& dati) {
    return testiTabella(dati, NumeroMaschera::fasi, dati.nFasi);
}

Testi testiParatia(const DatiProgetto& dati) {
    Testi testi;
    for (const Campo* campo : campiEditati(NumeroMaschera::paratia))
        testi.push_back(testoMostrato(dati, *campo));
    return testi;
}

Testi testiTitoli(const DatiProgetto& dati) {
    Testi testi;
    for (int i = 1; i <= project::numeroTitoli; ++i) testi.push_back(dati.titoli[i]);
    return testi;
}

bool riprendiStrati(DatiProgetto& dati, const Testi& testi) {
    Ripresa lista(dati, testi, testiStrati(dati), NumeroMaschera::strati);
    const int prima = std::exchange(dati.nStrati, lista.righe(project::massimoStrati));
    for (int i = prima + 1; i <= dati.nStrati; ++i) dati.suStrato[i] = 0;
    lista.leggi(dati.nStrati);
    lista.ordina(dati.nStrati);
    return true;
}

bool riprendiTiranti(DatiProgetto& dati, const Testi& testi) {
    Ripresa lista(dati, testi, testiTiranti(dati), NumeroMaschera::tiranti);
    dati.nTiranti = lista.righe(project::massimoTiranti);
    lista.leggi(dati.nTiranti);
    lista.ordina(dati.nTiranti);
    return true;
}

bool riprendiFasi(DatiProgetto& dati, const Testi& testi) {
    Ripresa lista(dati, testi, testiFasi(dati), NumeroMaschera::fasi);
    dati.nFasi = lista.righe(project::massimoFasi);
    lista.leggi(dati.nFasi);
    // Their depths stay where they were typed and are compared again there.
    for (int i = 1; i <= dati.nFasi - 1; ++i)
        for (int j = 1; j <= dati.nFasi - i; ++j) {
            if (!(dati.profFase[j] > dati.profFase[j + 1])) continue;
            std::swap(dati.tirantiFase[j], dati.tirantiFase[j + 1]);
            std::swap(dati.sovraccFase[j], dati.sovraccFase[j + 1]);
            std::swap(dati.rigTirante[j], dati.rigTirante[j + 1]);
        }
    return true;
}

bool riprendiParatia(DatiProgetto& dati, const Testi& testi) {
    const Campi mostrati = campiEditati(NumeroMaschera::paratia);
    bool diversa = false;
    for (std::size_t i = 0; i < mostrati.size(); ++i) {
        const Campo& campo = *mostrati[i];
        const std::string testo = i < testi.size() ? testi[i] : std::string();
        if (stesso(testo, testoMostrato(dati, campo))) continue;
        const double valore = project::conservato(campo, letto(testo));
        diversa = diversa || valore != project::numeroConservato(dati, campo);
        dati.*std::get<double DatiProgetto::*>(campo.membro) = valore;
    }
    return diversa;
}

bool riprendiTitoli(DatiProgetto& dati, const Testi& testi) {
    bool diversi = false;
    for (std::size_t i = 0; i < project::numeroTitoli; ++i) {
        const std::string riga = i < testi.size() ? testi[i] : std::string();
        std::string& titolo = dati.titoli[static_cast<long>(i + 1)];
        diversi = diversi || riga != titolo;
        titolo = riga;
    }
    return diversi;
}

}  // namespace korven::masks
