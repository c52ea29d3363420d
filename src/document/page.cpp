#include "document/page.hpp"

#include "plot/text_width.hpp"

namespace korven::document {

plot::Colore colore(Tinta tinta) {
    switch (tinta) {
        case Tinta::testo:
            break;
        case Tinta::tenue:
            return plot::daRgb(80, 84, 92);
        case Tinta::titolo:
            return plot::daRgb(24, 52, 92);
        case Tinta::pericolo:
            return plot::daRgb(176, 0, 32);
        case Tinta::filetto:
            return plot::daRgb(70, 80, 96);
        case Tinta::riga:
            return plot::daRgb(206, 211, 218);
        case Tinta::fondoTesta:
            return plot::daRgb(232, 236, 242);
        case Tinta::barra:
            return plot::daRgb(214, 224, 236);
    }
    return plot::nero;
}

void Pagina::aggiungi(const Pagina& altra, double dx, double dy) {
    for (Fondo f : altra.fondi) {
        f.x += dx;
        f.y += dy;
        fondi.push_back(f);
    }
    for (Filetto f : altra.filetti) {
        f.x1 += dx;
        f.x2 += dx;
        f.y1 += dy;
        f.y2 += dy;
        filetti.push_back(f);
    }
    for (Disegno d : altra.disegni) {
        d.x += dx;
        d.y += dy;
        disegni.push_back(d);
    }
    for (Scritta s : altra.scritte) {
        s.x += dx;
        s.y += dy;
        scritte.push_back(std::move(s));
    }
    for (Rimando r : altra.rimandi) {
        r.x += dx;
        r.y += dy;
        rimandi.push_back(r);
    }
}

double CaratteriStimati::larghezza(std::string_view testo, const Carattere& carattere) const {
    constexpr double piuLargo = 1.08;
    constexpr std::string_view macchina = "Courier New";
    return plot::larghezzaStimata(carattere.fisso ? macchina : plot::carattereConsegnato, testo) *
           carattere.corpo * (carattere.grassetto && !carattere.fisso ? piuLargo : 1);
}

}  // namespace korven::document
