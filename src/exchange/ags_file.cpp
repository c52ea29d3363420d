#include "exchange/ags_file.hpp"

#include <algorithm>
#include <map>
#include <span>
#include <utility>

#include "base/code_page.hpp"
#include "base/translated_texts.hpp"
#include "exchange/ags_group.hpp"
#include "exchange/delimited_reader.hpp"
#include "exchange/fault_texts.hpp"

namespace korven::exchange {

namespace {

constexpr char separatore = ',';
constexpr std::string_view nomeForo = "LOCA_ID", quotaForo = "LOCA_GL";
constexpr std::string_view tettoTratto = "GEOL_TOP", baseTratto = "GEOL_BASE";
constexpr std::string_view gruppoFori = "LOCA", gruppoTratti = "GEOL";
constexpr std::string_view deiFori[] = {nomeForo};
constexpr std::string_view deiTratti[] = {nomeForo, tettoTratto, baseTratto};
// The first of them that says something describes the range.
constexpr std::string_view descrizioni[] = {"GEOL_DESC", "GEOL_GEOL", "GEOL_LEG"};
constexpr std::string_view lunghezze[] = {quotaForo, tettoTratto, baseTratto};

// Files of the version before begin their groups like this.
bool eVersione3(const RigaLetta& riga) { return riga.cella(0).starts_with("**"); }

class LettoreAgs {
 public:
    explicit LettoreAgs(std::string_view testo) : lettore_(testo, separatore) {}

    FileAgs leggi() {
        while (auto riga = lettore_.prossimaPiena()) {
            if (eVersione3(*riga)) {
                difetto(*riga, base::traduttore("questo è un file AGS 3: serve un file AGS 4"));
                break;
            }
            leggiRiga(*riga);
        }
        if (!lettore_.difetto().empty()) file_.difetti.push_back(lettore_.difetto());
        concludi();
        return std::move(file_);
    }

 private:
    void difetto(const RigaLetta& riga, std::string_view cosa) {
        file_.difetti.push_back(inRiga(riga.riga, 0, cosa));
    }

    void leggiRiga(const RigaLetta& riga) {
        const std::string_view genere = riga.cella(0);
        if (genere == "GROUP") {
            gruppo_ = GruppoAgs(riga.cella(1));
            return;
        }
        const bool fori = gruppo_.nome() == gruppoFori;
        if (!fori && gruppo_.nome() != gruppoTratti) return;
        if (genere == "HEADING") {
            intesta(riga, fori ? std::span<const std::string_view>(deiFori) : deiTratti);
        } else if (genere == "UNIT") {
            controllaUnita(riga);
        } else if (genere == "DATA") {
            leggiDati(riga, fori);
        } else if (genere != "TYPE") {
            difetto(riga, frase("«%1» non è l'inizio di una riga AGS", {std::string(genere)}));
        }
    }

    void intesta(const RigaLetta& riga, std::span<const std::string_view> richieste) {
        gruppo_.intesta(riga);
        if (const auto manca = gruppo_.mancante(richieste); !manca.empty())
            difetto(riga, frase("nel gruppo %1 manca la colonna %2",
                                {gruppo_.nome(), std::string(manca)}));
    }

    // A depth in feet would be taken for one in metres.
    void controllaUnita(const RigaLetta& riga) {
        for (const std::string_view testata : lunghezze) {
            const std::string_view unita = gruppo_.cella(riga, testata);
            if (unita.empty() || base::minuscolo(unita) == "m") continue;
            difetto(riga,
                    frase("%1 è in %2: servono metri", {std::string(testata), std::string(unita)}));
        }
    }

    Foro& foro(std::string_view nome) {
        const auto [posto, nuovo] = indici_.emplace(nome, file_.fori.size());
        if (nuovo) file_.fori.push_back({std::string(nome), {}, 0, {}, {}, {}});
        return file_.fori[posto->second];
    }

    void leggiDati(const RigaLetta& riga, bool fori) {
        if (!gruppo_.intestato()) {
            if (file_.difetti.empty())
                difetto(riga, frase("il gruppo %1 ha dati prima dei nomi delle colonne",
                                    {gruppo_.nome()}));
            return;
        }
        Foro& suo = foro(gruppo_.cella(riga, nomeForo));
        if (gruppo_.troppoLunga(riga))
            suo.difetti.push_back(
                inRiga(riga.riga, 0, base::traduttore("la riga ha più celle dei nomi di colonna")));
        if (fori)
            leggiForo(riga, suo);
        else
            leggiTratto(riga, suo);
    }

    void leggiForo(const RigaLetta& riga, Foro& suo) {
        const std::string quota(gruppo_.cella(riga, quotaForo));
        if (suo.riga > 0) {
            suo.avvertenze.push_back(inRiga(
                riga.riga, 0,
                frase("il foro è già alla riga %1: vale quella", {std::to_string(suo.riga)})));
            if (quota != suo.quota)
                suo.difetti.push_back(inRiga(riga.riga, gruppo_.colonna(quotaForo),
                                             frase("il foro ha due quote del terreno, %1 e %2",
                                                   {"«" + suo.quota + "»", "«" + quota + "»"})));
            return;
        }
        suo.riga = riga.riga;
        suo.quota = quota;
    }

    void leggiTratto(const RigaLetta& riga, Foro& suo) {
        TrattoForo tratto{riga.riga,
                          std::string(gruppo_.cella(riga, tettoTratto)),
                          std::string(gruppo_.cella(riga, baseTratto)),
                          {}};
        for (const std::string_view testata : descrizioni)
            if (tratto.descrizione.empty()) tratto.descrizione = gruppo_.cella(riga, testata);
        suo.tratti.push_back(std::move(tratto));
    }

    void concludi() {
        for (Foro& f : file_.fori)
            if (f.riga == 0)
                f.avvertenze.push_back(
                    base::traduttore("il foro non sta nel gruppo LOCA: la sua quota non è nota"));
        std::erase_if(file_.fori, [](const Foro& f) { return f.tratti.empty(); });
        if (file_.fori.empty() && file_.difetti.empty())
            file_.difetti.push_back(base::traduttore(
                "il file AGS non descrive strati: il gruppo GEOL manca o è vuoto"));
        if (!file_.difetti.empty()) file_.fori.clear();
    }

    LettoreDelimitato lettore_;
    GruppoAgs gruppo_;
    FileAgs file_;
    std::map<std::string, std::size_t, std::less<>> indici_;
};

}  // namespace

bool sembraAgs(std::string_view testo) {
    const auto riga = LettoreDelimitato(testo, separatore).prossimaPiena();
    return riga && (eVersione3(*riga) || (riga->cella(0) == "GROUP" && riga->celle.size() > 1));
}

FileAgs leggiAgs(std::string_view testo) { return LettoreAgs(testo).leggi(); }

}  // namespace korven::exchange
