#include "studies/plan/long_plan.hpp"

#include <algorithm>
#include <cassert>
#include <string_view>

#include "base/file_error.hpp"
#include "base/translated_texts.hpp"
#include "exchange/file_text.hpp"

namespace korven::studies {

namespace {

constexpr std::size_t massimiInMemoria = 8;

bool inUtf16(const base::FileAperto& file) {
    const std::string segno = file.leggi(0, 2);
    return segno == "\xFF\xFE" || segno == "\xFE\xFF";
}

// Behind the last line end outside quotes; 0: there is none.
std::size_t fineDellUltimaRiga(std::string_view byte) {
    std::size_t fine = 0;
    bool tra = false;
    for (std::size_t i = 0; i < byte.size(); ++i) {
        if (byte[i] == '"') tra = !tra;
        if (byte[i] == '\n' && !tra) fine = i + 1;
    }
    return fine;
}

// Whole rows from a place on, empty at the end of the file.
std::string righeIntere(const base::FileAperto& file, std::uint64_t da, std::size_t quanti) {
    std::string byte;
    for (;;) {
        const std::string altri = file.leggi(da + byte.size(), quanti);
        byte += altri;
        if (altri.size() < quanti) return byte;
        if (const std::size_t fine = fineDellUltimaRiga(byte); fine > 0) {
            byte.resize(fine);
            return byte;
        }
    }
}

// Lines end at CR LF, LF or CR.
long fineRighe(std::string_view byte) {
    long righe = 0;
    for (std::size_t i = 0; i < byte.size(); ++i)
        if (byte[i] == '\n' || (byte[i] == '\r' && (i + 1 == byte.size() || byte[i + 1] != '\n')))
            ++righe;
    return righe;
}

}  // namespace

PianoLungoLetto PianoLungo::leggi(const project::DatiProgetto& dati, const std::string& file,
                                  std::size_t pezzo) {
    std::unique_ptr<PianoLungo> piano(new PianoLungo(dati, file));
    // Whose line ends are two bytes: nobody writes long plans so.
    piano->percorri(inUtf16(piano->file_) ? piano->file_.lunghezza() + 1 : pezzo);
    auto difetti = piano->righe_.difetti();
    if (difetti.empty() && piano->numero_ == 0)
        difetti.push_back({.motivo = MotivoPiano::senzaRighe});
    if (!difetti.empty()) piano.reset();
    return {std::move(piano), std::move(difetti)};
}

void PianoLungo::percorri(std::size_t pezzo) {
    std::uint64_t da = 0;
    long riga = 1;
    std::vector<double> valori;
    while (!righe_.finita()) {
        const std::string byte = righeIntere(file_, da, pezzo);
        if (byte.empty()) return;
        const bool testata = righe_.campi().empty();
        valori.clear();
        righe_.leggi(exchange::testoDiFile(byte), riga, valori);
        if (!valori.empty()) {
            const std::uint64_t numero = valori.size() / righe_.campi().size();
            pezzi_.push_back({da, byte.size(), riga, numero_, numero, testata});
            numero_ += numero;
        }
        da += byte.size();
        riga += fineRighe(byte);
    }
}

PianoLungo::Valori PianoLungo::rileggi(const Pezzo& pezzo) const {
    const std::string byte = file_.leggi(pezzo.da, pezzo.byte);
    RighePiano righe = pezzo.testata ? RighePiano(dati_) : righe_;
    auto valori = std::make_shared<std::vector<double>>();
    righe.leggi(exchange::testoDiFile(byte), pezzo.riga, *valori);
    if (!righe.difetti().empty() || valori->size() != pezzo.numero * campi().size())
        throw base::ErroreFile(file_.nome(), pezzo.riga,
                               base::traduttore("il file è cambiato mentre lo studio lo leggeva"));
    return valori;
}

PianoLungo::Valori PianoLungo::valoriDi(std::size_t pezzo) const {
    const std::lock_guard guardia(mutex_);
    const auto trovato = std::ranges::find(ultimi_, pezzo, &std::pair<std::size_t, Valori>::first);
    if (trovato != ultimi_.end()) return trovato->second;
    if (ultimi_.size() == massimiInMemoria) ultimi_.erase(ultimi_.begin());
    return ultimi_.emplace_back(pezzo, rileggi(pezzi_[pezzo])).second;
}

std::vector<Estremita> PianoLungo::valori(std::uint64_t i, std::span<double> valori) const {
    const std::size_t quanti = campi().size();
    assert(i < numero_ && valori.size() == quanti);
    const auto dopo = std::ranges::upper_bound(pezzi_, i, {}, &Pezzo::primo);
    const auto quale = static_cast<std::size_t>(dopo - pezzi_.begin()) - 1;
    const Valori suoi = valoriDi(quale);
    const auto inizio =
        suoi->begin() + static_cast<std::ptrdiff_t>((i - pezzi_[quale].primo) * quanti);
    std::copy_n(inizio, quanti, valori.begin());
    return {};
}

}  // namespace korven::studies
