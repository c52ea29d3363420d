#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "project/field_table.hpp"
#include "project/project_data.hpp"

namespace korven::analysis {

/// A reason to refuse a run, and the field that is to be mended.
struct MotivoRifiuto {
    project::Membro campo;
    std::string_view messaggio;  ///< Italian key
};

/// The reasons why a run would be refused before anything is read or written, in the order in
/// which they are looked at. A missing stiffness is none of them: the section may give it.
[[nodiscard]] std::vector<MotivoRifiuto> motiviRifiuto(const project::DatiProgetto& dati);

/// The first of them, which a run tells; empty if there is none.
[[nodiscard]] std::string_view motivoRifiuto(const project::DatiProgetto& dati);

/// Why a run can't take the longitudinal bars of the section, translated, with the stored number;
/// empty if it can.
[[nodiscard]] std::string motivoFerri(const project::DatiProgetto& dati);

/// The first reason for which the data of a project refuse a run, translated; empty if none does.
/// Neither the stiffness nor the number of segments nor the names of files are looked at.
[[nodiscard]] std::string motivoDati(const project::DatiProgetto& dati);

/// The message of a run without a bending stiffness, an Italian key.
inline constexpr std::string_view messaggioSenzaEJ = "Il valore di EJ non è ancora stato definito.";

/// The message of an unusable `nseg.txt`, an Italian key.
inline constexpr std::string_view messaggioNSeg =
    "Il numero di segmenti indicato in nseg.txt non è ammesso (un intero da 3 a 249, con il piede "
    "incastrato da 3 a 248), i calcoli non possono pertanto essere eseguiti.";

}  // namespace korven::analysis
