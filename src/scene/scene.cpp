#include "scene/scene.hpp"

#include <algorithm>

#include "base/code_page.hpp"
#include "scene/parts.hpp"
#include "scene/polygon.hpp"
#include "scene/verdict.hpp"

namespace korven::scene {

namespace {

using Parte = void (*)(const Mostrata&, const Inquadratura&, Tela&);
constexpr Parte parti[] = {disegnaTerreno,       disegnaAcque,       disegnaProfili, disegnaFasi,
                           disegnaSovraccarichi, disegnaTiranti,     segnaAcque,     disegnaQuote,
                           disegnaMuro,          disegnaCarichiTesta};

}  // namespace

Scena scena(const live::PareteViva& parete, const live::Vista& vista, const Misura& voluta,
            const MisuraTesti& testi, const Opzioni& opzioni) {
    const Misura misura{std::max(voluta.larghezza, Misura::minima),
                        std::max(voluta.altezza, Misura::minima)};
    const Mostrata m = mostrata(parete, vista);
    Tela tela(misura.larghezza, misura.altezza, testi);
    tela.disegna(Elemento::sfondo, 0,
                 Area{rettangolo(0, 0, misura.larghezza, misura.altezza), {Ruolo::sfondo}});
    const double cima = scriviNote(m, misura, opzioni, tela);
    Inquadratura q = inquadratura(m, misura, cima, opzioni.curva);
    q.stretta = opzioni.stretta;
    for (const Parte parte : parti) parte(m, q, tela);
    if (opzioni.curva) disegnaCurva(m, q, tela);
    scriviPiede(m, q, tela);
    return {.larghezza = misura.larghezza,
            .altezza = misura.altezza,
            .corpo = q.em,
            .primitive = tela.concludi(),
            .yTesta = q.yTesta,
            .scala = q.scala,
            .paratia = m.lunghezza,
            .lettura = {q.xMonte, q.yTesta, misura.larghezza, q.y(m.lunghezza)}};
}

std::string descrizione(const live::PareteViva& parete, const live::Vista& vista) {
    const Mostrata m = mostrata(parete, vista);
    std::string testo = titolo(m);
    for (const Verdetto& v : verdetti(m, {}))
        testo += (testo.ends_with('.') ? " " : ". ") + base::conMaiuscola(v.testo);
    return testo;
}

}  // namespace korven::scene
