#include "document/strips.hpp"

#include <algorithm>

namespace korven::document {

namespace {

class Riempitore {
 public:
    Riempitore(const Formato& formato, std::vector<Segnalibro>& segnalibri)
        : formato_(formato), segnalibri_(segnalibri) {}

    // Strips that stay together.
    void gruppo(const Striscia* da, const Striscia* a) {
        if (da->nuovaPagina || pagine_.empty()) nuovaPagina();
        const double manca = spazio(*da) + altezza(da, a) - resto();
        if (!inCima() && (da->posto > resto() || manca > 0)) {
            if (da->posto <= resto() && manca <= cedevole(da, a)) return metti(da, a, manca);
            nuovaPagina();
        }
        metti(da, a, 0);
    }
    [[nodiscard]] std::vector<Pagina> pagine() { return std::move(pagine_); }

 private:
    [[nodiscard]] bool inCima() const { return y_ == 0; }
    [[nodiscard]] double resto() const { return formato_.altezzaTesto() - y_; }
    [[nodiscard]] double spazio(const Striscia& s) const {
        return inCima() ? 0 : std::max(s.prima, dopo_);
    }
    static double altezza(const Striscia* da, const Striscia* a) {
        double alta = da->altezza;
        for (; da + 1 != a; ++da) alta += std::max(da->dopo, da[1].prima) + da[1].altezza;
        return alta;
    }

    void nuovaPagina() {
        if (!pagine_.empty() && inCima()) return;
        pagine_.emplace_back();
        y_ = dopo_ = 0;
    }

    static double cedevole(const Striscia* da, const Striscia* a) {
        double tutto = 0;
        for (; da != a; ++da) tutto += da->cede;
        return tutto;
    }

    // @param manca  by how much the drawings among them are lower
    void metti(const Striscia* da, const Striscia* a, double manca) {
        for (; da != a; ++da) {
            if (!(manca > 0 && da->cede > 0)) {
                metti(*da);
                continue;
            }
            Striscia bassa = *da;
            const double via = std::min(manca, da->cede);
            bassa.altezza -= via;
            for (Disegno& disegno : bassa.contenuto.disegni)
                disegno.altezza -= via / (disegno.scala * puntiPerCentimetro);
            manca -= via;
            metti(bassa);
        }
    }

    void metti(const Striscia& s) {
        constexpr double gioco = 0.01;
        if (!inCima() && spazio(s) + s.altezza > resto() + gioco) nuovaPagina();
        if (inCima() && s.testa) scrivi(*s.testa);
        scrivi(s);
    }

    void scrivi(const Striscia& s) {
        y_ += spazio(s);
        const double y = formato_.sopra + y_;
        pagine_.back().aggiungi(s.contenuto, formato_.sinistra, y);
        if (s.segnalibro) {
            segnalibri_.push_back(*s.segnalibro);
            segnalibri_.back().pagina = pagine_.size() - 1;
            segnalibri_.back().y = y;
        }
        y_ += s.altezza;
        dopo_ = s.dopo;
    }

    const Formato formato_;
    std::vector<Segnalibro>& segnalibri_;
    std::vector<Pagina> pagine_;
    double y_ = 0, dopo_ = 0;
};

}  // namespace

std::vector<Pagina> riempi(const Strisce& strisce, const Formato& formato,
                           std::vector<Segnalibro>& segnalibri) {
    Riempitore riempitore(formato, segnalibri);
    const Striscia* const fine = strisce.data() + strisce.size();
    for (const Striscia* da = strisce.data(); da != fine;) {
        const Striscia* a = da + 1;
        while (a != fine && a[-1].legata && !a->nuovaPagina) ++a;
        riempitore.gruppo(da, a);
        da = a;
    }
    return riempitore.pagine();
}

}  // namespace korven::document
