#pragma once

#include <optional>
#include <string>
#include <vector>

#include "analysis/run_observer.hpp"
#include "live/wall.hpp"
#include "safety/margin.hpp"

namespace korven::dossier {

/// The node at which the specified run and the equilibrium differ most, and by what.
struct Scarto {
    double valore = 0;  ///< in size
    double equilibrio = 0, corsa = 0;
    double z = 0;          ///< depth of the node [m]
    double altrove = 0;    ///< largest difference of all other nodes
    std::string perche{};  ///< translated, in words; empty for the same number, as it is printed

    /// True if the two differ at this node alone: elsewhere by no twentieth of it.
    [[nodiscard]] bool unNodo() const { return altrove < quotaAltrove * valore; }
    static constexpr double quotaAltrove = 0.05;
};

/// What the specified run made of one stage, beside the equilibrium.
struct CorsaFase {
    int fase = 0;
    int iterazioni = 0;
    bool convergente = false;  ///< false: it ended here, as `FineCorsa` says
    /// Largest differences along the wall; nothing where one of the two has no numbers.
    std::optional<Scarto> scartoSpostamento;  ///< [m]
    std::optional<Scarto> scartoMomento;      ///< [t m]
    /// [t]; of the run as its diagram has it: below an anchor, and above one that is on a node, too
    std::optional<Scarto> scartoTaglio;
};

/// Follows a specified run beside a wall that is known.
class CorsaAffiancata : public analysis::OsservatoreCorsa {
 public:
    /// @param parete  outlives this
    /// @param altro   is told all, and asked whether to stop
    CorsaAffiancata(const live::PareteViva& parete, analysis::OsservatoreCorsa& altro)
        : parete_(parete), altro_(altro) {}

    void inizio(int fase) override { altro_.inizio(fase); }
    void iterazione(const analysis::StatoIterazione& stato) override { altro_.iterazione(stato); }
    [[nodiscard]] bool fermata() override { return altro_.fermata(); }
    void fine(const analysis::FaseCalcolata& fase) override;
    void caduta(const analysis::FaseCalcolata& fase) override;

    /// The stages that it began, in order; their differences without a reason.
    [[nodiscard]] const std::vector<CorsaFase>& fasi() const { return fasi_; }

 private:
    const live::PareteViva& parete_;
    analysis::OsservatoreCorsa& altro_;
    std::vector<CorsaFase> fasi_;
    base::Tabella<double, project::massimoTiranti> yTirante_;  ///< when they came into place [m]
    analysis::VettoreNodi yPrima_;                             ///< of the stage before
};

/// Sets the reasons of the differences.
/// @param margine  of the same wall
void spiega(const live::PareteViva& parete, const safety::Margine& margine,
            std::vector<CorsaFase>& fasi);

}  // namespace korven::dossier
