#include "studies/resume.hpp"

#include <string>
#include <vector>

namespace korven::studies {

namespace {

// The lines of a file against the study that it should be of.
class Esame {
 public:
    Esame(const Studio& studio, Tratto tratto, LettoreRigheStudio& lettore)
        : studio_(studio), tratto_(tratto), lettore_(lettore), riga_(studio.righe.quanti()) {}

    // False for a line that is none of the study.
    bool prendi(std::string_view linea) {
        if (const auto sua = testata(studio_, tratto_); !conTestata_ && !sua.empty()) {
            conTestata_ = linea == sua.substr(0, sua.size() - studio_.righe.fineRiga().size());
            return conTestata_;
        }
        const std::uint64_t atteso = tratto_.da + righe_;
        if (atteso >= tratto_.a || studio_.righe.leggi(linea, riga_) != atteso) return false;
        if (righe_ == 0) prima_ = linea;
        ultima_ = linea;
        ++righe_;
        lettore_.riga(atteso, riga_);
        return true;
    }

    [[nodiscard]] bool stessi() const {
        return righe_ == 0 || (ricalcolata(tratto_.da) == prima_ &&
                               ricalcolata(tratto_.da + righe_ - 1) == ultima_);
    }

    [[nodiscard]] std::uint64_t righe() const { return righe_; }

 private:
    [[nodiscard]] std::string ricalcolata(std::uint64_t i) const {
        std::string linea = calcolaRighe(studio_, {i, i + 1}).byte;
        linea.resize(linea.size() - studio_.righe.fineRiga().size());
        return linea;
    }

    const Studio& studio_;
    const Tratto tratto_;
    LettoreRigheStudio& lettore_;
    std::vector<double> riga_;
    std::string prima_, ultima_;
    std::uint64_t righe_ = 0;
    bool conTestata_ = false;
};

}  // namespace

std::string_view testata(const Studio& studio, Tratto tratto) {
    return tratto.da == 0 ? std::string_view(studio.righe.testata()) : std::string_view();
}

std::optional<Ripresa> riprendi(const base::FileParziale& file, const Studio& studio, Tratto tratto,
                                LettoreRigheStudio& lettore) {
    Esame esame(studio, tratto, lettore);
    bool suo = true;
    const std::uint64_t byte = file.leggi(
        studio.righe.fineRiga(), [&](std::string_view linea) { return suo = esame.prendi(linea); });
    if (!suo || !esame.stessi()) return {};
    return Ripresa{esame.righe(), byte};
}

}  // namespace korven::studies
