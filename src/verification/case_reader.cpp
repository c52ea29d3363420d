#include "verification/case_reader.hpp"

#include <algorithm>
#include <filesystem>
#include <iterator>

#include "analysis/input_checks.hpp"
#include "analysis/run_arrays.hpp"
#include "base/file_error.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "structure/offered_stiffness.hpp"
#include "verification/case_lines.hpp"
#include "verification/expectation_reader.hpp"
#include "verification/wall_fields.hpp"

namespace korven::verification {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view capoParete = "[parete]", capoVariante = "[variante]",
                           capoAttesi = "[attesi]";

std::pair<std::string_view, std::string_view> voce(const RigheCaso& righe, std::string_view riga,
                                                   char segno) {
    const auto parti = divisa(riga, segno);
    if (!parti || parti->first.empty() || parti->second.empty())
        righe.rifiuta("un nome, «%1» e un valore", {std::string(1, segno)});
    return *parti;
}

void prendiTesta(const RigheCaso& righe, std::string_view riga, Caso& caso) {
    const auto [nome, testo] = voce(righe, riga, ':');
    if (nome == "titolo")
        caso.titolo = testo;
    else if (nome == "fonte")
        caso.fonte.emplace_back(testo);
    else if (nome == "calcolo")
        caso.calcolo.emplace_back(testo);
    else if (nome == "tolleranza")
        caso.tolleranza = testo;
    else if (nome == "noto")
        caso.noto = testo;
    else
        righe.rifiuta("titolo, fonte, calcolo, tolleranza o noto, non «%1»", {std::string(nome)});
}

[[noreturn]] void manca(const std::string& percorso, std::string_view cosa) {
    throw base::ErroreFile(percorso, 0, base::traduttore(cosa));
}

[[noreturn]] void aspetta(const std::string& percorso, std::string_view cosa) {
    throw base::ErroreFile(percorso, 0, atteso(base::traduttore(cosa)));
}

bool chiede(const Caso& caso, Grandezza::Valore Grandezza::*metodo) {
    return std::any_of(caso.attese.begin(), caso.attese.end(),
                       [metodo](const Attesa& a) { return a.grandezza->*metodo != nullptr; });
}

// What a run would refuse, told of the case before it is computed.
void completa(const std::string& percorso, const Caso& caso, Parete& parete) {
    auto& dati = parete.dati;
    if (!chiede(caso, &Grandezza::corsa) && !chiede(caso, &Grandezza::equilibrio)) return;
    if (const std::string perche = analysis::motivoDati(dati); !perche.empty())
        throw base::ErroreFile(percorso, 0, perche);
    if (dati.rigidezzaEJ == 0)
        dati.rigidezzaEJ = structure::rigidezzaOfferta(dati.sezione).value_or(0);
    if (dati.rigidezzaEJ == 0) manca(percorso, analysis::messaggioSenzaEJ);
    const bool corsa = std::any_of(caso.attese.begin(), caso.attese.end(), [](const Attesa& a) {
        return a.grandezza->corsa && a.solo != Metodo::equilibrio;
    });
    const int massimo = analysis::vincoli(dati).incastroPiede ? analysis::massimoSegmentiIncastro
                                                              : analysis::massimoSegmenti;
    if (corsa && parete.segmenti > massimo)
        manca(percorso, "troppi segmenti per il calcolo della relazione: «solo equilibrio»");
}

}  // namespace

Caso leggiCaso(const std::string& percorso, std::string_view contenuto, const std::string& basi) {
    Caso caso{.nome = fs::path(percorso).stem().string(), .file = percorso};
    caso.parete = pareteVuota();
    RigheCaso righe(percorso, contenuto);
    std::string_view capo;
    while (const auto riga = righe.prossima()) {
        if (riga->front() == '[') {
            capo = *riga;
            if (capo == capoVariante)
                caso.variante = caso.parete;
            else if (capo != capoParete && capo != capoAttesi)
                righe.rifiuta(
                    "una delle parti «parete», «variante» e «attesi», tra parentesi quadre");
        } else if (capo.empty()) {
            prendiTesta(righe, *riga, caso);
        } else if (capo == capoAttesi) {
            caso.attese.push_back(leggiAttesa(righe, *riga, caso));
        } else {
            const auto [nome, valori] = voce(righe, *riga, '=');
            prendiCampo(righe, nome, valori, basi,
                        capo == capoVariante ? *caso.variante : caso.parete);
        }
    }
    if (caso.titolo.empty()) aspetta(percorso, "un titolo");
    if (caso.fonte.empty()) aspetta(percorso, "una fonte: da dove vengono i valori attesi");
    if (caso.attese.empty()) aspetta(percorso, "una grandezza attesa");
    completa(percorso, caso, caso.parete);
    if (caso.variante) completa(percorso, caso, *caso.variante);
    return caso;
}

Gruppo leggiGruppo(const std::string& percorso, std::string_view contenuto) {
    Gruppo gruppo{.nome = fs::path(percorso).parent_path().filename().string()};
    RigheCaso righe(percorso, contenuto);
    while (const auto riga = righe.prossima()) {
        if (*riga == "[teoria]") {
            gruppo.teoria = righe.resto();
            break;
        }
        const auto [nome, testo] = voce(righe, *riga, ':');
        if (nome == "titolo")
            gruppo.titolo = testo;
        else if (nome == "descrizione")
            gruppo.descrizione = testo;
        else if (nome == "figura")
            gruppo.figura = testo;
        else if (nome == "curva")
            gruppo.curva = testo;
        else if (nome == "ordine" && base::soloUnNumero(testo))
            gruppo.ordine = static_cast<int>(base::leggiNumero(testo).value_or(0));
        else
            righe.rifiuta("ordine, titolo, descrizione, figura o curva, non «%1»",
                          {std::string(nome)});
    }
    if (gruppo.titolo.empty()) aspetta(percorso, "un titolo");
    return gruppo;
}

}  // namespace korven::verification
