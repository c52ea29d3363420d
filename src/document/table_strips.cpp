#include "document/table_strips.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/translated_texts.hpp"
#include "document/kept_together.hpp"
#include "document/line_breaking.hpp"
#include "document/table_columns.hpp"
#include "document/text_strips.hpp"

namespace korven::document {

namespace {

using tables::Cella;
using tables::Prospetto;
using Colonne = std::vector<ColonnaDisposta>;

constexpr double passoRiga = 1.18;   // of a row's line, in sizes of the font
constexpr double margineRiga = 1.1;  // above and below the lines of a row [pt]
constexpr double filettoForte = 0.8, filettoFine = 0.4;
constexpr Carattere carattereTitolo{9, true};
constexpr std::size_t righeInsieme = 3;  // no fewer stand on a page of a table
// Of a page that begins with a table, with a row of it, or within a row.
constexpr double costoTavola = 8, costoRiga = 20, costoInRiga = 60;

class PartiTavola {
 public:
    PartiTavola(const Prospetto& prospetto, const Colonne& colonne, double corpo,
                const Formato& formato, const MisuraCaratteri& misura)
        : prospetto_(prospetto),
          colonne_(colonne),
          corpo_(corpo),
          formato_(formato),
          misura_(misura),
          larga_(colonne.back().x + colonne.back().larghezza) {}

    /// Title, if there is one, and head as one strip.
    [[nodiscard]] Striscia testa(const std::string& titolo) const {
        Striscia striscia{.prima = 9, .legata = true, .costo = costoTavola};
        double y = 0;
        for (const auto& riga : titolo.empty() ? std::vector<std::string>()
                                               : inRighe(titolo, formato_.larghezzaTesto(),
                                                         carattereTitolo, misura_)) {
            striscia.contenuto.scritte.push_back(
                scritta(riga, 0, y, carattereTitolo, misura_, Tinta::titolo));
            y += interlinea(carattereTitolo);
        }
        if (y > 0) y += 2;
        const double alta = teste(y, striscia.contenuto);
        striscia.contenuto.fondi.push_back({0, y, larga_, alta, Tinta::fondoTesta});
        striscia.contenuto.filetti.push_back({0, y, larga_, y, filettoForte, Tinta::filetto});
        striscia.contenuto.filetti.push_back(
            {0, y + alta, larga_, y + alta, filettoFine, Tinta::filetto});
        striscia.altezza = y + alta;
        return striscia;
    }

    /// The strips of a row: one, but for a row higher than `massima`.
    [[nodiscard]] Strisce riga(std::size_t i, double massima) const {
        std::vector<std::vector<std::string>> testi;
        std::size_t righe = 1;
        for (const auto& colonna : colonne_) {
            testi.push_back(righeCella(i, colonna));
            righe = std::max(righe, testi.back().size());
        }
        const auto insieme = static_cast<std::size_t>(
            std::max(1.0, std::floor((massima - 2 * margineRiga) / passo())));
        Strisce strisce;
        for (std::size_t prima = 0; prima < righe; prima += insieme)
            strisce.push_back(pezzo(i, testi, prima, std::min(righe, prima + insieme)));
        return strisce;
    }

 private:
    [[nodiscard]] double passo() const { return passoRiga * corpo_; }
    [[nodiscard]] const tables::Colonna& colonna(const ColonnaDisposta& c) const {
        return prospetto_.colonne[c.indice];
    }
    [[nodiscard]] static double utile(const ColonnaDisposta& c) {
        return c.larghezza - 2 * margineCella;
    }

    [[nodiscard]] std::vector<std::string> righeCella(std::size_t i,
                                                      const ColonnaDisposta& c) const {
        const Cella& cella = prospetto_.righe[i][c.indice];
        if (colonna(c).numerica && eNumero(cella)) return {cella.testo};
        return inRighe(cella.testo, utile(c), carattere(cella, corpo_), misura_);
    }

    [[nodiscard]] Striscia pezzo(std::size_t i, const std::vector<std::vector<std::string>>& testi,
                                 std::size_t da, std::size_t a) const {
        Striscia striscia{.altezza = static_cast<double>(a - da) * passo() + 2 * margineRiga};
        for (std::size_t k = 0; k < colonne_.size(); ++k) {
            const Cella& cella = prospetto_.righe[i][colonne_[k].indice];
            if (cella.barra && da == 0) barra(*cella.barra, colonne_[k], striscia);
            for (std::size_t r = da; r < std::min(a, testi[k].size()); ++r)
                scrivi(testi[k][r], cella, colonne_[k],
                       margineRiga + static_cast<double>(r - da) * passo(), striscia.contenuto);
        }
        const bool ultima = i + 1 == prospetto_.righe.size();
        striscia.contenuto.filetti.push_back({0, striscia.altezza, larga_, striscia.altezza,
                                              ultima ? filettoForte : filettoFine,
                                              ultima ? Tinta::filetto : Tinta::riga});
        return striscia;
    }

    static void barra(double quota, const ColonnaDisposta& c, Striscia& striscia) {
        const double larga = std::clamp(quota, 0.0, 1.0) * (c.larghezza - 2);
        striscia.contenuto.fondi.push_back({c.x + 1, 1, larga, striscia.altezza - 2, Tinta::barra});
    }

    void scrivi(const std::string& testo, const Cella& cella, const ColonnaDisposta& c, double y,
                Pagina& contenuto) const {
        const Carattere scelto = carattere(cella, corpo_);
        const double larga = misura_.larghezza(testo, scelto);
        double x = c.x + margineCella;
        if (colonna(c).numerica) x = c.x + c.larghezza - margineCella - larga;
        if (colonna(c).numerica && eNumero(cella)) {
            const double dopo = misura_.larghezza(partito(testo).decimali, scelto);
            // A bold number may be wider than the plain ones that the room was kept for.
            x = std::max(c.x + 1, x - std::max(0.0, c.decimali - dopo));
        }
        contenuto.scritte.push_back(
            scritta(testo, x, y, scelto, misura_, grave(cella) ? Tinta::pericolo : Tinta::testo));
    }

    // Heads end at one line, the unit last.
    double teste(double y, Pagina& contenuto) const {
        const Carattere scelto{corpo_, true};
        std::vector<std::vector<std::string>> testi;
        std::size_t righe = 1;
        for (const auto& c : colonne_) {
            auto testo = inRighe(colonna(c).titolo, utile(c), scelto, misura_);
            if (!colonna(c).unita.empty()) testo.push_back("[" + colonna(c).unita + "]");
            righe = std::max(righe, testo.size());
            testi.push_back(std::move(testo));
        }
        const double margine = 2 * margineRiga;
        for (std::size_t k = 0; k < colonne_.size(); ++k)
            for (std::size_t r = 0; r < testi[k].size(); ++r) {
                const ColonnaDisposta& c = colonne_[k];
                const double larga = misura_.larghezza(testi[k][r], scelto);
                const double x = colonna(c).numerica ? c.x + c.larghezza - margineCella - larga
                                                     : c.x + margineCella;
                const auto sopra = static_cast<double>(righe - testi[k].size() + r);
                contenuto.scritte.push_back(
                    scritta(testi[k][r], x, y + margine + sopra * passo(), scelto, misura_));
            }
        return static_cast<double>(righe) * passo() + 2 * margine;
    }

    const Prospetto& prospetto_;
    const Colonne& colonne_;
    const double corpo_;
    const Formato& formato_;
    const MisuraCaratteri& misura_;
    const double larga_;
};

// A table that a glance takes in is not parted.
bool corta(const Striscia* da, const Striscia* a, std::size_t righe, const Formato& formato) {
    constexpr std::size_t poche = 8;
    constexpr double quota = 0.27, quotaPoche = 0.4;  // of the text of a page
    double alta = 0;
    for (; da != a; ++da) alta += da->altezza;
    return alta <= (righe <= poche ? quotaPoche : quota) * formato.altezzaTesto();
}

// @param primo  whether the columns are the first of the table; all else goes on with it
void accodaParte(const PartiTavola& parte, const Prospetto& prospetto, bool primo,
                 const Formato& formato, Strisce& strisce) {
    const std::size_t righe = prospetto.righe.size();
    const std::string& titolo = prospetto.titolo;
    const std::string segue =
        titolo.empty() ? titolo : titolo + " (" + base::traduttore("segue") + ")";
    const std::size_t prima = strisce.size();
    strisce.push_back(parte.testa(primo ? titolo : segue));
    const auto seguito = std::make_shared<const Striscia>(parte.testa(segue));
    const double massima =
        formato.altezzaTesto() - std::max(seguito->altezza, strisce.back().altezza) - 1;
    for (std::size_t i = 0; i < righe; ++i)
        for (double costo = costoRiga; auto& striscia : parte.riga(i, massima)) {
            striscia.testa = seguito;
            striscia.legata = i + 1 < righe && (i + 1 < righeInsieme || i + righeInsieme >= righe);
            striscia.costo = std::exchange(costo, costoInRiga);
            strisce.push_back(std::move(striscia));
        }
    if (corta(strisce.data() + prima, strisce.data() + strisce.size(), righe, formato))
        for (std::size_t i = prima; i + 1 < strisce.size(); ++i) strisce[i].legata = true;
    strisce.back().dopo = 8;
}

}  // namespace

std::vector<std::string> note(const Prospetto& prospetto) {
    constexpr std::size_t massimo = 4;
    std::vector<std::string> perche;
    for (const auto& riga : prospetto.righe)
        for (const Cella& cella : riga)
            if (!cella.perche.empty() && perche.size() <= massimo &&
                std::find(perche.begin(), perche.end(), cella.perche) == perche.end())
                perche.push_back(cella.perche);
    std::vector<std::string> tutte = prospetto.note;
    if (perche.size() <= massimo)
        for (const auto& motivo : perche)
            if (std::find(tutte.begin(), tutte.end(), motivo) == tutte.end())
                tutte.push_back(std::string(tables::nessuno) + " " + motivo);
    return tutte;
}

void aggiungi(const Tavola& tavola, const Formato& formato, const MisuraCaratteri& misura,
              Strisce& strisce) {
    const Prospetto& prospetto = tavola.prospetto;
    if (prospetto.righe.empty() || prospetto.colonne.empty()) {
        if (!prospetto.titolo.empty()) {
            Striscia titolo{.altezza = interlinea(carattereTitolo), .prima = 9, .dopo = 2};
            titolo.contenuto.scritte.push_back(
                scritta(prospetto.titolo, 0, 0, carattereTitolo, misura, Tinta::titolo));
            titolo.legata = !prospetto.note.empty();
            titolo.costo = costoTavola;
            strisce.push_back(std::move(titolo));
        }
    } else {
        const TavolaDisposta disposta = disponi(prospetto, formato.larghezzaTesto(), misura);
        bool primo = true;
        for (const Colonne& colonne : disposta.parti)
            accodaParte({prospetto, colonne, disposta.corpo, formato, misura}, prospetto,
                        std::exchange(primo, false), formato, strisce);
    }
    const auto sotto = note(prospetto);
    // They tell of the rows above them: alone they head no page, unless they are long.
    const std::size_t prima = strisce.size();
    for (const auto& nota : sotto) aggiungi(Paragrafo{nota, Stile::nota}, formato, misura, strisce);
    if (prima == 0) return;
    for (std::size_t i = prima; i < std::min(strisce.size(), prima + righeNota); ++i)
        strisce[i - 1].legata = true;
}

}  // namespace korven::document
