#include "verification/collection.hpp"

#include <algorithm>
#include <filesystem>
#include <tuple>

#include "base/file_error.hpp"
#include "base/files.hpp"
#include "base/folders/program_folder.hpp"
#include "base/translated_texts.hpp"
#include "verification/case_lines.hpp"
#include "verification/case_reader.hpp"

namespace korven::verification {

namespace {

namespace fs = std::filesystem;

constexpr const char* fileGruppo = "gruppo.txt";
constexpr int senzaOrdine = 1000;  // after all that have one

std::vector<fs::path> contenuto(const fs::path& cartella, bool cartelle) {
    std::vector<fs::path> trovati;
    for (const auto& voce : fs::directory_iterator(cartella))
        if (cartelle ? voce.is_directory()
                     : voce.is_regular_file() && voce.path().extension() == ".txt")
            trovati.push_back(voce.path());
    std::sort(trovati.begin(), trovati.end());
    return trovati;
}

Gruppo leggi(const fs::path& cartella, const std::string& basi) {
    Gruppo gruppo;
    const fs::path detto = cartella / fileGruppo;
    if (fs::exists(detto)) {
        gruppo = leggiGruppo(detto.string(), base::leggiFile(detto.string()));
    } else {
        gruppo.nome = gruppo.titolo = fs::weakly_canonical(cartella).filename().string();
        gruppo.ordine = senzaOrdine;
    }
    for (const auto& file : contenuto(cartella, false))
        if (file.filename() != fileGruppo)
            gruppo.casi.push_back(leggiCaso(file.string(), base::leggiFile(file.string()), basi));
    return gruppo;
}

}  // namespace

std::string cartellaCasi() { return (fs::path(base::cartellaDati()) / "verifica").string(); }

std::string cartellaBasi() { return (fs::path(base::cartellaDati()) / "data" / "ita").string(); }

std::vector<Gruppo> leggiCasi(const std::string& cartella, const std::string& basi) {
    std::error_code errore;
    if (!fs::is_directory(cartella, errore))
        throw base::ErroreFile(cartella, 0,
                               atteso(base::traduttore("una cartella di casi di verifica")));
    std::vector<Gruppo> gruppi = {leggi(cartella, basi)};
    for (const auto& interna : contenuto(cartella, true)) gruppi.push_back(leggi(interna, basi));
    std::erase_if(gruppi, [](const Gruppo& g) { return g.casi.empty(); });
    if (gruppi.empty())
        throw base::ErroreFile(cartella, 0,
                               atteso(base::traduttore("una cartella di casi di verifica")));
    std::stable_sort(gruppi.begin(), gruppi.end(), [](const Gruppo& a, const Gruppo& b) {
        return std::tie(a.ordine, a.nome) < std::tie(b.ordine, b.nome);
    });
    return gruppi;
}

}  // namespace korven::verification
