#include "batch/options/document_date.hpp"

#include <algorithm>

#include "base/filled_text.hpp"
#include "base/source_date.hpp"
#include "base/translated_texts.hpp"
#include "batch/options/command.hpp"
#include "batch/options/common_options.hpp"

namespace korven::batch {

namespace {

bool haData(const RigaComando& comando) {
    return std::any_of(comando.opzioni.begin(), comando.opzioni.end(), [](const auto& riga) {
        return riga.nome.mostrato() == nomeOpzioneData.mostrato();
    });
}

}  // namespace

std::string dataIgnota(const Opzioni& opzioni) {
    if (!opzioni.data.empty()) return {};
    const bool conOpzione = haData(*opzioni.comando);
    if (!conOpzione && opzioni.pdfConfronto.empty() && opzioni.pdfVerifica.empty()) return {};
    const auto epoca = base::epocaVoluta();
    if (!epoca || base::secondiEpoca(*epoca)) return {};
    std::string perche = base::riempito(
        base::traduttore("SOURCE_DATE_EPOCH vale %1: deve essere un numero intero di secondi "
                         "dall'inizio del 1970, da 0 a %2, oppure mancare."),
        {*epoca, std::to_string(base::fineEpoca - 1)});
    if (conOpzione)
        perche += ' ' + base::riempito(base::traduttore("La data si può dare anche con %1."),
                                       {nomeOpzioneData.mostrato()});
    return perche;
}

}  // namespace korven::batch
