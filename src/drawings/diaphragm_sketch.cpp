#include <algorithm>
#include <cmath>

#include "drawings/sketch_views.hpp"
#include "structure/section_millimetres.hpp"

namespace korven::drawings {

namespace {

using project::Sezione;

constexpr EsempioCampo esempi[] = {
    {&Sezione::spessoreDiaframma, 60}, {&Sezione::copriferroMonte, 7},
    {&Sezione::copriferroValle, 7},    {&Sezione::interasseMonte, 25},
    {&Sezione::interasseValle, 25},    {&Sezione::diametroMonte, 4},
    {&Sezione::diametroValle, 4},
};

bool siDisegna(double H, double c, double i, double d) {
    return c + d < H / 2 && d < i && d >= H / 100 && i <= 2.5 * H && i >= H / 15;
}

bool siDisegna(const Sezione& s) {
    return siDisegna(s.spessoreDiaframma, s.copriferroMonte, s.interasseMonte, s.diametroMonte) &&
           siDisegna(s.spessoreDiaframma, s.copriferroValle, s.interasseValle, s.diametroValle);
}

struct Faccia {
    double Sezione::*copriferro;
    double Sezione::*interasse;
    double Sezione::*diametro;
    bool monte;
};

constexpr Faccia monte{&Sezione::copriferroMonte, &Sezione::interasseMonte, &Sezione::diametroMonte,
                       true};
constexpr Faccia valle{&Sezione::copriferroValle, &Sezione::interasseValle, &Sezione::diametroValle,
                       false};

void disegnaFaccia(Schizzo& schizzo, const Faccia& f, const Sezione& s, double k, Segno segno) {
    const double verso = f.monte ? 1 : -1;  // from the face into the wall
    const double x = xSchizzo - verso * s.spessoreDiaframma / 2 * k;
    const double raggio = s.*f.diametro / 2 * k, passo = s.*f.interasse * k;
    const double bordo = x + verso * s.*f.copriferro * k;
    const double xFerri = bordo + verso * raggio;
    const int n = std::max(2, static_cast<int>(altezzaCorpo / passo));
    const auto y = [&](int i) { return ySchizzo + (i - (n - 1) / 2.0) * passo; };
    for (int i = 0; i < n; ++i) schizzo.cerchi.push_back({{xFerri, y(i)}, raggio, segno});

    // Below the lowest bar, where the strokes are clear of the others.
    const double yCopriferro = std::max((sottoSchizzo + y(0)) / 2, sottoSchizzo + 2);
    schizzo.quote.push_back(quotaRichiamo(f.copriferro, f.monte, yCopriferro, {x, bordo}));
    schizzo.quote.back().linee.push_back({{bordo, y(0)}, {bordo, yCopriferro}});
    constexpr double distanza = 7;
    const int mezzo = n / 2 - 1;
    schizzo.quote.push_back(
        quotaLungo(f.interasse, y(mezzo), y(mezzo + 1), x - verso * distanza, xFerri));
    schizzo.quote.push_back(quotaRichiamo(f.diametro, f.monte, y(n - 1), {xFerri}));
}

// The wall goes on beyond the sketch: its ends are broken.
LineaSchizzo striscia(double mezzoSpessore) {
    LineaSchizzo contorno{{}, true, Segno::calcestruzzo};
    const double dente = std::min(2.0, mezzoSpessore / 3);
    const auto rottura = [&](double y, double verso) {
        const double x = xSchizzo;
        for (const plot::Punto p : {plot::Punto{x - verso * mezzoSpessore, y},
                                    {x - verso * dente, y},
                                    {x - verso * dente / 2, y + verso * dente},
                                    {x + verso * dente / 2, y - verso * dente},
                                    {x + verso * dente, y},
                                    {x + verso * mezzoSpessore, y}})
            contorno.punti.push_back(p);
    };
    rottura(sopraSchizzo, 1);
    rottura(sottoSchizzo - 2, -1);
    return contorno;
}

}  // namespace

Schizzo schizzoDiaframma(const Sezione& sezione) {
    const auto [s, inScala] = valoriSchizzo(sezione, esempi, siDisegna);
    // Two bars of each face are always there, to hold their spacing between them.
    const double k = std::min(larghezzaCorpo / s.spessoreDiaframma,
                              altezzaCorpo / 2.2 / std::max(s.interasseMonte, s.interasseValle));
    const double mezzo = s.spessoreDiaframma / 2 * k;
    Schizzo schizzo;
    schizzo.inScala = inScala;
    schizzo.linee.push_back(striscia(mezzo));
    schizzo.quote.push_back(quotaTraverso(&Sezione::spessoreDiaframma, xSchizzo - mezzo,
                                          xSchizzo + mezzo, sopraSchizzo + 5, sopraSchizzo + 0.5));
    // A face without bars is drawn as unreinforced only where there are bars on the other.
    const structure::DiaframmaMm mm = structure::diaframmaMm(sezione);
    const bool nessuna = !structure::armata(mm.monte) && !structure::armata(mm.valle);
    const auto segno = [&](const structure::FacciaMm& faccia) {
        return nessuna || structure::armata(faccia) ? Segno::acciaio : Segno::assente;
    };
    disegnaFaccia(schizzo, monte, s, k, segno(mm.monte));
    disegnaFaccia(schizzo, valle, s, k, segno(mm.valle));
    return schizzo;
}

}  // namespace korven::drawings
