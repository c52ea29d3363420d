#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "analysis/segment_count.hpp"
#include "base/code_page.hpp"
#include "project/project_file.hpp"
#include "support/temporary_folder.hpp"

namespace korven::test {

/// Displacement [m], moment [t m] and shear [t] of a node, as the file has them.
struct NodoScritto {
    std::string_view y, momento, taglio;
};

/// The table of a stage as a run would have written it. The ten soil values do not matter to a
/// report and are those of one and the same node.
inline std::string faseScritta(const std::vector<NodoScritto>& nodi) {
    std::string testo =
        "sigmaVv       Ehv           k0v           kav           kpv           "
        "sigmaVm       Ehm           k0m           kam           kpm           "
        "Spostamenti   Momenti\r\n";
    for (const auto& nodo : nodi) {
        testo += "0,0,0,0,0,1.8,-1500,0.5,0.3333333,3,";
        testo.append(nodo.y).append(",").append(nodo.momento).append(",").append(nodo.taglio);
        testo += "\r\n";
    }
    return testo;
}

/// A stage of a wall that stays where it is, without moments and shear.
inline std::string faseFerma(int nNodi) {
    return faseScritta(std::vector<NodoScritto>(static_cast<std::size_t>(nNodi), {"0", "0", "0"}));
}

/// A result file written by hand in a folder of its own, with `nseg.txt` and `fileCorrente` set to
/// what a report finds after a run.
class RisultatiAMano {
 public:
    explicit RisultatiAMano(int nSeg) {
        analysis::contenutoNSeg = std::to_string(nSeg);
        project::fileCorrente = percorso();
    }
    RisultatiAMano(const RisultatiAMano&) = delete;
    RisultatiAMano& operator=(const RisultatiAMano&) = delete;
    ~RisultatiAMano() {
        analysis::contenutoNSeg.reset();
        project::fileCorrente.clear();
        project::azzeraProgetto();
    }

    [[nodiscard]] std::string percorso() const { return cartella / "muro.OUT"; }

    /// @param fasi      the tables of the stages
    /// @param chiusura  the five closing lines
    void scrivi(const project::DatiProgetto& testa, const std::vector<std::string>& fasi,
                std::string_view chiusura = "0\r\n0\r\n0\r\n0\r\n1.4\r\n") const {
        std::string testo = project::testoProgetto(testa);
        for (const auto& fase : fasi) testo += fase;
        metti(percorso(), base::inCp1252(testo.append(chiusura)));
    }

    CartellaProvvisoria cartella;
};

}  // namespace korven::test
