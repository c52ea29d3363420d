#include "desk/code_document.hpp"

#include <optional>
#include <utility>

#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "factors/words.hpp"
#include "project/shown_number.hpp"
#include "project/units.hpp"
#include "tables/combination_tables.hpp"

namespace korven::desk {

namespace {

using base::riempito;
using base::traduttore;
using document::Documento;
using document::Paragrafo;
using document::Stile;
using document::Titolo;
using factors::Combinazioni;
using tables::Prospetto;

// The check that uses most of its resistance, and its combination.
struct Peggiore {
    const factors::EsitoCombinazione* esito;
    const factors::Verifica* verifica;
    double uso;
};

std::optional<Peggiore> peggiore(const Combinazioni& tutte) {
    std::optional<Peggiore> trovata;
    for (const factors::EsitoCombinazione& e : tutte.esiti)
        for (const factors::Verifica& v : e.verifiche)
            if (const auto uso = v.uso(); uso && (!trovata || *uso > trovata->uso))
                trovata = {&e, &v, *uso};
    return trovata;
}

std::string fraseUso(const Peggiore& p) {
    constexpr int decimali = 1;
    return riempito(traduttore("Lo sfruttamento maggiore è %1 %: %2, combinazione %3."),
                    {project::numeroMostrato(p.uso, decimali, project::unita::percento),
                     factors::parole(p.verifica->oggetto), p.esito->combinazione.nome});
}

std::vector<Prospetto> prospetti(const Combinazioni& tutte, const project::DatiProgetto& dati) {
    std::vector<Prospetto> fatti;
    for (Prospetto p : {tables::prospettoEffetti(tutte), tables::prospettoVerifiche(tutte),
                        tables::prospettoTiri(tutte, dati), tables::prospettoFattori(tutte)})
        if (!p.righe.empty()) fatti.push_back(std::move(p));
    return fatti;
}

std::string titolo(const Combinazioni& tutte) {
    return riempito(traduttore("Combinazioni della norma %1"), {tutte.norma.titolo});
}

}  // namespace

std::vector<std::string> frasi(const Combinazioni& tutte) {
    std::vector<std::string> dette = {factors::verdetto(tutte)};
    if (const auto p = peggiore(tutte)) dette.push_back(fraseUso(*p));
    for (const factors::EsitoCombinazione& e : tutte.esiti)
        if (std::string perche = factors::caduta(e); !perche.empty())
            dette.push_back(std::move(perche));
    dette.push_back(factors::parole(tutte.natura));
    return dette;
}

Prospetto prospettoFonti(const factors::Norma& norma) {
    Prospetto tutte;
    for (const factors::Combinazione& c : norma.combinazioni) {
        Prospetto sue = tables::prospettoFonti(c);
        if (tutte.colonne.empty()) {
            tutte.colonne = std::move(sue.colonne);
            tutte.colonne.insert(tutte.colonne.begin(),
                                 {.titolo = traduttore("Combinazione"), .numerica = false});
        }
        for (auto& celle : sue.righe) {
            celle.insert(celle.begin(), tables::parola(c.nome));
            tutte.righe.push_back(std::move(celle));
        }
    }
    tutte.titolo = traduttore("Coefficienti e fonti");
    return tutte;
}

Documento documento(const Combinazioni& tutte, const ProgettoDetto& progetto) {
    Documento d = documentoDi(progetto, titolo(tutte));
    Stile stile = Stile::rilievo;  // the verdict alone
    for (std::string& frase : frasi(tutte))
        d.blocchi.emplace_back(Paragrafo{std::move(frase), std::exchange(stile, Stile::normale)});
    auto tavole = prospetti(tutte, progetto.dati);
    tavole.push_back(prospettoFonti(tutte.norma));
    for (Prospetto& p : tavole) {
        d.blocchi.emplace_back(Titolo{2, std::exchange(p.titolo, {})});
        d.blocchi.emplace_back(document::Tavola{std::move(p)});
    }
    d.blocchi.emplace_back(Titolo{2, traduttore("Note")});
    for (std::string& nota : factors::note(tutte, progetto.dati))
        d.blocchi.emplace_back(Paragrafo{std::move(nota)});
    return d;
}

workbook::CartellaFogli cartella(const Combinazioni& tutte, const ProgettoDetto& progetto) {
    workbook::CartellaFogli cartella = cartellaDi(progetto, titolo(tutte));
    auto tavole = prospetti(tutte, progetto.dati);
    tavole.front().note = frasi(tutte);
    for (std::string& nota : factors::note(tutte, progetto.dati))
        tavole.front().note.push_back(std::move(nota));
    tavole.push_back(prospettoFonti(tutte.norma));
    for (Prospetto& p : tavole)
        cartella.fogli.push_back({.nome = {}, .prospetto = std::move(p), .fonte = cartella.titolo});
    return cartella;
}

}  // namespace korven::desk
