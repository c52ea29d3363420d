#include "document/strips.hpp"

#include <algorithm>

#include "document/page_breaking.hpp"

namespace korven::document {

namespace {

class Scrittore {
 public:
    Scrittore(const Formato& formato, std::vector<Segnalibro>& segnalibri)
        : formato_(formato), segnalibri_(segnalibri) {}

    void pagina(const Strisce& strisce, const PaginaScelta& scelta) {
        pagine_.emplace_back();
        colonna_ = {};
        double manca = scelta.manca;
        for (std::size_t i = 0; i < scelta.gruppi.size(); ++i) {
            if (i > 0 && i == scelta.attesi) colonna_.riprendi();
            for (std::size_t k = scelta.gruppi[i].da; k < scelta.gruppi[i].a; ++k)
                metti(strisce[k], manca);
        }
    }
    [[nodiscard]] std::vector<Pagina> pagine() { return std::move(pagine_); }

 private:
    // @param manca  by how much the drawings from here on are lower
    void metti(const Striscia& s, double& manca) {
        if (!(manca > 0 && s.cede > 0)) return metti(s);
        Striscia bassa = s;
        const double via = std::min(manca, s.cede);
        bassa.altezza -= via;
        for (Disegno& disegno : bassa.contenuto.disegni)
            disegno.altezza -= via / (disegno.scala * puntiPerCentimetro);
        manca -= via;
        metti(bassa);
    }
    void metti(const Striscia& s) {
        if (colonna_.conTesta(s)) scrivi(*s.testa);
        scrivi(s);
    }
    void scrivi(const Striscia& s) {
        const double y = formato_.sopra + colonna_.alta() + colonna_.spazio(s);
        pagine_.back().aggiungi(s.contenuto, formato_.sinistra, y);
        if (s.segnalibro) {
            segnalibri_.push_back(*s.segnalibro);
            segnalibri_.back().pagina = pagine_.size() - 1;
            segnalibri_.back().y = y;
        }
        colonna_.metti(s);
    }

    const Formato formato_;
    std::vector<Segnalibro>& segnalibri_;
    std::vector<Pagina> pagine_;
    Colonna colonna_;
};

}  // namespace

std::vector<Pagina> riempi(const Strisce& strisce, const Formato& formato,
                           std::vector<Segnalibro>& segnalibri) {
    Scrittore scrittore(formato, segnalibri);
    for (const PaginaScelta& scelta : scegliPagine(strisce, formato))
        scrittore.pagina(strisce, scelta);
    return scrittore.pagine();
}

}  // namespace korven::document
