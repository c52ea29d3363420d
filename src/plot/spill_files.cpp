#include "plot/spill_files.hpp"

#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <limits>
#include <system_error>

#include "base/file_custody.hpp"
#include "base/file_error.hpp"
#include "base/files.hpp"
#include "base/folders/leftovers.hpp"
#include "base/number_text.hpp"
#include "base/system_reason.hpp"
#include "base/text_lines.hpp"
#include "base/translated_texts.hpp"
#include "plot/drive_files.hpp"

namespace korven::plot {

namespace {

namespace fs = std::filesystem;

// The folder of the process. Static: it goes when the process ends.
class CartellaScarico {
 public:
    CartellaScarico() {
        base::togliCartelleProvvisorie();
        std::error_code errore;
        const fs::path provvisoria = fs::temp_directory_path(errore);
        if (errore) fallita(base::traduttore("cartella provvisoria del sistema"), errore);
        const std::string modello =
            (provvisoria / std::string(base::inizioCartelle)).string() + "XXXXXX";
        // Another start may have taken the folder for a leftover before its lock was there.
        do {
            std::string nome = modello;
            if (::mkdtemp(nome.data()) == nullptr)
                fallita(modello, std::error_code(errno, std::generic_category()));
            percorso_ = nome;
        } while (!custodia_.prendiCartella(percorso_.string()));
    }
    CartellaScarico(const CartellaScarico&) = delete;
    CartellaScarico& operator=(const CartellaScarico&) = delete;
    ~CartellaScarico() {
        std::error_code errore;
        fs::remove_all(percorso_, errore);
    }

    [[nodiscard]] const fs::path& percorso() const { return percorso_; }

 private:
    [[noreturn]] static void fallita(const std::string& cosa, std::error_code errore) {
        throw base::ErroreFile(
            cosa, 0,
            base::traduttore("impossibile creare una cartella per le linee del disegno") + " (" +
                base::motivoSistema(errore.value()) + ")");
    }

    fs::path percorso_;
    base::InCustodia custodia_;  // says that the process lives
};

FileDiUnita& fileDiUnita() {
    static FileDiUnita file;
    return file;
}

// The value of `windir`; empty where no drive is named.
std::string unita() {
    const char* windir = std::getenv("windir");
    return windir != nullptr ? windir : "";
}

std::string nomeSenzaCartella(int numero) { return "plttmp" + std::to_string(numero) + ".tmp"; }

std::size_t leggiQuante(base::LettoreRighe& file) {
    constexpr double massimo = std::numeric_limits<int>::max();
    const std::string atteso = base::traduttore("il numero delle linee del disegno");
    const double quante = file.numero(atteso);
    if (quante != std::floor(quante) || quante < 0 || quante > massimo)
        file.rifiuta(base::traduttore("atteso un numero") + ": " + atteso);
    return static_cast<std::size_t>(quante);
}

Segmento leggiSegmento(base::LettoreRighe& file, const std::string& atteso) {
    Segmento linea;
    for (double* coordinata : {&linea.x1, &linea.y1, &linea.x2, &linea.y2})
        *coordinata = file.numero(atteso);
    const double colore = file.numero(atteso);
    if (!(std::abs(colore) <= std::numeric_limits<Colore>::max()))
        file.rifiuta(base::traduttore("atteso un numero") + ": " + atteso);
    linea.colore = static_cast<Colore>(colore);
    linea.spessore = file.numero(atteso);
    return linea;
}

}  // namespace

std::string nomeFileScarico(std::string_view windir, int numero) {
    return std::string(windir.substr(0, 2)) + "\\" + nomeSenzaCartella(numero);
}

std::string percorsoFileScarico(int numero) {
    if (const std::string windir = unita(); !windir.empty())
        return fileDiUnita().percorso(windir, numero);
    static const CartellaScarico cartella;
    return (cartella.percorso() / nomeSenzaCartella(numero)).string();
}

std::string testoScarico(std::span<const Segmento> linee) {
    constexpr std::size_t ampiezzaUsuale = 64;  // bytes of a record, to spare the growing
    std::string testo;
    testo.reserve(linee.size() * ampiezzaUsuale);
    const auto riga = [&testo](double valore) {
        testo.append(base::formattaNumero(valore)).append("\r\n");
    };
    riga(static_cast<double>(linee.size()));
    for (const Segmento& linea : linee)
        for (const double valore : {linea.x1, linea.y1, linea.x2, linea.y2,
                                    static_cast<double>(linea.colore), linea.spessore})
            riga(valore);
    return testo;
}

void scriviScarico(const std::string& percorso, std::span<const Segmento> linee,
                   const base::Disco& disco) {
    base::scriviFile(percorso, testoScarico(linee), disco);
}

void scriviScarico(int numero, std::span<const Segmento> linee, const base::Disco& disco) {
    if (const std::string windir = unita(); !windir.empty())
        fileDiUnita().scrivi(windir, numero, testoScarico(linee), disco);
    else
        scriviScarico(percorsoFileScarico(numero), linee, disco);
}

std::vector<Segmento> leggiScarico(const std::string& percorso) {
    auto file = base::LettoreRighe::apri(percorso);
    const std::size_t quante = leggiQuante(file);
    const std::string atteso = base::traduttore("un valore di una linea del disegno");
    std::vector<Segmento> linee;
    for (std::size_t i = 0; i < quante; ++i) linee.push_back(leggiSegmento(file, atteso));
    // A file that ends within a number would hand out a wrong one.
    if (!file.rigaIntera())
        file.rifiuta(base::traduttore("il file termina qui, atteso") + ": " + atteso);
    return linee;
}

}  // namespace korven::plot
