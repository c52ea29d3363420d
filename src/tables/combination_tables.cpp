#include "tables/combination_tables.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/code_page.hpp"
#include "base/translated_texts.hpp"
#include "factors/words.hpp"
#include "project/anchor_names.hpp"
#include "tables/quantities.hpp"

namespace korven::tables {

namespace {

using base::traduttore;
using factors::Combinazioni;
using factors::EsitoCombinazione;
using factors::Massimo;
using factors::Oggetto;
using factors::Verifica;
using project::Unita;
namespace unita = project::unita;

Colonna parole(const char* titolo) {
    return {.titolo = traduttore(titolo), .unita = {}, .spiegazione = {}, .numerica = false};
}

Colonna numeri(const Unita& u, const char* titolo) {
    return {.titolo = base::conMaiuscola(traduttore(titolo)), .unita = std::string(u.mostrata)};
}

Colonna numeri(const char* titolo) { return numeri(unita::nessuna, titolo); }

Colonna simboli(const Unita& u, std::string simbolo) {
    return {.titolo = std::move(simbolo), .unita = std::string(u.mostrata)};
}

Colonna simboli(const char* simbolo) { return simboli(unita::nessuna, simbolo); }

// With the digits that a code has.
Cella fattore(double valore) { return cella(valore, 2, unita::nessuna); }

// Stages whose surcharges have different signs have different factors.
Cella fattori(const std::vector<double>& tutti) {
    if (tutti.empty()) return {};
    const auto [meno, piu] = std::minmax_element(tutti.begin(), tutti.end());
    if (*meno == *piu) return fattore(*meno);
    return {.testo = fattore(*meno).testo + "-" + fattore(*piu).testo};
}

double massimo(const std::vector<double>& valori) {
    return valori.empty() ? 0 : *std::max_element(valori.begin(), valori.end());
}

Cella verdetto(bool soddisfatta) {
    return esito(traduttore(soddisfatta ? "verificata" : "NON verificata"), !soddisfatta);
}

// Of a combination or the envelope: without a check there is but the equilibrium.
Cella verdetto(const std::optional<bool>& giudizio) {
    return giudizio ? verdetto(*giudizio) : parola(traduttore("in equilibrio"));
}

std::vector<Cella> riga(const EsitoCombinazione& e) {
    const double gamma = e.effetti();
    const equilibrium::Estremi& m = e.estremi;
    if (!e.sta())
        return {parola(e.combinazione.nome), {}, {}, {}, {}, esito(factors::esito(e), true)};
    return {parola(e.combinazione.nome),
            spostamento(std::fabs(m.spostamento.valore)),
            momento(m.momentoMassimo.valore * gamma),
            momento(m.momentoMinimo.valore * gamma),
            forza(std::fabs(m.taglio.valore) * gamma),
            verdetto(e.giudizio())};
}

Cella valore(const Massimo& m, Cella (*mostra)(double)) {
    return m.combinazione < 0 ? Cella() : mostra(m.valore);
}

Cella grandezza(Massimo m, Cella (*mostra)(double)) {
    m.valore = std::fabs(m.valore);
    return valore(m, mostra);
}

const Unita& unitaDi(Oggetto oggetto) {
    switch (oggetto) {
        case Oggetto::momentoPositivo:
        case Oggetto::momentoNegativo:
            return unita::momentoAlMetro;
        case Oggetto::bielle:
        case Oggetto::armatura:
            return unita::forzaAlMetro;
        case Oggetto::terra:
            break;
    }
    return unita::percento;
}

std::vector<Cella> riga(const std::string& nome, const Verifica& v) {
    const Unita& u = unitaDi(v.oggetto);
    const auto uso = v.uso();
    return {parola(nome),
            parola(factors::parole(v.oggetto) + " " + traParentesi(u)),
            cella(v.progetto, 2, u),
            cella(v.resistenza, 2, u),
            uso ? cella(*uso, 1, unita::percento) : senza(traduttore("La resistenza è 0.")),
            v.fase > 0 ? cella(v.fase) : Cella(),
            v.oggetto == Oggetto::terra ? Cella() : dove(v.fase, v.z, v.lato),
            verdetto(v.verificata)};
}

}  // namespace

Prospetto prospettoFattori(const Combinazioni& tutte) {
    Prospetto p{
        .titolo = traduttore("Coefficienti applicati"),
        .colonne = {parole("Combinazione"), simboli("tan φ"), simboli("c'"), simboli("cu"),
                    simboli("γ"), numeri("q monte"), numeri("q scavo"), simboli("H"), simboli("M"),
                    numeri("Effetti"), numeri("Terra"), numeri(unita::metri, "Scavo imprevisto")}};
    for (const EsitoCombinazione& e : tutte.esiti) {
        const factors::Fattori& f = e.combinazione.fattori;
        p.righe.push_back({parola(e.combinazione.nome), fattore(f.attrito), fattore(f.coesione),
                           fattore(f.nonDrenata), fattore(f.peso), fattore(e.carichi.monte),
                           fattori(e.carichi.scavo), fattore(e.carichi.forza),
                           fattore(e.carichi.momento), fattore(f.effetti),
                           f.terra > 0 ? fattore(f.terra) : Cella(), profondita(massimo(e.inPiu))});
    }
    return p;
}

Prospetto prospettoEffetti(const Combinazioni& tutte) {
    Prospetto p{
        .titolo = traduttore("Combinazioni e inviluppo"),
        .colonne = {parole("Combinazione"), numeri(unita::spostamentoFine, "Spostamento massimo"),
                    numeri(unita::momentoAlMetro, "momento massimo"),
                    numeri(unita::momentoAlMetro, "momento minimo"),
                    numeri(unita::forzaAlMetro, "Taglio massimo"), parole("Esito")}};
    for (const EsitoCombinazione& e : tutte.esiti) p.righe.push_back(riga(e));
    const factors::Inviluppo& i = tutte.inviluppo;
    p.righe.push_back({parola(traduttore("Inviluppo")), grandezza(i.spostamento, spostamento),
                       valore(i.momentoMassimo, momento), valore(i.momentoMinimo, momento),
                       grandezza(i.taglio, forza), verdetto(tutte.giudizio())});
    return p;
}

Prospetto prospettoVerifiche(const Combinazioni& tutte) {
    Prospetto p{.titolo = traduttore("Verifiche"),
                .colonne = {parole("Combinazione"), parole("Verifica"), numeri("Di progetto"),
                            numeri("Resistenza"), numeri(unita::percento, "Sfruttamento"),
                            numeri("Fase"), simboli(unita::metri, "z"), parole("Esito")}};
    for (const EsitoCombinazione& e : tutte.esiti) {
        for (const Verifica& v : e.verifiche) p.righe.push_back(riga(e.combinazione.nome, v));
        // A combination without a check must not look like one whose checks are met.
        if (e.sta()) continue;
        auto& senzaVerifiche = p.righe.emplace_back(p.colonne.size());
        senzaVerifiche.front() = parola(e.combinazione.nome);
        senzaVerifiche.back() = esito(factors::esito(e), true);
    }
    return p;
}

Prospetto prospettoTiri(const Combinazioni& tutte, const project::DatiProgetto& dati) {
    Prospetto p{.titolo = traduttore("Tiranti e puntoni"), .colonne = {parole("Elemento")}};
    for (const EsitoCombinazione& e : tutte.esiti)
        p.colonne.push_back(simboli(unita::forzaAlMetro, e.combinazione.nome));
    p.colonne.push_back(numeri(unita::forzaAlMetro, "Inviluppo"));
    const auto& tiri = tutte.inviluppo.tiri;
    for (std::size_t a = 0; a < tiri.size(); ++a) {
        if (tiri[a].combinazione < 0) continue;
        std::vector<Cella> celle = {parola(project::nomeTirante(dati, static_cast<int>(a) + 1))};
        for (const EsitoCombinazione& e : tutte.esiti)
            celle.push_back(e.sta() && e.tiri[a].fase > 0 ? forza(e.tiri[a].tiro * e.effetti())
                                                          : Cella());
        celle.push_back(valore(tiri[a], forza));
        p.righe.push_back(std::move(celle));
    }
    return p;
}

Prospetto prospettoFonti(const factors::Combinazione& combinazione) {
    Prospetto p{.titolo = combinazione.nome,
                .colonne = {parole("Coefficiente"), numeri("Valore"), parole("Fonte")}};
    for (std::size_t i = 0; i < factors::vociFattori().size(); ++i) {
        if (combinazione.fonti[i].empty()) continue;
        const factors::VoceFattore& voce = factors::vociFattori()[i];
        const bool lungo = voce.membro == &factors::Fattori::scavoMassimo;
        p.righe.push_back({parola(traduttore(voce.cosa) +
                                  (lungo ? " " + traParentesi(unita::metri) : std::string())),
                           fattore(combinazione.fattori.*(voce.membro)),
                           parola(combinazione.fonti[i])});
    }
    return p;
}

}  // namespace korven::tables
