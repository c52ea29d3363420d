#pragma once

#include <optional>
#include <vector>

#include "analysis/run_observer.hpp"
#include "live/wall.hpp"

namespace korven::dossier {

/// What the specified run made of one stage, beside the equilibrium.
struct CorsaFase {
    int fase = 0;
    int iterazioni = 0;
    bool convergente = false;  ///< false: it ended here, as `FineCorsa` says
    /// Largest differences in size between the two along the wall; nothing where one has none.
    std::optional<double> scartoSpostamento;  ///< [m]
    std::optional<double> scartoMomento;      ///< [t m]
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

    /// The stages that it began, in order.
    [[nodiscard]] const std::vector<CorsaFase>& fasi() const { return fasi_; }

 private:
    const live::PareteViva& parete_;
    analysis::OsservatoreCorsa& altro_;
    std::vector<CorsaFase> fasi_;
};

}  // namespace korven::dossier
