#include "masks/edited_tables.hpp"

#include <iterator>
#include <string_view>
#include <utility>

#include "base/code_page.hpp"
#include "base/number_text.hpp"

namespace korven::masks {

namespace {

// What the user types over what is stored: 1, or 10 where tonnes become kN.
struct CampoEditato {
    double project::DatiProgetto::*campo;
    double fattore;
};

constexpr CampoEditato campiEditati[] = {
    {&project::DatiProgetto::vincoloTesta, 1},    {&project::DatiProgetto::vincoloPiede, 1},
    {&project::DatiProgetto::modoSpinte, 1},      {&project::DatiProgetto::modoKs, 1},
    {&project::DatiProgetto::modoTensioni, 1},    {&project::DatiProgetto::metodoSpinte, 1},
    {&project::DatiProgetto::metodoKs, 1},        {&project::DatiProgetto::lunghezzaParatia, 1},
    {&project::DatiProgetto::rigidezzaEJ, 10},    {&project::DatiProgetto::coeffM, 1},
    {&project::DatiProgetto::pressioneOrizz, 10}, {&project::DatiProgetto::sovraccMonte, 10},
    {&project::DatiProgetto::momentoTesta, 10},   {&project::DatiProgetto::forzaTesta, 10},
    {&project::DatiProgetto::sforzoNormale, 10},  {&project::DatiProgetto::inclinazioneMonte, 1},
    {&project::DatiProgetto::faldaMonte, 1},      {&project::DatiProgetto::gammaAcqua, 1},
};

double letto(const std::string& testo, double fattore) {
    const double scritto = base::leggiNumero(testo).value_or(0);
    return fattore == 1 ? scritto : scritto / fattore;
}

bool stesso(std::string_view uno, std::string_view altro) {
    return base::senzaSpaziEsterni(uno) == base::senzaSpaziEsterni(altro);
}

// Takes the texts of a table editor back, cell after cell. A cell that reads as one that was shown
// gives back the value that it was made of, with all its digits: ten times a number and its tenth
// need not be the same double, and a form shows no more than fifteen digits.
class Ripresa {
 public:
    using Mostra = std::vector<std::string> (*)(const project::DatiProgetto&);

    Ripresa(project::DatiProgetto& dati, const std::vector<std::string>& testi, Mostra mostra,
            int colonne)
        : dati_(dati),
          prima_(dati),
          testi_(testi),
          mostrati_(mostra(dati)),
          colonne_(static_cast<std::size_t>(colonne)) {}

    // More rows than the table holds end the program, before anything of the project has changed.
    [[nodiscard]] int righe(int capacita) const {
        const double scritte = testi_.empty() ? 0 : letto(testi_[0], 1);
        if (scritte > capacita)
            throw base::ErroreIndice(capacita + 1, static_cast<std::size_t>(capacita));
        return scritte > 0 ? static_cast<int>(scritte) : 0;
    }

    // The next cell, of row `riga`.
    template <class Colonna>
    Ripresa& numero(Colonna project::DatiProgetto::*colonna, int riga, double fattore = 1) {
        const std::string testo = prossima();
        const int come = mostrata(testo);
        (dati_.*colonna)[riga] = come > 0 ? (prima_.*colonna)[come] : letto(testo, fattore);
        return *this;
    }
    template <class Colonna>
    Ripresa& testo(Colonna project::DatiProgetto::*colonna, int riga) {
        const std::string testo = prossima();
        const int come = mostrata(testo);
        (dati_.*colonna)[riga] = come > 0 ? (prima_.*colonna)[come] : testo;
        return *this;
    }

 private:
    std::string prossima() {
        ++posto_;
        return posto_ < testi_.size() ? testi_[posto_] : std::string();
    }
    // The row that showed this text in the column of the current cell, its own row before others,
    // since rows move when one is inserted or taken out; 0 if none did.
    [[nodiscard]] int mostrata(const std::string& testo) const {
        if (posto_ < mostrati_.size() && stesso(testo, mostrati_[posto_]))
            return static_cast<int>((posto_ - 1) / colonne_) + 1;
        for (std::size_t i = (posto_ - 1) % colonne_ + 1; i < mostrati_.size(); i += colonne_)
            if (stesso(testo, mostrati_[i])) return static_cast<int>((i - 1) / colonne_) + 1;
        return 0;
    }

    project::DatiProgetto& dati_;
    const project::DatiProgetto prima_;
    const std::vector<std::string>& testi_;
    const std::vector<std::string> mostrati_;
    std::size_t colonne_;
    std::size_t posto_ = 0;  // of the current cell; the number of rows is at 0
};

// A plain exchange sort, kept plain because of what its exchanges do not move: `scambia` says which
// columns go along, and a depth that is left is compared again in its place.
template <class Profondita, class Scambio>
void ordina(const Profondita& profondita, int righe, Scambio scambia) {
    for (int i = 1; i <= righe - 1; ++i)
        for (int j = 1; j <= righe - i; ++j)
            if (profondita[j] > profondita[j + 1]) scambia(j, j + 1);
}

// Gathers the texts of an editor, in the units that the user sees.
class Elenco {
 public:
    Elenco& testo(std::string valore) {
        testi_.push_back(std::move(valore));
        return *this;
    }
    Elenco& numero(double valore, double fattore = 1) {
        return testo(base::testoNumero(valore * fattore));
    }
    std::vector<std::string> tutti() && { return std::move(testi_); }

 private:
    std::vector<std::string> testi_;
};

}  // namespace

std::vector<std::string> testiStrati(const project::DatiProgetto& dati) {
    Elenco elenco;
    elenco.numero(dati.nStrati);
    for (int i = 1; i <= dati.nStrati; ++i)
        elenco.numero(dati.profStrato[i])
            .numero(dati.gammaN[i], 10)
            .numero(dati.gammaSat[i], 10)
            .numero(dati.phiStrato[i])
            .numero(dati.coesione[i], 10)
            .numero(dati.ksStrato[i], 10)
            .testo(dati.descrStrato[i]);
    return std::move(elenco).tutti();
}

std::vector<std::string> testiTiranti(const project::DatiProgetto& dati) {
    Elenco elenco;
    elenco.numero(dati.nTiranti);
    for (int i = 1; i <= dati.nTiranti; ++i)
        elenco.numero(dati.profTirante[i])
            .numero(dati.rigTirante[i], 10)
            .numero(dati.pretTirante[i], 10)
            .numero(dati.tipoTirante[i]);
    return std::move(elenco).tutti();
}

std::vector<std::string> testiFasi(const project::DatiProgetto& dati) {
    Elenco elenco;
    elenco.numero(dati.nFasi);
    for (int i = 1; i <= dati.nFasi; ++i)
        elenco.numero(dati.profFase[i])
            .numero(dati.tirantiFase[i])
            .numero(dati.sovraccFase[i], 10)
            .numero(dati.faldaFase[i]);
    return std::move(elenco).tutti();
}

std::vector<std::string> testiParatia(const project::DatiProgetto& dati) {
    Elenco elenco;
    for (const auto& [campo, fattore] : campiEditati) elenco.numero(dati.*campo, fattore);
    return std::move(elenco).tutti();
}

std::vector<std::string> testiTitoli(const project::DatiProgetto& dati) {
    Elenco elenco;
    for (int i = 1; i <= 6; ++i) elenco.testo(dati.titoli[i]);
    return std::move(elenco).tutti();
}

bool riprendiStrati(project::DatiProgetto& dati, const std::vector<std::string>& testi) {
    Ripresa lista(dati, testi, testiStrati, 7);
    const int prima = std::exchange(dati.nStrati, lista.righe(project::massimoStrati));
    for (int i = 1; i <= dati.nStrati; ++i) {
        if (i > prima) dati.suStrato[i] = 0;
        lista.numero(&project::DatiProgetto::profStrato, i)
            .numero(&project::DatiProgetto::gammaN, i, 10)
            .numero(&project::DatiProgetto::gammaSat, i, 10)
            .numero(&project::DatiProgetto::phiStrato, i)
            .numero(&project::DatiProgetto::coesione, i, 10)
            .numero(&project::DatiProgetto::ksStrato, i, 10)
            .testo(&project::DatiProgetto::descrStrato, i);
    }
    ordina(dati.profStrato, dati.nStrati, [&dati](int a, int b) {
        for (auto* colonna : {&dati.profStrato, &dati.gammaN, &dati.gammaSat, &dati.phiStrato,
                              &dati.coesione, &dati.ksStrato})
            std::swap((*colonna)[a], (*colonna)[b]);
        std::swap(dati.descrStrato[a], dati.descrStrato[b]);
    });
    return true;
}

bool riprendiTiranti(project::DatiProgetto& dati, const std::vector<std::string>& testi) {
    Ripresa lista(dati, testi, testiTiranti, 4);
    dati.nTiranti = lista.righe(project::massimoTiranti);
    for (int i = 1; i <= dati.nTiranti; ++i)
        lista.numero(&project::DatiProgetto::profTirante, i)
            .numero(&project::DatiProgetto::rigTirante, i, 10)
            .numero(&project::DatiProgetto::pretTirante, i, 10)
            .numero(&project::DatiProgetto::tipoTirante, i);
    ordina(dati.profTirante, dati.nTiranti, [&dati](int a, int b) {
        for (auto* colonna :
             {&dati.profTirante, &dati.rigTirante, &dati.pretTirante, &dati.tipoTirante})
            std::swap((*colonna)[a], (*colonna)[b]);
    });
    return true;
}

bool riprendiFasi(project::DatiProgetto& dati, const std::vector<std::string>& testi) {
    Ripresa lista(dati, testi, testiFasi, 4);
    dati.nFasi = lista.righe(project::massimoFasi);
    for (int i = 1; i <= dati.nFasi; ++i)
        lista.numero(&project::DatiProgetto::profFase, i)
            .numero(&project::DatiProgetto::tirantiFase, i)
            .numero(&project::DatiProgetto::sovraccFase, i, 10)
            .numero(&project::DatiProgetto::faldaFase, i);
    ordina(dati.profFase, dati.nFasi, [&dati](int a, int b) {
        std::swap(dati.tirantiFase[a], dati.tirantiFase[b]);
        std::swap(dati.sovraccFase[a], dati.sovraccFase[b]);
        std::swap(dati.rigTirante[a], dati.rigTirante[b]);
    });
    return true;
}

bool riprendiParatia(project::DatiProgetto& dati, const std::vector<std::string>& testi) {
    const std::vector<std::string> mostrati = testiParatia(dati);
    bool diversa = false;
    for (std::size_t i = 0; i < std::size(campiEditati); ++i) {
        const std::string testo = i < testi.size() ? testi[i] : std::string();
        if (stesso(testo, mostrati[i])) continue;
        const auto& [campo, fattore] = campiEditati[i];
        const double valore = letto(testo, fattore);
        diversa = diversa || valore != dati.*campo;
        dati.*campo = valore;
    }
    return diversa;
}

bool riprendiTitoli(project::DatiProgetto& dati, const std::vector<std::string>& testi) {
    bool diversi = false;
    for (std::size_t i = 0; i < 6; ++i) {
        const std::string riga = i < testi.size() ? testi[i] : std::string();
        std::string& titolo = dati.titoli[static_cast<long>(i + 1)];
        diversi = diversi || riga != titolo;
        titolo = riga;
    }
    return diversi;
}

}  // namespace korven::masks
