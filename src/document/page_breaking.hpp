#pragma once

#include <vector>

#include "document/strips.hpp"

namespace korven::document {

/// Strips that stay together: the first and the one behind the last, as indices.
struct Gruppo {
    std::size_t da = 0, a = 0;
};

/// What stands on a page, from its head downward.
struct PaginaScelta {
    std::vector<Gruppo> gruppi;
    /// How many of them are drawings that had no room where the text has them.
    std::size_t attesi = 0;
    /// By how much its drawings are lower than they could be [pt].
    double manca = 0;
};

/// The height of a column of strips, grown from its head downward.
class Colonna {
 public:
    /// How much higher the column becomes by these strips, with the head of their table where they
    /// begin the column or stand below drawings that do.
    [[nodiscard]] double crescita(const Strisce& strisce, const Gruppo& gruppo) const;
    void metti(const Strisce& strisce, const Gruppo& gruppo);
    void metti(const Striscia& striscia);
    /// The next strip shows the head of its table again.
    void riprendi() { riprende_ = true; }

    [[nodiscard]] bool vuota() const { return y_ == 0; }
    [[nodiscard]] double alta() const { return y_; }
    /// Room between what stands there and a strip.
    [[nodiscard]] double spazio(const Striscia& striscia) const;
    [[nodiscard]] bool conTesta(const Striscia& striscia) const {
        return striscia.testa && (vuota() || riprende_);
    }

 private:
    double y_ = 0, dopo_ = 0;
    bool riprende_ = false;
};

/// The pages of a document, chosen together, as Plass (Optimal Pagination Techniques for Automatic
/// Typesetting Systems, 1981) has it: of all ways to part the strips, the one that costs least,
/// where empty room, parted tables and paragraphs, lower drawings, drawings that come later than
/// they are told of and a last page with hardly anything on it cost. A drawing that has no room may
/// go to the head of the next page, and what follows it fills this one, up to the next heading.
/// Strips that are tied and higher than a page are parted all the same.
[[nodiscard]] std::vector<PaginaScelta> scegliPagine(const Strisce& strisce,
                                                     const Formato& formato);

}  // namespace korven::document
