#include "document/kept_together.hpp"

#include <algorithm>
#include <utility>

namespace korven::document {

namespace {

constexpr std::size_t righeSopra = 8;
// Of a page that begins with the first part of a chapter, whose opening words stay behind.
constexpr double costoPrimaParte = 20;
// Of a page that begins with the verdict on the table above it.
constexpr double costoGiudizio = 25;

class Legatore {
 public:
    Legatore(const Documento& documento, const std::vector<std::size_t>& inizi, Strisce& strisce)
        : documento_(documento), inizi_(inizi), strisce_(strisce) {}

    void sopra(std::size_t tavola) {
        std::size_t da = tavola;
        while (da > 0 && introduce(da - 1)) --da;
        if (da == tavola) return;
        const std::size_t fine = inizi_[tavola];
        for (const std::size_t primo : {da, tavola - 1})
            if (fine - inizi_[primo] <= righeSopra) return lega(inizi_[primo], fine);
        lega(fine - 1, fine);
    }

    void sotto(std::size_t tavola) {
        std::size_t a = tavola + 1;
        while (a < documento_.blocchi.size() && nota(a)) ++a;
        if (a == tavola + 1 || inizi_[tavola + 1] == 0) return;
        const std::size_t prima = inizi_[tavola + 1] - 1;
        lega(prima, std::min(inizi_[a] - 1, prima + righeNota));
    }

 private:
    // Strips from `da` up to the one before `a`, each to the one behind it.
    void lega(std::size_t da, std::size_t a) {
        for (std::size_t i = da; i < a; ++i) strisce_[i].legata = true;
    }
    [[nodiscard]] const Paragrafo* paragrafo(std::size_t i) const {
        return std::get_if<Paragrafo>(&documento_.blocchi[i]);
    }
    [[nodiscard]] bool nota(std::size_t i) const {
        const Paragrafo* p = paragrafo(i);
        return p != nullptr && p->stile == Stile::nota;
    }
    // A note below a table or a drawing tells of that one.
    [[nodiscard]] bool introduce(std::size_t i) const {
        while (nota(i) && i > 0) --i;
        const Paragrafo* p = paragrafo(i);
        return p != nullptr && p->stile != Stile::nota && p->stile != Stile::fisso;
    }

    const Documento& documento_;
    const std::vector<std::size_t>& inizi_;
    Strisce& strisce_;
};

}  // namespace

void lega(const Documento& documento, const std::vector<std::size_t>& inizi, Strisce& strisce) {
    Legatore legatore(documento, inizi, strisce);
    bool solePremesse = false;
    for (std::size_t i = 0; i < documento.blocchi.size(); ++i) {
        if (inizi[i] == inizi[i + 1]) continue;
        const auto* titolo = std::get_if<Titolo>(&documento.blocchi[i]);
        if (titolo != nullptr && titolo->livello > 1 && std::exchange(solePremesse, false))
            strisce[inizi[i]].costo = costoPrimaParte;
        else if (titolo != nullptr)
            solePremesse = titolo->livello == 1;
        const auto* p = std::get_if<Paragrafo>(&documento.blocchi[i]);
        const bool tavola = std::holds_alternative<Tavola>(documento.blocchi[i]);
        if (titolo == nullptr && p == nullptr) solePremesse = false;
        const bool giudizio =
            p != nullptr && (p->stile == Stile::rilievo || p->stile == Stile::pericolo);
        if (giudizio && i > 0 && std::holds_alternative<Tavola>(documento.blocchi[i - 1]))
            strisce[inizi[i]].costo = costoGiudizio;
        if (tavola || (p != nullptr && p->stile == Stile::fisso)) legatore.sopra(i);
        if (tavola) legatore.sotto(i);
    }
}

}  // namespace korven::document
