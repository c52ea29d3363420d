#include <algorithm>
#include <string>
#include <vector>

#include "base/translated_texts.hpp"
#include "project/project_file.hpp"
#include "report/annex/chapters.hpp"

namespace korven::report {

using base::traduttore;

namespace {

constexpr std::size_t larghezzaPosto = 18, postiRiga = 6;  // characters of the typewriter's line

std::vector<std::string> righe(const std::string& testo) {
    std::vector<std::string> tutte;
    for (std::size_t da = 0; da < testo.size();) {
        const std::size_t fine = std::min(testo.find('\n', da), testo.size());
        const std::size_t senza = fine > da && testo[fine - 1] == '\r' ? fine - 1 : fine;
        tutte.push_back(testo.substr(da, senza - da));
        da = fine + 1;
    }
    return tutte;
}

std::size_t caratteri(const std::string& testo) {
    return static_cast<std::size_t>(std::count_if(testo.begin(), testo.end(), [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
    }));
}

// The lines of the file side by side, each behind its number: one value a line would take pages.
std::string affiancate(const std::vector<std::string>& tutte) {
    std::string testo, riga;
    std::size_t posti = 0;
    const auto chiudi = [&] {
        riga.erase(riga.find_last_not_of(' ') + 1);
        testo += riga + '\n';
        riga.clear();
        posti = 0;
    };
    for (std::size_t i = 0; i < tutte.size(); ++i) {
        std::string valore = std::to_string(i + 1) + ": " + tutte[i];
        const std::size_t largo = caratteri(valore);
        const std::size_t presi = largo / larghezzaPosto + 1;
        if (posti > 0 && posti + presi > postiRiga) chiudi();
        if (presi * larghezzaPosto > largo) valore.append(presi * larghezzaPosto - largo, ' ');
        riga += valore;
        posti += presi;
        if (posti >= postiRiga) chiudi();
    }
    if (!riga.empty()) chiudi();
    if (!testo.empty()) testo.pop_back();
    return testo;
}

// A long command goes on in further lines, as a shell reads it.
std::string aCapo(const std::string& comando) {
    constexpr std::size_t larghezza = 96;
    std::string testo;
    std::size_t inizio = 0;
    while (comando.size() - inizio > larghezza) {
        const std::size_t taglio = comando.rfind(" --", inizio + larghezza);
        if (taglio == std::string::npos || taglio <= inizio) break;
        testo += comando.substr(inizio, taglio - inizio) + " \\\n   ";
        inizio = taglio;
    }
    return testo + comando.substr(inizio);
}

}  // namespace

void capitoloRipetere(const Contesto& contesto, Blocchi& blocchi) {
    using document::Paragrafo;
    using document::Stile;
    using document::Titolo;
    const dossier::Fascicolo& f = *contesto.fascicolo;
    if (!f.identita.comando.empty()) {
        blocchi.emplace_back(Titolo{2, traduttore("Il comando")});
        blocchi.emplace_back(Paragrafo{
            f.identita.nonSalvato
                ? traduttore("Il file sul disco non è (ancora) questo progetto. Salvato il "
                             "progetto con questo nome, o scritto in un file il testo "
                             "dell'ultimo paragrafo, il comando scrive lo stesso allegato:")
                : traduttore("Lo stesso programma scrive di nuovo questo documento, byte per "
                             "byte, con:"),
            {}});
        blocchi.emplace_back(Paragrafo{aCapo(f.identita.comando), Stile::fisso});
    }
    blocchi.emplace_back(Titolo{2, traduttore("L'impronta")});
    blocchi.emplace_back(Paragrafo{
        traduttore("SHA-256 del file di progetto, come il programma lo scrive. Un file salvato da "
                   "questo programma ha la stessa impronta; se è diversa, il progetto è un altro."),
        {}});
    blocchi.emplace_back(Paragrafo{f.identita.impronta, Stile::fisso});
    blocchi.emplace_back(Titolo{2, traduttore("Il file di progetto")});
    blocchi.emplace_back(Paragrafo{
        traduttore(
            "Il file ha un valore per riga; qui ogni valore segue il numero della sua riga. "
            "Sono valori conservati: forze in t, lunghezze in m, misure della sezione in cm."),
        {}});
    blocchi.emplace_back(
        Paragrafo{affiancate(righe(project::testoProgetto(f.scritti))), Stile::fisso});
}

}  // namespace korven::report
