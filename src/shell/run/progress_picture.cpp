#include "shell/run/progress_picture.hpp"

namespace korven::shell {

namespace {

std::vector<double> copia(const analysis::VettoreNodi* nodi, int n) {
    std::vector<double> valori;
    valori.reserve(static_cast<std::size_t>(n));
    for (int i = 1; nodi != nullptr && i <= n; ++i) valori.push_back((*nodi)[i]);
    return valori;
}

// From values and nodes to the unit square.
class Scala {
 public:
    Scala(double massimo, std::size_t nNodi)
        : larghezza_(massimo > 0 ? 2.2 * massimo : 1), altezza_(static_cast<double>(nNodi) + 1) {}
    [[nodiscard]] QPointF punto(double valore, double nodo) const {
        return {0.5 + valore / larghezza_, nodo / altezza_};
    }

 private:
    double larghezza_, altezza_;
};

void linea(std::vector<TrattoQuadro>& tutti, const QColor& colore, QPointF da, QPointF a) {
    tutti.push_back({colore, {da, a}});
}

void spezzata(std::vector<TrattoQuadro>& tutti, const QColor& colore, const Scala& scala,
              const std::vector<double>& valori) {
    for (std::size_t i = 1; i < valori.size(); ++i)
        linea(tutti, colore, scala.punto(valori[i - 1], static_cast<double>(i)),
              scala.punto(valori[i], static_cast<double>(i + 1)));
}

}  // namespace

QuadroAvanzamento quadro(const analysis::StatoIterazione& stato) {
    QuadroAvanzamento q{stato.yMax, stato.mMax, stato.passoNodi, stato.profFase, {}, {}, {}};
    q.yNodo = copia(stato.yNodo, stato.nNodi);
    q.momentoNodo = copia(stato.momentoNodo, stato.nNodi);
    for (const auto& tirante : stato.tiranti) q.nodiTiranti.push_back(tirante.nodo);
    return q;
}

std::vector<TrattoQuadro> tratti(const QuadroAvanzamento& quadro) {
    std::vector<TrattoQuadro> tutti;
    const std::size_t n = quadro.yNodo.size();
    if (n == 0) return tutti;  // nothing has been solved yet
    const Scala y(quadro.yMax, n);
    const double scavo = quadro.passoNodi > 0 ? quadro.profFase / quadro.passoNodi + 1 : 1;
    for (const int nodo : quadro.nodiTiranti)
        linea(tutti, Qt::black, y.punto(-quadro.yMax / 2, nodo), y.punto(0, nodo));
    linea(tutti, Qt::black, y.punto(0, scavo), y.punto(quadro.yMax, scavo));
    linea(tutti, Qt::black, y.punto(0, 1), y.punto(0, static_cast<double>(n)));
    spezzata(tutti, coloreDeformata, y, quadro.yNodo);
    spezzata(tutti, coloreMomenti, Scala(quadro.mMax, n), quadro.momentoNodo);
    return tutti;
}

}  // namespace korven::shell
