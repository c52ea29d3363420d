#include <string>

#include "base/code_page.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "report/annex/chapters.hpp"
#include "report/annex/command_lines.hpp"
#include "report/annex/file_lines.hpp"
#include "report/annex/project_copy.hpp"
#include "report/annex/table_pieces.hpp"

namespace korven::report {

using base::riempito;
using base::traduttore;

namespace {

constexpr std::size_t larghezzaComando = 96;  // characters of the typewriter's line

void progetto(const dossier::Fascicolo& f, Blocchi& blocchi) {
    blocchi.emplace_back(document::Titolo{2, traduttore("Il file di progetto")});
    const auto copia = copiaProgetto(f);
    if (!copia)
        return paragrafo(traduttore("Il progetto ha un numero che nessun file può contenere."),
                         blocchi, document::Stile::pericolo);
    const std::string testo = base::daCp1252(copia->byte);
    paragrafo(riempito(traduttore("Il PDF di questo documento porta con sé il file, byte per byte, "
                                  "come allegato %1."),
                       {copia->nome}),
              blocchi);
    paragrafo(
        traduttore(
            "Il file ha un valore per riga; qui ogni valore segue il numero della sua riga. "
            "Sono valori conservati: forze in t, lunghezze in m, misure della sezione in cm."),
        blocchi);
    paragrafo(
        riempito(
            traduttore(
                "Per riscriverlo dalla carta: %1 righe, %2 byte in tutto, caratteri di "
                "Windows-1252; ogni riga, anche l'ultima, finisce con CR LF. I valori si leggono "
                "da sinistra a destra; una riga rientrata continua quella sopra, senza spazi in "
                "mezzo. Un valore che comincia o finisce con uno spazio sta fra « e »."),
            {std::to_string(numeroRighe(testo)), std::to_string(copia->byte.size())}),
        blocchi, document::Stile::nota);
    paragrafo(righeNumerate(testo), blocchi, document::Stile::fisso);
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
        blocchi.emplace_back(Paragrafo{aCapo(f.identita.comando, larghezzaComando), Stile::fisso});
    }
    blocchi.emplace_back(Titolo{2, traduttore("L'impronta")});
    blocchi.emplace_back(Paragrafo{
        traduttore("SHA-256 del file di progetto, come il programma lo scrive. Un file salvato da "
                   "questo programma ha la stessa impronta; se è diversa, il progetto è un altro."),
        {}});
    blocchi.emplace_back(Paragrafo{f.identita.impronta, Stile::fisso});
    progetto(f, blocchi);
}

}  // namespace korven::report
