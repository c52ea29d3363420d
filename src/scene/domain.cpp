#include "scene/domain.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/axis_steps.hpp"
#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "project/units.hpp"
#include "scene/canvas.hpp"
#include "scene/frame.hpp"
#include "scene/polygon.hpp"
#include "scene/stage_groups.hpp"

namespace korven::scene {

namespace {

using base::traduttore;
using live::FaseNelDominio;
using structure::PuntoDominio;
namespace unita = project::unita;

constexpr double vicini = 0.9;  // marks that one number serves, in sizes of the font

double kN(double newton) { return newton / project::newtonKilonewton; }
double kNm(double newtonMm) {
    return mostrato(unita::momentoAlMetro, newtonMm / project::newtonMillimetri);
}

// Numbers of an axis: what it spans, and where that lies in the picture.
struct Asse {
    double minimo = 0, massimo = 0;
    double da = 0, a = 0;

    void comprendi(double v) {
        minimo = std::min(minimo, v);
        massimo = std::max(massimo, v);
    }
    void respira() {
        const double aria = 0.05 * (massimo - minimo);
        minimo -= aria;
        massimo += aria;
        if (!(massimo > minimo)) massimo = minimo + 1;
    }
    [[nodiscard]] double su(double v) const {
        return da + (a - da) * (v - minimo) / (massimo - minimo);
    }
};

class Quadro {
 public:
    Quadro(const std::vector<PuntoDominio>& dominio, const std::vector<FaseNelDominio>& fasi,
           const Misura& misura, const MisuraTesti& testi)
        : dominio_(dominio),
          fasi_(fasi),
          em_(corpo(misura)),
          tela_(misura.larghezza, misura.altezza, testi) {
        for (const auto& p : dominio_) {
            N_.comprendi(kN(p.Nd));
            M_.comprendi(-kNm(p.MRd1));
            M_.comprendi(-kNm(p.MRd2));
        }
        for (const auto& fase : fasi_) {
            N_.comprendi(kN(fase.Nd));
            M_.comprendi(mostrato(unita::momentoAlMetro, fase.momenti.mdMax));
            M_.comprendi(mostrato(unita::momentoAlMetro, fase.momenti.mdMin));
        }
        N_.respira();
        M_.respira();
        const double largo = tela_.larghezza("-00000", 0.85 * em_) + em_;
        N_.da = largo;
        N_.a = misura.larghezza - em_;
        M_.da = misura.altezza - 2.6 * em_;
        M_.a = 1.8 * em_;
    }

    [[nodiscard]] std::vector<Primitiva> disegna() {
        campo();
        assi();
        contorno();
        std::vector<SegniFase> segni;
        for (const auto& fase : fasi_) segni.push_back(segna(fase));
        for (const GruppoFasi& gruppo : gruppiFasi(std::move(segni), vicini * em_)) nome(gruppo);
        return tela_.concludi();
    }

 private:
    [[nodiscard]] Punto punto(double N, double M) const { return {N_.su(N), M_.su(M)}; }

    // Around: the resistance to positive moments, and back along that to negative ones.
    [[nodiscard]] std::vector<Punto> bordo() const {
        std::vector<Punto> punti;
        for (const auto& p : dominio_) punti.push_back(punto(kN(p.Nd), -kNm(p.MRd1)));
        for (auto p = dominio_.rbegin(); p != dominio_.rend(); ++p)
            punti.push_back(punto(kN(p->Nd), -kNm(p->MRd2)));
        return punti;
    }

    void linea(std::vector<Punto> punti, Ruolo ruolo, double spessore) {
        tela_.disegna(Elemento::asse, 0, Linea{std::move(punti), {ruolo}, spessore});
    }
    void campo() {
        if (!dominio_.empty())
            tela_.disegna(Elemento::curva, 0, Area{bordo(), {Ruolo::fondoCurva}});
    }
    void contorno() {
        auto punti = bordo();
        if (punti.empty()) return;
        punti.push_back(punti.front());
        tela_.disegna(Elemento::curva, 0, Linea{std::move(punti), {Ruolo::curva}, 1.8});
    }

    void numero(double v, double passo, Posto posto) {
        scrivi(base::numeroAsse(v, passo), std::move(posto), Ruolo::testoTenue);
    }
    void scrivi(std::string testo, Posto posto, Ruolo ruolo, Grado grado = Grado::asse,
                int di = 0) {
        tela_.scrivi({.grado = grado,
                      .elemento = Elemento::asse,
                      .numero = di,
                      .testo = std::move(testo),
                      .tinta = {ruolo},
                      .corpo = 0.85 * em_,
                      .posti = {std::move(posto)}});
    }

    void assi() {
        const double passoN = base::passoAsse(
            N_.massimo - N_.minimo, std::max(2, static_cast<int>((N_.a - N_.da) / (N_.da + em_))));
        for (double i = std::ceil(N_.minimo / passoN); i * passoN <= N_.massimo; ++i) {
            const double x = N_.su(i * passoN);
            linea({{x, M_.a}, {x, M_.da}}, Ruolo::griglia, 1);
            numero(i * passoN, passoN, {{x, M_.da + 0.8 * em_}, Ancora::centro});
        }
        const double passoM = base::passoAsse(
            M_.massimo - M_.minimo, std::max(2, static_cast<int>((M_.da - M_.a) / (2.2 * em_))));
        for (double i = std::ceil(M_.minimo / passoM); i * passoM <= M_.massimo; ++i) {
            const double y = M_.su(i * passoM);
            linea({{N_.da, y}, {N_.a, y}}, Ruolo::griglia, 1);
            numero(i * passoM, passoM, {{N_.da - 0.4 * em_, y}, Ancora::destra});
        }
        linea({punto(N_.minimo, 0), punto(N_.massimo, 0)}, Ruolo::asse, 1.2);
        linea({punto(0, M_.minimo), punto(0, M_.massimo)}, Ruolo::asse, 1.2);
        scrivi("M " + traParentesi(unita::momentoAlMetro), {{0.3 * em_, 0.9 * em_}}, Ruolo::testo,
               Grado::nota);
        scrivi("N " + traParentesi(unita::forzaAlMetro), {{N_.a, M_.da + 2 * em_}, Ancora::destra},
               Ruolo::testo, Grado::nota);
    }

    // Its stroke and the marks at both ends.
    SegniFase segna(const FaseNelDominio& fase) {
        const Ruolo ruolo = fase.dentro() ? Ruolo::testo : Ruolo::meccanismo;
        const double N = kN(fase.Nd);
        const Punto su = punto(N, mostrato(unita::momentoAlMetro, fase.momenti.mdMax));
        const Punto giu = punto(N, mostrato(unita::momentoAlMetro, fase.momenti.mdMin));
        const double r = 0.28 * em_;
        tela_.disegna(Elemento::fase, fase.fase, Linea{{su, giu}, {ruolo}, 1.4});
        for (const Punto& p : {su, giu})
            tela_.disegna(Elemento::fase, fase.fase,
                          Area{rettangolo(p.x - r, p.y - r, p.x + r, p.y + r), {ruolo}});
        return {fase.fase, {su, giu}, {ruolo}};
    }

    void nome(const GruppoFasi& gruppo) {
        std::vector<Posto> posti;
        for (const double dx : {0.6, 1.6, 2.6, 3.6})
            for (const Punto& p : gruppo.punti) {
                posti.push_back({{p.x + dx * em_, p.y}, Ancora::sinistra, {Ruolo::fondoCurva}});
                posti.push_back({{p.x - dx * em_, p.y}, Ancora::destra, {Ruolo::fondoCurva}});
            }
        tela_.scrivi({.grado = Grado::fase,
                      .elemento = Elemento::fase,
                      .numero = gruppo.fasi.front(),
                      .testo = nomeFasi(gruppo.fasi),
                      .tinta = gruppo.tinta,
                      .corpo = 0.9 * em_,
                      .grassetto = true,
                      .posti = std::move(posti)});
    }

    const std::vector<PuntoDominio>& dominio_;
    const std::vector<FaseNelDominio>& fasi_;
    double em_;
    Tela tela_;
    Asse N_, M_;
};

}  // namespace

Scena scenaDominio(const std::vector<PuntoDominio>& dominio,
                   const std::vector<FaseNelDominio>& fasi, const Misura& chiesta,
                   const MisuraTesti& testi, const std::string& senza) {
    const Misura misura{std::max(chiesta.larghezza, Misura::minima),
                        std::max(chiesta.altezza, Misura::minima)};
    Scena s;
    s.larghezza = misura.larghezza;
    s.altezza = misura.altezza;
    s.corpo = corpo(misura);
    Primitiva fondo;
    fondo.figura = Area{rettangolo(0, 0, s.larghezza, s.altezza), {Ruolo::sfondo}};
    s.primitive.push_back(std::move(fondo));
    std::vector<Primitiva> resto;
    if (dominio.empty()) {
        Tela tela(s.larghezza, s.altezza, testi);
        tela.scrivi({.testo = senza,
                     .tinta = {Ruolo::testoTenue},
                     .corpo = s.corpo,
                     .posti = {{{s.larghezza / 2, s.altezza / 2}, Ancora::centro}}});
        resto = tela.concludi();
    } else {
        resto = Quadro(dominio, fasi, misura, testi).disegna();
    }
    std::move(resto.begin(), resto.end(), std::back_inserter(s.primitive));
    return s;
}

std::string descrizioneDominio(const std::vector<PuntoDominio>& dominio,
                               const std::vector<FaseNelDominio>& fasi) {
    if (dominio.empty()) return {};
    std::string testo =
        base::riempito(traduttore("Nd va da %1 kN/m (trazione) a %2 kN/m (compressione)."),
                       {base::testoDecimali(kN(dominio.front().Nd), 0),
                        base::testoDecimali(kN(dominio.back().Nd), 0)});
    std::string fuori;
    for (const auto& fase : fasi)
        if (!fase.dentro()) fuori += (fuori.empty() ? "" : ", ") + std::to_string(fase.fase);
    if (!fasi.empty())
        testo += ' ' + (fuori.empty()
                            ? traduttore("Tutte le fasi note sono interne al dominio.")
                            : base::riempito(traduttore("Fuori del dominio: fase %1."), {fuori}));
    return testo;
}

}  // namespace korven::scene
