#include "exchange/csv_layers.hpp"

#include <array>
#include <optional>
#include <utility>

#include "base/code_page.hpp"
#include "base/decimal_commas.hpp"
#include "base/translated_texts.hpp"
#include "exchange/csv_separator.hpp"
#include "exchange/delimited_reader.hpp"
#include "exchange/fault_texts.hpp"
#include "exchange/layer_checks.hpp"
#include "exchange/layer_columns.hpp"

namespace korven::exchange {

namespace {

// One wrong unit makes a fault in every row: nobody reads more of them than this.
constexpr std::size_t massimoDifetti = 20;

// Reads the rows once it is known what parts their cells.
class LettoreStrati {
 public:
    explicit LettoreStrati(const TestoParti& parti)
        : separatore_(parti.separatore), lettore_(parti.testo, separatore_, parti.primaRiga) {}

    StratiLetti leggi() {
        auto riga = lettore_.prossimaPiena();
        if (riga && !sembraNumero(riga->cella(0))) {
            posti_ = postiDaNomi(*riga);
            riga = lettore_.prossimaPiena();
        }
        annota();
        // Without sound names nothing can be said of what stands below them.
        while (riga && posti_.difetti.empty() && letti_.difetti.size() < massimoDifetti) {
            leggiRiga(*riga);
            riga = lettore_.prossimaPiena();
        }
        if (letti_.difetti.size() >= massimoDifetti)
            letti_.difetti.push_back(base::traduttore("quello che segue non è stato esaminato"));
        else if (!lettore_.difetto().empty())
            letti_.difetti.push_back(lettore_.difetto());
        controllaTabella(letti_);
        return std::move(letti_);
    }

 private:
    void annota() {
        letti_.difetti = posti_.difetti;
        letti_.avvertenze = posti_.avvertenze;
        letti_.descrizioniConCodice = posti_.descrizioneConCodice;
        const bool spessori = posti_.spessore != PostiColonne::nessuno;
        for (std::size_t c = 0; c < numeroColonne; ++c)
            letti_.assenti[c] =
                posti_.cella[c] == PostiColonne::nessuno && (c != profondita || !spessori);
    }

    void difetto(const RigaLetta& riga, std::size_t cella, std::string_view cosa) {
        letti_.difetti.push_back(inRiga(riga.riga, cella + 1, cosa));
    }

    void leggiRiga(const RigaLetta& riga) {
        RigaStrato strato;
        for (std::size_t c = 0; c < numeroColonne; ++c) {
            if (posti_.cella[c] == PostiColonne::nessuno) continue;
            const auto colonna = static_cast<Colonna>(c);
            strato[c] = colonna == descrizione ? testo(riga, posti_.cella[c])
                                               : valore(riga, posti_.cella[c], colonna);
        }
        if (posti_.cella[profondita] == PostiColonne::nessuno) strato[profondita] = sommata(riga);
        for (std::size_t i = posti_.celle; i < riga.celle.size(); ++i)
            if (!riga.cella(i).empty())
                difetto(
                    riga, i,
                    base::traduttore("la riga ha più celle della tabella: le virgole decimali "
                                     "e il separatore delle celle devono essere segni diversi"));
        letti_.righe.push_back(std::move(strato));
    }

    std::string testo(const RigaLetta& riga, std::size_t cella) {
        if (cella >= riga.celle.size()) return {};
        const std::string& scritto = riga.celle[cella].testo;
        std::string unaRiga;
        for (std::size_t i = 0; i < scritto.size(); ++i) {
            const bool cr = scritto[i] == '\r';
            if (cr && i + 1 < scritto.size() && scritto[i + 1] == '\n') continue;
            unaRiga += cr || scritto[i] == '\n' ? ' ' : scritto[i];
        }
        std::string tenuto = base::comeNeiFile(unaRiga);
        if (tenuto != unaRiga)
            letti_.avvertenze.push_back(
                inRiga(riga.riga, cella + 1,
                       base::traduttore(
                           "un carattere che il file del progetto non può contenere diventa «?»")));
        return tenuto;
    }

    // A number with its decimal point; a fault is told where there is none.
    std::string valore(const RigaLetta& riga, std::size_t cella, Colonna colonna) {
        std::string scritto(riga.cella(cella));
        const bool virgola = scritto.find(',') != std::string::npos;
        if (virgola || scritto.find('.') != std::string::npos) segno(riga, cella, virgola);
        if (virgola && separatore_ != ',') scritto = base::conIlPunto(scritto).value_or(scritto);
        if (const auto cosa = difettoCella(colonna, scritto); !cosa.empty())
            difetto(riga, cella, cosa);
        return scritto;
    }

    // 18,5 in one row and 1.850 in another: one of the two has a point between its thousands.
    void segno(const RigaLetta& riga, std::size_t cella, bool virgola) {
        auto& primo = virgola ? primaVirgola_ : primoPunto_;
        if (primo) return;
        primo = riga.riga;
        if (primaVirgola_ && primoPunto_)
            difetto(
                riga, cella,
                frase("qui il segno decimale è diverso da quello della riga %1: usarne uno solo, e "
                      "nessun segno per le migliaia",
                      {std::to_string(virgola ? *primoPunto_ : *primaVirgola_)}));
    }

    std::string sommata(const RigaLetta& riga) {
        piede_ += numero(valore(riga, posti_.spessore, profondita));
        std::string testo = testoProfondita(piede_);
        if (const auto cosa = difettoCella(profondita, testo); !cosa.empty())
            difetto(riga, posti_.spessore, cosa);
        return testo;
    }

    char separatore_;
    LettoreDelimitato lettore_;
    PostiColonne posti_ = postiSenzaNomi();
    StratiLetti letti_;
    std::optional<long> primaVirgola_, primoPunto_;
    double piede_ = 0;
};

}  // namespace

StratiLetti leggiCsv(std::string_view testo) {
    return LettoreStrati(trovaSeparatore(testo)).leggi();
}

}  // namespace korven::exchange
