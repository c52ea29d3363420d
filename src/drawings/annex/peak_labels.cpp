#include "drawings/annex/peak_labels.hpp"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "drawings/annex/paper.hpp"
#include "scene/polygon.hpp"

namespace korven::drawings {

namespace {

using scene::Ancora;
using scene::Area;
using scene::Elemento;
using scene::Figura;
using scene::Linea;
using scene::MisuraTesti;
using scene::Primitiva;
using scene::Punto;
using scene::rettangolo;
using scene::Riquadro;
using scene::Ruolo;
using scene::Testo;

constexpr double em = corpoCarta, corpo = corpoPiccolo;
constexpr double mezzoSegno = 0.2 * em;
constexpr double passoRighe = 1.26 * corpo;
constexpr double vicino = 0.75 * em;  // a text needs no stroke to its peak
constexpr double passoX = 0.35 * em, passoY = 0.3 * em;

// What makes a place worse, in pixels of distance.
constexpr double peggioForma = 0.7 * em, peggioRetta = 0.8 * em, peggioRichiamo = 3 * em;
constexpr double peggioCurva = 60 * em, peggioSottile = 1.2 * em;
constexpr double arrotondamento = 1e-6;  // sums of these in another order differ by less

double distanza(const Punto& p, const Riquadro& r) {
    return std::hypot(p.x - std::clamp(p.x, r.sinistra, r.destra),
                      p.y - std::clamp(p.y, r.alto, r.basso));
}

bool attraversa(const Punto& da, const Punto& a, const Riquadro& r) {
    if (std::max(da.x, a.x) < r.sinistra || std::min(da.x, a.x) > r.destra) return false;
    if (std::max(da.y, a.y) < r.alto || std::min(da.y, a.y) > r.basso) return false;
    return dentro(da, a, r).has_value();
}

// How many of the lines of a curve, from the top down, meet a rectangle.
bool tocca(const std::vector<Punto>& curva, const Riquadro& r) {
    if (curva.empty() || curva.front().y > r.basso || curva.back().y < r.alto) return false;
    auto p = std::lower_bound(curva.begin(), curva.end(), r.alto,
                              [](const Punto& uno, double y) { return uno.y < y; });
    if (p != curva.begin()) --p;
    for (; p != curva.end() && p + 1 != curva.end() && p->y <= r.basso; ++p)
        if (attraversa(*p, *(p + 1), r)) return true;
    return false;
}

class Etichetta {
 public:
    Etichetta(const CampoPicchi& campo, const Picco& picco, const std::vector<Riquadro>& occupati,
              const MisuraTesti& misura)
        : campo_(campo), picco_(picco), occupati_(occupati), misura_(misura) {}

    // Its texts, at the best of all places; empty where there is none.
    [[nodiscard]] std::vector<Testo> testi() {
        for (std::size_t forma = 0; forma < picco_.forme.size(); ++forma) prova(forma);
        return std::move(migliori_);
    }
    // The rectangle of the texts.
    [[nodiscard]] const Riquadro& posto() const { return migliore_; }

 private:
    void prova(std::size_t forma) {
        const auto& righe = picco_.forme[forma];
        double testo = 0;
        for (const auto& riga : righe)
            testo = std::max(testo, misura_.larghezza(riga, corpo, false));
        Testo uno;
        uno.corpo = corpo;
        uno.larghezza = testo;
        const Riquadro cornice = uno.riquadro();
        const double largo = cornice.larghezza();
        const double alto = cornice.altezza() + passoRighe * static_cast<double>(righe.size() - 1);
        const Punto& p = picco_.punto;
        std::vector<double> ascisse{p.x + mezzoSegno + 1, p.x - mezzoSegno - 1 - largo};
        for (double x = campo_.posto.sinistra; x + largo <= campo_.posto.destra; x += passoX)
            ascisse.push_back(x);
        const double fondo = campo_.posto.basso - alto;
        const auto quota = [&](double y) {
            if (y < campo_.posto.alto || y > fondo) return;
            if (std::max(y - p.y, p.y - (y + alto)) >= minimo_) return;  // the whole row is too far
            for (const double x : ascisse)
                if (x >= campo_.posto.sinistra && x + largo <= campo_.posto.destra)
                    prova(forma, {x, y, x + largo, y + alto});
        };
        const double meta = std::clamp(p.y - alto / 2, campo_.posto.alto, fondo);
        quota(meta);
        quota(campo_.posto.alto);
        quota(fondo);
        for (double dy = passoY; dy < campo_.posto.altezza(); dy += passoY) {
            quota(meta - dy);
            quota(meta + dy);
        }
    }

    void prova(std::size_t forma, const Riquadro& r) {
        const double lontananza = distanza(picco_.punto, r);
        const bool richiamo = lontananza > vicino;
        double peggio = lontananza + peggioForma * static_cast<double>(forma);
        // Most places are given up here: what the lines add only makes them worse.
        if (peggio + (richiamo ? peggioRichiamo : 0) >= minimo_ + arrotondamento || !libero(r))
            return;
        for (const auto& retta : campo_.rette)
            if (attraversa(retta.first, retta.second, r)) peggio += peggioRetta;
        for (const auto& sottile : campo_.sottili) {
            if (peggio >= minimo_) return;
            if (tocca(sottile, r)) peggio += peggioSottile;
        }
        for (const auto& curva : campo_.curve) {
            if (peggio >= minimo_) return;
            if (tocca(curva, r)) peggio += peggioCurva;
        }
        if (peggio < minimo_ && richiamo) peggio += peggioDelRichiamo(r);
        if (peggio >= minimo_) return;
        minimo_ = peggio;
        scegli(forma, r);
    }

    [[nodiscard]] bool libero(const Riquadro& r) const {
        return std::none_of(occupati_.begin(), occupati_.end(),
                            [&](const Riquadro& uno) { return uno.tocca(r); });
    }
    // A stroke to its peak leaves other texts alone, and curves if it can.
    [[nodiscard]] double peggioDelRichiamo(const Riquadro& r) const {
        const Punto &p = picco_.punto,
                    q{std::clamp(p.x, r.sinistra, r.destra), std::clamp(p.y, r.alto, r.basso)};
        double peggio = peggioRichiamo;
        const Riquadro proprio{p.x - mezzoSegno, p.y - mezzoSegno, p.x + mezzoSegno,
                               p.y + mezzoSegno};
        for (const Riquadro& uno : occupati_)
            if (attraversa(p, q, uno) && !uno.tocca(proprio)) peggio += peggioCurva;
        return peggio;
    }

    void scegli(std::size_t forma, const Riquadro& r) {
        migliore_ = r;
        migliori_.clear();
        const bool destra = (r.sinistra + r.destra) / 2 >= picco_.punto.x;
        Testo uno;
        uno.corpo = corpo;
        const Riquadro cornice = uno.riquadro();  // of a text without width
        double y = r.alto - cornice.alto;
        for (const std::string& riga : picco_.forme[forma]) {
            Testo& t = migliori_.emplace_back(uno);
            t.punto = {destra ? r.sinistra - cornice.sinistra : r.destra - cornice.destra, y};
            t.ancora = destra ? Ancora::sinistra : Ancora::destra;
            t.testo = riga;
            t.tinta = {picco_.ruolo};
            t.piastra = true;
            t.larghezza = misura_.larghezza(riga, corpo, false);
            y += passoRighe;
        }
    }

    const CampoPicchi& campo_;
    const Picco& picco_;
    const std::vector<Riquadro>& occupati_;
    const MisuraTesti& misura_;
    double minimo_ = 1e9;
    Riquadro migliore_;
    std::vector<Testo> migliori_;
};

Riquadro segno(const Picco& picco) {
    const Punto& p = picco.punto;
    return {p.x - mezzoSegno, p.y - mezzoSegno, p.x + mezzoSegno, p.y + mezzoSegno};
}

}  // namespace

std::vector<Primitiva> etichettePicchi(const std::vector<CampoPicchi>& campi,
                                       std::vector<Riquadro> occupati, const MisuraTesti& misura) {
    std::vector<Primitiva> tutte;
    const auto aggiungi = [&](int numero, Figura figura) {
        Primitiva& una = tutte.emplace_back();
        una.elemento = Elemento::estremo;
        una.numero = numero;
        una.figura = std::move(figura);
    };
    for (const CampoPicchi& campo : campi)
        for (const Picco& picco : campo.picchi) occupati.push_back(segno(picco));
    int numero = 0;
    for (const CampoPicchi& campo : campi)
        for (const Picco& picco : campo.picchi) {
            ++numero;
            const Riquadro s = segno(picco);
            aggiungi(numero,
                     Area{rettangolo(s.sinistra, s.alto, s.destra, s.basso), {picco.ruolo}});
            Etichetta etichetta(campo, picco, occupati, misura);
            auto testi = etichetta.testi();
            if (testi.empty()) continue;
            const Riquadro& r = etichetta.posto();
            occupati.push_back(r);
            const Punto& p = picco.punto;
            if (distanza(p, r) > vicino)
                aggiungi(numero, Linea{{p,
                                        {std::clamp(p.x, r.sinistra, r.destra),
                                         std::clamp(p.y, r.alto, r.basso)}},
                                       {picco.ruolo},
                                       1});
            for (Testo& testo : testi) aggiungi(numero, std::move(testo));
        }
    return tutte;
}

}  // namespace korven::drawings
