#include "analysis/segment_count.hpp"

#include <cmath>

#include "analysis/input_checks.hpp"
#include "base/files.hpp"
#include "base/folders/program_folder.hpp"
#include "base/number_text.hpp"

namespace korven::analysis {

std::optional<std::string> contenutoNSeg;

std::optional<int> leggiNSeg(bool incastroPiede) {
    const std::string percorso = base::fileProgramma("nseg.txt");
    if (!contenutoNSeg && !base::esisteFile(percorso)) return segmentiPredefiniti;
    std::string testo = contenutoNSeg ? *contenutoNSeg : base::leggiFile(percorso);
    testo.erase(0, testo.find_first_not_of(" \t\r\n"));
    const auto scritto = base::leggiNumero(testo);
    const int massimo = incastroPiede ? massimoSegmentiIncastro : massimoSegmenti;
    if (!scritto || *scritto < minimoSegmenti || *scritto > massimo ||
        *scritto != std::floor(*scritto))
        return std::nullopt;
    return static_cast<int>(*scritto);
}

std::string_view motivoNSeg() {
    if (!contenutoNSeg) return messaggioNSeg;
    return "Il numero di segmenti indicato con l'opzione --nseg non è ammesso (un intero da 3 a "
           "249, con il piede incastrato da 3 a 248), i calcoli non possono pertanto essere "
           "eseguiti.";
}

}  // namespace korven::analysis
