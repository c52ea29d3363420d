#include "document/markup_text.hpp"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <string_view>
#include <vector>

#include "base/bound_units.hpp"
#include "base/code_page.hpp"
#include "base/number_text.hpp"
#include "base/text_lines.hpp"
#include "base/translated_texts.hpp"
#include "document/line_breaking.hpp"
#include "document/spelled_out.hpp"
#include "document/table_strips.hpp"
#include "markup/cells.hpp"
#include "markup/number_profile.hpp"
#include "markup/text_renderer.hpp"

namespace korven::document {

namespace {

using tables::Prospetto;
using Indici = std::vector<std::size_t>;

constexpr std::size_t colonneTesto = 100;
constexpr double larghezzaPagina = 17 * puntiPerCentimetro;
constexpr const char* spazioFermo = "\u00A0";

// Every character is as wide as 1: lines are counted, not measured.
class UnoPerCarattere : public MisuraCaratteri {
 public:
    [[nodiscard]] double larghezza(std::string_view testo, const Carattere&) const override {
        return static_cast<double>(base::numeroCaratteri(testo));
    }
};

// Tabs part cells, line feeds lines: within a cell both are blanks.
std::string inUnaRiga(std::string_view testo) {
    std::string riga = perEsteso(testo);
    std::replace_if(
        riga.begin(), riga.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    return riga;
}

class Scrittore {
 public:
    explicit Scrittore(Uso uso) : uso_(uso) {}

    void direttiva(std::string_view parola, std::string_view argomento = {}) {
        testo_.append(parola);
        if (!argomento.empty()) testo_.append(" ").append(inUnaRiga(argomento));
        testo_ += "\r\n";
    }
    void riga(std::string_view testo) {
        const auto prima = testo.find_first_not_of(' ');
        if (prima != std::string_view::npos && testo[prima] == '#') testo_ += '\'';
        testo_.append(testo).append("\r\n");
    }

    void scrivi(const Titolo& titolo) {
        const auto livello = static_cast<std::size_t>(std::clamp(titolo.livello, 1, 3));
        riga({});
        direttiva("#FONTSIZE", base::testoNumero(corpiTitoli.at(livello - 1)));
        riga(base::maiuscolo(inUnaRiga(titolo.testo)));
        direttiva("#FONTSIZE", corpo);
    }

    void scrivi(const Paragrafo& paragrafo) {
        riga({});
        const bool fisso = paragrafo.stile == Stile::fisso;
        if (fisso) direttiva("#FONT", "Courier New");
        if (fisso || paragrafo.stile == Stile::nota) direttiva("#FONTSIZE", fisso ? "7" : "8");
        for (const auto& r : righe(paragrafo.testo, fisso)) riga(r);
        if (fisso) direttiva("#FONT", "Arial");
        direttiva("#FONTSIZE", corpo);
    }

    void scrivi(const Tavola& tavola) {
        const Prospetto& p = tavola.prospetto;
        riga({});
        if (!p.titolo.empty()) riga(inUnaRiga(p.titolo));
        direttiva("#FONTSIZE", "8");
        for (const Indici& colonne : parti(p))
            for (std::size_t da = 0; da < p.righe.size(); da += righeInsieme)
                tabella(p, colonne, da, std::min(p.righe.size(), da + righeInsieme));
        for (const auto& nota : note(p))
            for (const auto& r : righe(nota, false)) riga(r);
        direttiva("#FONTSIZE", corpo);
    }

    void scrivi(const Figura& figura) {
        riga({});
        if (!figura.didascalia.empty()) riga(inUnaRiga(figura.didascalia));
        const std::string dove =
            "[" + base::traduttore("il disegno si trova nel documento PDF") + "]";
        for (const auto& r : righe(figura.descrizione + " " + dove, false)) riga(r);
    }

    void scrivi(const Indice&) {}  // needs what follows it: below
    void scrivi(const SaltoPagina&) { direttiva("#NEWPAGE"); }
    // No page has a number here: the headings alone.
    void scrivi(const Indice& indice, const std::vector<Blocco>& blocchi, std::size_t da) {
        if (uso_ == Uso::testo) return;
        std::vector<const Titolo*> titoli;
        for (std::size_t i = da + 1; i < blocchi.size(); ++i)
            if (const auto* t = std::get_if<Titolo>(&blocchi[i]); t != nullptr && t->livello <= 2)
                titoli.push_back(t);
        if (titoli.empty()) return;
        riga({});
        riga(inUnaRiga(indice.titolo));
        for (const Titolo* t : titoli)
            riga((t->livello == 1 ? std::string() : rientro()) + inUnaRiga(t->testo));
    }

    [[nodiscard]] std::string testo() { return std::move(testo_); }

    static constexpr std::string_view corpo = "9.5";

 private:
    static constexpr std::size_t righeInsieme = markup::maximumGridRows - 1;  // below the head

    // Blanks at a line's head are lost.
    static std::string rientro() {
        constexpr int quanti = 4;
        std::string bianchi;
        for (int i = 0; i < quanti; ++i) bianchi += spazioFermo;
        return bianchi;
    }

    [[nodiscard]] std::vector<std::string> righe(std::string_view testo, bool fisso) const {
        std::string scritto = perEsteso(testo);
        // A word processor breaks the lines itself.
        if (uso_ == Uso::documento && !fisso) scritto = base::unitaUnite(scritto);
        const UnoPerCarattere misura;
        const double larga = uso_ == Uso::testo && !fisso ? colonneTesto : 1e9;
        return fisso ? inRigheFisse(scritto, larga, {}, misura)
                     : inRighe(scritto, larga, {}, misura);
    }

    // The first column and as many others as a mark-up holds and, on a page, stand beside one
    // another.
    [[nodiscard]] std::vector<Indici> parti(const Prospetto& p) const {
        std::vector<Indici> tutte;
        double larga = 0;
        for (std::size_t j = 1; j < p.colonne.size(); ++j) {
            const double questa = larghezza(p, j);
            const bool piena =
                !tutte.empty() && (tutte.back().size() == markup::maximumGridColumns ||
                                   (uso_ == Uso::documento && larga + questa > larghezzaPagina));
            if (tutte.empty() || piena) {
                tutte.push_back({0});
                larga = larghezza(p, 0);
            }
            tutte.back().push_back(j);
            larga += questa;
        }
        if (tutte.empty() && !p.colonne.empty()) tutte.push_back({0});
        return tutte;
    }

    // What a column needs on a page with no word broken [pt].
    static double larghezza(const Prospetto& p, std::size_t j) {
        constexpr double spazio = 20;
        const CaratteriStimati misura;
        double larga = parolaPiuLarga(testa(p.colonne[j]), {8, true}, misura);
        for (const auto& riga : p.righe)
            larga = std::max(larga, parolaPiuLarga(riga[j].testo, {8}, misura));
        return larga + spazio;
    }

    // With a unit that stays together.
    static std::string testa(const tables::Colonna& colonna) {
        tables::Colonna ferma = colonna;
        for (auto i = ferma.unita.find(' '); i != std::string::npos; i = ferma.unita.find(' '))
            ferma.unita.replace(i, 1, spazioFermo);
        return inUnaRiga(ferma.testa());
    }

    void tabella(const Prospetto& p, const Indici& colonne, std::size_t da, std::size_t a) {
        std::string stile = "=";
        for (const std::size_t j : colonne) stile += p.colonne[j].numerica ? '>' : '<';
        direttiva("#TABSTYLE", stile);
        direttiva("#STARTTABLE");
        std::string teste;
        for (const std::size_t j : colonne) {
            const std::string titolo =
                uso_ == Uso::documento ? testa(p.colonne[j]) : inUnaRiga(p.colonne[j].testa());
            cella(titolo, teste, markup::numberProfile(titolo) != markup::textProfile);
        }
        riga(teste);
        std::vector<char> ferme;
        for (const std::size_t j : colonne) ferme.push_back(decimaliDiversi(p, j));
        for (std::size_t i = da; i < a; ++i) {
            std::string celle;
            for (std::size_t k = 0; k < colonne.size(); ++k)
                cella(inUnaRiga(p.righe[i][colonne[k]].testo), celle, ferme[k] != 0);
            riga(celle);
        }
        direttiva("#ENDTABLE");
    }

    void cella(std::string testo, std::string& riga, bool ferma) const {
        if (uso_ == Uso::documento && (testo.empty() || ferma)) testo += spazioFermo;
        if (!riga.empty()) riga += '\t';
        riga += testo;
    }

    // Numbers with different decimals would be filled up, and so say more than they do.
    [[nodiscard]] static bool decimaliDiversi(const Prospetto& p, std::size_t j) {
        int primo = markup::textProfile;
        for (const auto& riga : p.righe) {
            const int profilo = markup::numberProfile(inUnaRiga(riga[j].testo));
            if (profilo == markup::textProfile) continue;
            if (primo != markup::textProfile && profilo != primo) return true;
            primo = profilo;
        }
        return false;
    }

    const Uso uso_;
    std::string testo_;
};

}  // namespace

std::string inMarkup(const Documento& documento, Uso uso) {
    Scrittore scrittore(uso);
    scrittore.direttiva("#RESET", "2,2,1.2,1.2,0.5,0.5,8,Arial");
    std::string testata = documento.testata[0];
    if (!testata.empty() && !documento.testata[1].empty()) testata += "  ·  ";
    scrittore.direttiva("#HEADER", testata + documento.testata[1]);
    scrittore.direttiva("#FOOTER", documento.piede);
    scrittore.direttiva("#FONT", "Arial");
    scrittore.direttiva("#FONTSIZE", Scrittore::corpo);
    scrittore.direttiva("#LEFT");
    for (std::size_t i = 0; i < documento.blocchi.size(); ++i)
        if (const auto* indice = std::get_if<Indice>(&documento.blocchi[i]))
            scrittore.scrivi(*indice, documento.blocchi, i);
        else
            std::visit([&](const auto& b) { scrittore.scrivi(b); }, documento.blocchi[i]);
    scrittore.direttiva("#ENDDOCUMENT");
    return scrittore.testo();
}

std::string testoSemplice(const Documento& documento) {
    base::LettoreRighe righe(documento.titolo, base::inCp1252(inMarkup(documento, Uso::testo)));
    return markup::renderText(righe).value_or(std::string());
}

}  // namespace korven::document
