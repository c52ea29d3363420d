#include "document/strips.hpp"

#include <algorithm>
#include <utility>

namespace korven::document {

namespace {

class Riempitore {
 public:
    Riempitore(const Formato& formato, std::vector<Segnalibro>& segnalibri)
        : formato_(formato), segnalibri_(segnalibri) {}

    // Strips that stay together.
    void gruppo(const Striscia* da, const Striscia* a) {
        if (da->nuovaPagina || da->segnalibro) inAttesa();
        if (da->nuovaPagina || pagine_.empty()) nuovaPagina();
        if (attende(da, a)) {
            attesi_.emplace_back(da, a);
            return;
        }
        if (!ciSta(da, a)) {
            nuovaPagina();
            inAttesa();
            if (!ciSta(da, a)) nuovaPagina();
        }
        metti(da, a, manca(da, a));
    }
    [[nodiscard]] std::vector<Pagina> pagine() {
        inAttesa();
        return std::move(pagine_);
    }

 private:
    [[nodiscard]] bool inCima() const { return y_ == 0; }
    [[nodiscard]] double resto() const { return formato_.altezzaTesto() - y_; }
    [[nodiscard]] double spazio(const Striscia& s) const {
        return inCima() ? 0 : std::max(s.prima, dopo_);
    }
    // A table shows its head again at a page's head, and below drawings that stand there.
    [[nodiscard]] bool conTesta(const Striscia& s) const {
        return s.testa && (inCima() || sottoAttesi_);
    }
    [[nodiscard]] double manca(const Striscia* da, const Striscia* a) const {
        const double testa = conTesta(*da) ? spazio(*da->testa) + da->testa->altezza : 0;
        return spazio(*da) + testa + altezza(da, a) - resto();
    }
    [[nodiscard]] bool ciSta(const Striscia* da, const Striscia* a) const {
        return inCima() || (da->posto <= resto() && manca(da, a) <= cedevole(da, a));
    }
    // Drawings keep their order. Little room is not worth parting one from what it belongs to.
    [[nodiscard]] bool attende(const Striscia* da, const Striscia* a) const {
        constexpr double daRiempire = 0.12;
        return da->puoAttendere &&
               (!attesi_.empty() ||
                (!ciSta(da, a) && resto() > daRiempire * formato_.altezzaTesto()));
    }
    void inAttesa() {
        for (const auto& [da, a] : std::exchange(attesi_, {})) {
            if (!ciSta(da, a)) nuovaPagina();
            metti(da, a, manca(da, a));
            sottoAttesi_ = true;
        }
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
        sottoAttesi_ = false;
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
        if (conTesta(s)) scrivi(*s.testa);
        sottoAttesi_ = false;
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
    std::vector<std::pair<const Striscia*, const Striscia*>> attesi_;  // drawings for the next page
    bool sottoAttesi_ = false;  // nothing stands below such drawings yet
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
