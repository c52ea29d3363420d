#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "project/project_data.hpp"
#include "studies/runner.hpp"
#include "studies/summary/study_count.hpp"

namespace korven::desk {

/// How a field varies, as it is typed.
struct VariazioneScritta {
    std::string campo;  ///< stable name; empty: nothing varies here
    int legge = 0;      ///< of samples: which of `studies::nomiLeggi`
    /// Of a grid from, to and step; of samples the parameters of the law.
    std::array<std::string, 3> numeri;

    bool operator==(const VariazioneScritta&) const = default;
};

/// What makes a variant fail that stands, as it is typed.
struct CriterioScritto {
    std::string risultato;  ///< stable name
    std::string segno;      ///< ">", ">=", "<", "<="
    std::string limite;     ///< in the unit that the result is shown in

    bool operator==(const CriterioScritto&) const = default;
};

/// A study as it is typed.
struct StudioScritto {
    bool campioni = false;  ///< samples; else a grid
    std::vector<VariazioneScritta> variazioni;
    std::uint64_t numero = 1000;  ///< of samples
    std::uint64_t seme = 1;
    bool ipercubo = false;
    std::vector<CriterioScritto> fallisce;
    bool sicurezza = false;  ///< strength reductions and shortest wall too

    bool operator==(const StudioScritto&) const = default;
};

/// The variants that the desktop takes: all of them are kept, to be looked at. More are for the
/// command line, which writes them to a file as they come.
inline constexpr std::uint64_t massimoVarianti = 100'000;

/// A study that can be computed.
struct StudioPronto {
    StudioScritto scritto;
    std::vector<std::string> varia;  ///< what varies, as the command line takes it
    project::DatiProgetto dati;      ///< the project
    std::shared_ptr<const studies::Varianti> varianti;
    std::shared_ptr<const studies::RigheStudio> righe;
    studies::Domanda domanda;
    studies::DomandaConto conto;
};

/// A study, or why what is typed is none, a line.
struct StudioLetto {
    std::shared_ptr<const StudioPronto> studio;
    std::string perche;
};

/// @param dati  the project, without the stiffness of a run
/// @param nSeg  segments of the wall
[[nodiscard]] StudioLetto leggi(const project::DatiProgetto& dati, int nSeg,
                                const StudioScritto& scritto);

/// What is typed into the places of `VariazioneScritta::numeri`, in the order of the places,
/// translated; empty for one that is not used.
[[nodiscard]] std::array<std::string, 3> nomiNumeri(bool campioni, int legge);

/// The fields that a study may vary: each once, in the order of the project file.
struct CampoOfferto {
    std::string nome;  ///< stable
    std::string voce;  ///< "Peso di volume (gammaN[1]) [kN/m³]", translated
    std::string ora;   ///< its value in the project; of a code its words
};
[[nodiscard]] std::vector<CampoOfferto> campiOfferti(const project::DatiProgetto& dati,
                                                     bool campioni);

/// The results of a study that are numbers.
struct RisultatoOfferto {
    std::string nome;  ///< stable: "spostamento_massimo_m"
    std::string voce;  ///< "Spostamento massimo [mm]", translated
};
[[nodiscard]] std::vector<RisultatoOfferto> risultatiOfferti(const project::DatiProgetto& dati,
                                                             bool sicurezza);

/// "Spostamento massimo > 30 mm", translated.
[[nodiscard]] std::string detto(const CriterioScritto& criterio);

}  // namespace korven::desk
