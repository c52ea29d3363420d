#include "project/edited_tables.hpp"

#include <utility>

#include "base/number_text.hpp"

namespace korven::project {

namespace {

// What the user types over what is stored: 1, or 10 where tonnes become kN.
struct CampoEditato {
    double DatiProgetto::*campo;
    double fattore;
};

constexpr CampoEditato campiEditati[] = {
    {&DatiProgetto::vincoloTesta, 1},    {&DatiProgetto::vincoloPiede, 1},
    {&DatiProgetto::modoSpinte, 1},      {&DatiProgetto::modoKs, 1},
    {&DatiProgetto::modoTensioni, 1},    {&DatiProgetto::metodoSpinte, 1},
    {&DatiProgetto::metodoKs, 1},        {&DatiProgetto::lunghezzaParatia, 1},
    {&DatiProgetto::rigidezzaEJ, 10},    {&DatiProgetto::coeffM, 1},
    {&DatiProgetto::pressioneOrizz, 10}, {&DatiProgetto::sovraccMonte, 10},
    {&DatiProgetto::momentoTesta, 10},   {&DatiProgetto::forzaTesta, 10},
    {&DatiProgetto::sforzoNormale, 10},  {&DatiProgetto::inclinazioneMonte, 1},
    {&DatiProgetto::faldaMonte, 1},      {&DatiProgetto::gammaAcqua, 1},
};

// Hands out the texts of an editor one after the other.
class Testi {
 public:
    explicit Testi(const std::vector<std::string>& testi) : testi_(testi) {}

    std::string testo() { return prossimo_ < testi_.size() ? testi_[prossimo_++] : std::string(); }
    double numero(double fattore = 1) {
        const double scritto = base::leggiNumero(testo()).value_or(0);
        return fattore == 1 ? scritto : scritto / fattore;
    }
    // More rows than the table holds end the program, before anything of the project has changed.
    int righe(int capacita) {
        const double scritte = numero();
        if (scritte > capacita)
            throw base::ErroreIndice(capacita + 1, static_cast<std::size_t>(capacita));
        return scritte > 0 ? static_cast<int>(scritte) : 0;
    }

 private:
    const std::vector<std::string>& testi_;
    std::size_t prossimo_ = 0;
};

// A plain exchange sort, kept plain because of what its exchanges do not move: `scambia` says which
// columns go along, and a depth that stays behind is compared again where it stands.
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

std::vector<std::string> testiStrati(const DatiProgetto& dati) {
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

std::vector<std::string> testiTiranti(const DatiProgetto& dati) {
    Elenco elenco;
    elenco.numero(dati.nTiranti);
    for (int i = 1; i <= dati.nTiranti; ++i)
        elenco.numero(dati.profTirante[i])
            .numero(dati.rigTirante[i], 10)
            .numero(dati.pretTirante[i], 10)
            .numero(dati.tipoTirante[i]);
    return std::move(elenco).tutti();
}

std::vector<std::string> testiFasi(const DatiProgetto& dati) {
    Elenco elenco;
    elenco.numero(dati.nFasi);
    for (int i = 1; i <= dati.nFasi; ++i)
        elenco.numero(dati.profFase[i])
            .numero(dati.tirantiFase[i])
            .numero(dati.sovraccFase[i], 10)
            .numero(dati.faldaFase[i]);
    return std::move(elenco).tutti();
}

std::vector<std::string> testiParatia(const DatiProgetto& dati) {
    Elenco elenco;
    for (const auto& [campo, fattore] : campiEditati) elenco.numero(dati.*campo, fattore);
    return std::move(elenco).tutti();
}

std::vector<std::string> testiTitoli(const DatiProgetto& dati) {
    Elenco elenco;
    for (int i = 1; i <= 6; ++i) elenco.testo(dati.titoli[i]);
    return std::move(elenco).tutti();
}

bool riprendiStrati(DatiProgetto& dati, const std::vector<std::string>& testi) {
    Testi lista(testi);
    dati.nStrati = lista.righe(massimoStrati);
    for (int i = 1; i <= dati.nStrati; ++i) {
        dati.profStrato[i] = lista.numero();
        dati.gammaN[i] = lista.numero(10);
        dati.gammaSat[i] = lista.numero(10);
        dati.phiStrato[i] = lista.numero();
        dati.coesione[i] = lista.numero(10);
        dati.ksStrato[i] = lista.numero(10);
        dati.descrStrato[i] = lista.testo();
    }
    ordina(dati.profStrato, dati.nStrati, [&dati](int a, int b) {
        for (auto* colonna : {&dati.profStrato, &dati.gammaN, &dati.gammaSat, &dati.phiStrato,
                              &dati.coesione, &dati.ksStrato})
            std::swap((*colonna)[a], (*colonna)[b]);
        std::swap(dati.descrStrato[a], dati.descrStrato[b]);
    });
    return true;
}

bool riprendiTiranti(DatiProgetto& dati, const std::vector<std::string>& testi) {
    Testi lista(testi);
    dati.nTiranti = lista.righe(massimoTiranti);
    for (int i = 1; i <= dati.nTiranti; ++i) {
        dati.profTirante[i] = lista.numero();
        dati.rigTirante[i] = lista.numero(10);
        dati.pretTirante[i] = lista.numero(10);
        dati.tipoTirante[i] = lista.numero();
    }
    ordina(dati.profTirante, dati.nTiranti, [&dati](int a, int b) {
        for (auto* colonna :
             {&dati.profTirante, &dati.rigTirante, &dati.pretTirante, &dati.tipoTirante})
            std::swap((*colonna)[a], (*colonna)[b]);
    });
    return true;
}

bool riprendiFasi(DatiProgetto& dati, const std::vector<std::string>& testi) {
    Testi lista(testi);
    dati.nFasi = lista.righe(massimoFasi);
    for (int i = 1; i <= dati.nFasi; ++i) {
        dati.profFase[i] = lista.numero();
        dati.tirantiFase[i] = lista.numero();
        dati.sovraccFase[i] = lista.numero(10);
        dati.faldaFase[i] = lista.numero();
    }
    ordina(dati.profFase, dati.nFasi, [&dati](int a, int b) {
        std::swap(dati.tirantiFase[a], dati.tirantiFase[b]);
        std::swap(dati.sovraccFase[a], dati.sovraccFase[b]);
        std::swap(dati.rigTirante[a], dati.rigTirante[b]);
    });
    return true;
}

bool riprendiParatia(DatiProgetto& dati, const std::vector<std::string>& testi) {
    Testi lista(testi);
    bool diversa = false;
    for (const auto& [campo, fattore] : campiEditati) {
        const double valore = lista.numero(fattore);
        diversa = diversa || valore != dati.*campo;
        dati.*campo = valore;
    }
    return diversa;
}

bool riprendiTitoli(DatiProgetto& dati, const std::vector<std::string>& testi) {
    Testi lista(testi);
    bool diversi = false;
    for (int i = 1; i <= 6; ++i) {
        const std::string riga = lista.testo();
        diversi = diversi || riga != dati.titoli[i];
        dati.titoli[i] = riga;
    }
    return diversi;
}

}  // namespace korven::project
