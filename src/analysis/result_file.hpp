#pragma once

#include <string>
#include <string_view>

#include "analysis/stage_results.hpp"
#include "base/text_lines.hpp"
#include "project/project_data.hpp"

// The result file: the project as its head, then for each stage a line of column names and a line a
// node, then five closing numbers. It is all that passes from the analysis to the reports and
// diagrams. No line carries a label and no mark tells a finished file from a broken one, so the
// reader counts, and refuses a file whose lines are not what they must be.

namespace korven::analysis {

/// What the user can do about a result file that is not what it must be, an Italian key.
inline constexpr const char* rimedioRisultati =
    "il file dei risultati è incompleto o è stato scritto con un altro numero di segmenti "
    "(nseg.txt): cancellarlo e ripetere il calcolo";

/// What follows the last stage.
struct ChiusuraRisultati {
    double mrd2 = 0;  ///< resistance with positive curvature [N mm]; 0 without a valid section
    double mrd1 = 0;  ///< resistance with negative curvature [N mm]
    double mMaxTotale = 0;  ///< largest signed moment of all stages [t m]
    double mMinTotale = 0;  ///< smallest signed moment of all stages [t m]
    double fsAzioni = 0;    ///< partial factor of the actions [-]
};

/// Text of a stage's table as it is appended to the file, the rows 1 to `nNodi` with at
/// most seven decimals.
[[nodiscard]] std::string testoFase(const RisultatiFase& risultati, int nNodi);

/// True for the line of column names with which the table of a stage begins.
[[nodiscard]] bool cominciaFase(std::string_view riga);

/// Text of the five closing lines.
[[nodiscard]] std::string testoChiusura(const ChiusuraRisultati& chiusura);

/// Reads a result file from its head to its end. It is here, not in `results`, which alone uses it:
/// one table of the columns writes a stage and reads it back, so that the two can't differ.
class LettoreRisultati {
 public:
    /// @param nNodi  nodes of the mesh that wrote the file; the file does not tell
    /// @throws base::ErroreFile if there is no such file
    LettoreRisultati(const std::string& percorso, int nNodi);

    /// Reads a file that is open already, from its head.
    LettoreRisultati(base::LettoreRighe file, int nNodi);

    /// Reads the head into `dati`; the six `titoli` of `dati` stay, since a report shows
    /// those in memory.
    /// @return the code of `metodoSpinte` in the head, which `dati` may not keep
    /// @throws base::ErroreFile on a broken head; `dati` is then as it was
    double leggiTesta(project::DatiProgetto& dati);

    /// Reads the table of the next stage.
    /// @throws base::ErroreFile if the file ends or its lines are not those of a table of this mesh
    void leggiFase(RisultatiFase& risultati);

    /// Reads the closing numbers, after which the file must end.
    /// @throws base::ErroreFile if one is missing or cut short, or more lines follow
    [[nodiscard]] ChiusuraRisultati leggiChiusura();

 private:
    [[noreturn]] void rifiutaNodo(int i) const;

    base::LettoreRighe file_;
    int nNodi_;
};

}  // namespace korven::analysis
