#include "exchange/layer_file.hpp"

#include "base/files.hpp"
#include "base/translated_texts.hpp"
#include "exchange/csv_layers.hpp"
#include "exchange/file_text.hpp"

namespace korven::exchange {

FileStrati FileStrati::apri(const std::string& percorso) {
    return FileStrati(base::leggiFile(percorso));
}

FileStrati::FileStrati(std::string_view byte) {
    const std::string testo = testoDiFile(byte);
    // A workbook of a spreadsheet is what is chosen by mistake most often.
    if (testo.find('\0') != std::string::npos) {
        letti_.difetti.push_back(base::traduttore(
            "non è un file di testo: salvare la tabella del foglio di calcolo come CSV"));
        return;
    }
    ags_ = sembraAgs(testo);
    if (ags_)
        file_ = leggiAgs(testo);
    else
        letti_ = leggiCsv(testo);
}

StratiLetti FileStrati::strati(std::size_t foro, const TestaAlForo& testa) const {
    if (!ags_) return letti_;
    if (foro < file_.fori.size()) return stratiForo(file_.fori[foro], testa);
    StratiLetti nessuno;
    nessuno.difetti = file_.difetti;
    return nessuno;
}

}  // namespace korven::exchange
