#include "profiles/catalogue.hpp"

#include <algorithm>
#include <filesystem>

#include "base/file_error.hpp"
#include "base/files.hpp"
#include "base/folders/program_folder.hpp"
#include "base/folders/user_data.hpp"
#include "base/translated_texts.hpp"
#include "exchange/file_text.hpp"

namespace korven::profiles {

namespace {

// The head of a new file tells its owner what may be written there.
constexpr std::string_view testata =
    "# genere; nome; misura=numero ...; fonte\n"
    "# generi: ferro (diametro), tubo (diametro spessore), diaframma, pali, palancola, "
    "pali-armati\n";

std::string letto(const std::string& percorso) {
    return base::esisteFile(percorso) ? base::leggiFile(percorso) : std::string();
}

void leggi(const std::string& percorso, std::string_view nome, bool proprio, Catalogo& catalogo) {
    try {
        leggiProfili(letto(percorso), std::string(nome), proprio, catalogo);
    } catch (const base::ErroreFile& errore) {
        catalogo.guaste.push_back({std::string(nome), 0, errore.atteso()});
    }
}

// What a change of the user's file makes of its text, written back as UTF-8 whatever it was.
template <class Cambio>
std::string cambia(const base::Disco& disco, Cambio cambio) {
    try {
        const std::string percorso = fileProfiliUtente();
        const std::string prima = exchange::testoDiFile(letto(percorso));
        std::string dopo = prima;
        if (std::string perche = cambio(dopo); !perche.empty()) return perche;
        if (dopo == prima) return {};
        base::creaCartella(base::cartellaDatiUtente());
        base::scriviFile(percorso, dopo, disco);
        return {};
    } catch (const base::ErroreFile& errore) {
        return errore.percorso() + ": " + errore.atteso();
    }
}

std::vector<Profilo> profili(std::string_view byte) {
    Catalogo catalogo;
    leggiProfili(byte, {}, true, catalogo);
    return catalogo.profili;
}

}  // namespace

std::string fileProfiliUtente() {
    return (std::filesystem::path(base::cartellaDatiUtente()) / nomeProfiliUtente).string();
}

Catalogo leggiCatalogo() {
    Catalogo catalogo;
    leggi(base::fileProgramma(nomeProfili), nomeProfili, false, catalogo);
    leggi(fileProfiliUtente(), nomeProfiliUtente, true, catalogo);
    return catalogo;
}

std::string aggiungiProfilo(const Profilo& profilo, const base::Disco& disco) {
    if (std::string perche = difetto(profilo); !perche.empty()) return perche;
    return cambia(disco, [&](std::string& testo) -> std::string {
        const auto suoi = profili(testo);
        if (std::any_of(suoi.begin(), suoi.end(), [&](const Profilo& uno) {
                return uno.genere == profilo.genere && uno.nome == profilo.nome;
            }))
            return base::traduttore("Nel catalogo c'è già un profilo con questo nome.");
        if (testo.empty()) testo = testata;
        if (testo.back() != '\n') testo += '\n';
        testo += rigaProfilo(profilo) + '\n';
        return {};
    });
}

std::string togliProfilo(const Profilo& profilo, const base::Disco& disco) {
    return cambia(disco, [&](std::string& testo) -> std::string {
        std::string altre;
        bool tolto = false;
        for (const auto riga : righeIntere(testo)) {
            const auto suo = profili(riga);
            const bool questo = !tolto && !suo.empty() && suo.front() == profilo;
            tolto = tolto || questo;
            if (!questo) altre += riga;
        }
        testo = std::move(altre);
        return {};
    });
}

}  // namespace korven::profiles
