#pragma once

#include <string>
#include <vector>

#include "exchange/layer_rows.hpp"

namespace korven::exchange {

/// What the user wants of layers that are read.
struct SceltaImporto {
    /// Columns that the file lacks take the values that the table has at that depth.
    bool tieniValori = false;
    /// Descriptions that begin with no graphic code get the code 0, no hatch: the first word of a
    /// description is its code and is not printed.
    bool mettiCodice = false;
    /// False where the subgrade modulus comes from a rule: an empty ks is not missed then.
    bool serveKs = true;
};

/// The rows as they will stand in the table, and what there is to know about them.
struct RigheImporto {
    RigheStrati righe;
    std::vector<std::string> avvertenze;  ///< translated
};

/// Makes the rows of the table. A value is kept where all layers of the table between the depths of
/// the new one have the same in that column (the last one goes on below its foot); where they
/// differ the cell stays empty, so that no value is taken for a soil that it was not given for.
[[nodiscard]] RigheImporto preparaRighe(const StratiLetti& letti, const RigheStrati& presenti,
                                        const SceltaImporto& scelta);

/// True when some description begins with no graphic code.
[[nodiscard]] bool mancanoCodici(const RigheStrati& righe);

}  // namespace korven::exchange
