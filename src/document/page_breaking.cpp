#include "document/page_breaking.hpp"

#include <algorithm>
#include <limits>
#include <map>
#include <utility>

namespace korven::document {

namespace {

// What a page costs, on the scale of `Striscia::costo`: an empty half is worth 25.
constexpr double costoVuoto = 100;  // of an empty page; a part of one costs its square
constexpr double costoPagina = 3;
constexpr double costoAttesa = 4;                      // a drawing on the page behind its place
constexpr double costoTagliata = 45;                   // a table, by a drawing in its midst
constexpr double costoLegame = 200;                    // strips that should have stayed together
constexpr double costoBassa = 14;                      // drawings as low as they can be
constexpr double pocaPagina = 0.25, costoPoca = 60;    // a page that holds less than this share
constexpr double pocaUltima = 0.30, costoUltima = 45;  // also before what begins a page
constexpr double gioco = 0.01;                         // [pt]

double somma(const Strisce& strisce, const Gruppo& g) {
    double alta = strisce[g.da].altezza;
    for (std::size_t i = g.da + 1; i < g.a; ++i)
        alta += std::max(strisce[i - 1].dopo, strisce[i].prima) + strisce[i].altezza;
    return alta;
}

struct Passo {
    Gruppo gruppo;
    double costo = 0;  // of a page that begins here
    double cede = 0;   // by how much its drawings may be lower
    bool attende = false;
};

std::vector<Passo> passi(const Strisce& strisce, double altezzaTesto) {
    std::vector<Passo> tutti;
    const auto aggiungi = [&](std::size_t da, std::size_t a, double costo) {
        Passo p{{da, a}, costo, 0, strisce[da].puoAttendere};
        for (std::size_t i = da; i < a; ++i) p.cede += strisce[i].cede;
        tutti.push_back(p);
    };
    for (std::size_t da = 0; da < strisce.size();) {
        std::size_t a = da + 1;
        while (a < strisce.size() && strisce[a - 1].legata && !strisce[a].nuovaPagina) ++a;
        const double testa = strisce[da].testa ? strisce[da].testa->altezza : 0;
        if (testa + somma(strisce, {da, a}) <= altezzaTesto)
            aggiungi(da, a, strisce[da].costo);
        else
            for (std::size_t i = da; i < a; ++i)
                aggiungi(i, i + 1, i == da ? strisce[i].costo : costoLegame);
        da = a;
    }
    return tutti;
}

class Scelta {
 public:
    Scelta(const Strisce& strisce, const Formato& formato)
        : strisce_(strisce),
          altezza_(formato.altezzaTesto()),
          passi_(passi(strisce, formato.altezzaTesto())) {}

    std::vector<PaginaScelta> pagine() {
        if (passi_.empty()) return {};
        raggiunti_[{0, 0}] = {};
        // A page never leads back: states in order of what is set, then of what waits; those that
        // are reached meanwhile come behind.
        for (const auto& [stato, via] : raggiunti_)
            if (stato != fine()) daQui(stato, via.costo);
        std::vector<PaginaScelta> scelte;
        for (Stato s = fine(); s != Stato{0, 0}; s = raggiunti_.at(s).da)
            scelte.push_back(raggiunti_.at(s).pagina);
        std::reverse(scelte.begin(), scelte.end());
        return scelte;
    }

 private:
    // Steps that stand on pages already, and the first of the drawings before it that don't: from
    // that one on all wait, since they keep their order.
    struct Stato {
        std::size_t prossimo = 0, attende = 0;
        auto operator<=>(const Stato&) const = default;
    };
    struct Via {
        double costo = 0;
        Stato da;
        PaginaScelta pagina;
    };
    // A page that is being filled.
    struct Aperta {
        Colonna colonna;
        PaginaScelta pagina;
        double cede = 0;
        double costo = 0;  // of what came about on it, without its end
    };

    [[nodiscard]] Stato fine() const { return {passi_.size(), passi_.size()}; }
    [[nodiscard]] const Striscia& prima(std::size_t i) const {
        return strisce_[passi_[i].gruppo.da];
    }

    [[nodiscard]] bool ciSta(const Aperta& p, std::size_t i) const {
        if (p.colonna.vuota()) return true;
        if (prima(i).posto > altezza_ - p.colonna.alta()) return false;
        const double alta = p.colonna.alta() + p.colonna.crescita(strisce_, passi_[i].gruppo);
        return alta <= altezza_ + p.cede + passi_[i].cede + gioco;
    }
    void metti(Aperta& p, std::size_t i) const {
        p.colonna.metti(strisce_, passi_[i].gruppo);
        p.pagina.gruppi.push_back(passi_[i].gruppo);
        p.cede += passi_[i].cede;
    }
    // The drawings that wait, from the first that does; gives the first that has no room.
    [[nodiscard]] std::size_t mettiAttesi(Aperta& p, std::size_t da, std::size_t a) const {
        for (; da < a; ++da) {
            if (!passi_[da].attende) continue;
            if (!ciSta(p, da)) return da;
            metti(p, da);
        }
        return a;
    }

    [[nodiscard]] double costoFine(const Aperta& p, bool chiusa) const {
        const double manca = std::max(0.0, p.colonna.alta() - altezza_);
        const double piena = std::min(1.0, p.colonna.alta() / altezza_);
        double costo = costoPagina + p.costo;
        if (p.cede > 0) costo += costoBassa * std::min(1.0, manca / p.cede * manca / p.cede);
        if (chiusa) return costo + costoUltima * std::max(0.0, 1 - piena / pocaUltima);
        const double vuota = 1 - piena;
        return costo + costoVuoto * vuota * vuota +
               costoPoca * std::max(0.0, 1 - piena / pocaPagina);
    }

    void finisci(const Stato& da, double costo, const Aperta& p, const Stato& a) {
        // Before what begins a page anyway nothing is torn, and the page ends as the last one does:
        // the room below it is there wherever what stands above it is parted.
        const bool chiusa =
            a == fine() || (a.attende == a.prossimo && prima(a.prossimo).nuovaPagina);
        if (a.prossimo < passi_.size() && !prima(a.prossimo).nuovaPagina) {
            costo += passi_[a.prossimo].costo;
            if (a.attende < a.prossimo && prima(a.prossimo).testa) costo += costoTagliata;
        }
        costo += costoFine(p, chiusa);
        const auto [posto, nuovo] = raggiunti_.try_emplace(a);
        if (!nuovo && posto->second.costo <= costo) return;
        posto->second = {costo, da, p.pagina};
        posto->second.pagina.manca = std::max(0.0, p.colonna.alta() - altezza_);
    }

    // All pages that can follow.
    void daQui(const Stato& stato, double costo) {
        Aperta p;
        std::size_t attende = mettiAttesi(p, stato.attende, stato.prossimo);
        p.pagina.attesi = p.pagina.gruppi.size();
        if (attende < stato.prossimo) return finisci(stato, costo, p, {stato.prossimo, attende});
        if (p.pagina.attesi > 0) p.colonna.riprendi();
        std::size_t i = stato.prossimo;
        for (; i < passi_.size(); ++i) {
            const bool salta = prima(i).nuovaPagina && !p.colonna.vuota();
            if (attende < i && (salta || prima(i).segnalibro)) {
                attende = mettiAttesi(p, attende, i);
                if (attende < i) return finisci(stato, costo, p, {i, attende});
            }
            if (attende == i && !p.colonna.vuota()) finisci(stato, costo, p, {i, i});
            if (attende < i) finisci(stato, costo, p, {i, attende});
            if (salta) return;
            if (passi_[i].attende && (attende < i || !ciSta(p, i))) {
                p.costo += costoAttesa;
                continue;
            }
            if (!ciSta(p, i)) return;
            metti(p, i);
            if (attende == i) ++attende;  // none waits
        }
        attende = mettiAttesi(p, attende, i);
        finisci(stato, costo, p, {i, attende});
    }

    const Strisce& strisce_;
    const double altezza_;
    const std::vector<Passo> passi_;
    std::map<Stato, Via> raggiunti_;
};

}  // namespace

double Colonna::spazio(const Striscia& striscia) const {
    return vuota() ? 0 : std::max(striscia.prima, dopo_);
}

double Colonna::crescita(const Strisce& strisce, const Gruppo& gruppo) const {
    const Striscia& prima = strisce[gruppo.da];
    const double testa = conTesta(prima) ? spazio(*prima.testa) + prima.testa->altezza : 0;
    return spazio(prima) + testa + somma(strisce, gruppo);
}

void Colonna::metti(const Strisce& strisce, const Gruppo& gruppo) {
    for (std::size_t i = gruppo.da; i < gruppo.a; ++i) {
        if (conTesta(strisce[i])) metti(*strisce[i].testa);
        metti(strisce[i]);
    }
}

void Colonna::metti(const Striscia& striscia) {
    y_ += spazio(striscia) + striscia.altezza;
    dopo_ = striscia.dopo;
    riprende_ = false;
}

std::vector<PaginaScelta> scegliPagine(const Strisce& strisce, const Formato& formato) {
    return Scelta(strisce, formato).pagine();
}

}  // namespace korven::document
