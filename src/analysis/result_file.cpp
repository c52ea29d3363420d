#include "analysis/result_file.hpp"

#include <algorithm>
#include <string_view>
#include <utility>

#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "project/project_file.hpp"
#include "structure/partial_factors.hpp"

namespace korven::analysis {

namespace {

using base::traduttore;

struct Colonna {
    std::string_view nome;
    VettoreNodi RisultatiFase::*valori;
};

constexpr Colonna colonne[] = {
    {"sigmaVv", &RisultatiFase::sigmaVv},   {"Ehv", &RisultatiFase::Ehv},
    {"k0v", &RisultatiFase::k0v},           {"kav", &RisultatiFase::kav},
    {"kpv", &RisultatiFase::kpv},           {"sigmaVm", &RisultatiFase::sigmaVm},
    {"Ehm", &RisultatiFase::Ehm},           {"k0m", &RisultatiFase::k0m},
    {"kam", &RisultatiFase::kam},           {"kpm", &RisultatiFase::kpm},
    {"Spostamenti", &RisultatiFase::yNodo}, {"Momenti", &RisultatiFase::momentoNodo},
    {"", &RisultatiFase::taglioNodo},
};

struct Chiusa {
    double ChiusuraRisultati::*campo;
    std::string_view nome;
};

constexpr Chiusa chiuse[] = {
    {&ChiusuraRisultati::mrd2, "momento resistente MRd 2"},
    {&ChiusuraRisultati::mrd1, "momento resistente MRd 1"},
    {&ChiusuraRisultati::mMaxTotale, "momento massimo"},
    {&ChiusuraRisultati::mMinTotale, "momento minimo"},
    {&ChiusuraRisultati::fsAzioni, "fattore parziale delle azioni"},
};

constexpr std::size_t zonaDiStampa = 14;

std::string rigaColonne() {
    std::string riga;
    for (const auto& colonna : colonne) {
        if (colonna.nome.empty()) continue;
        if (!riga.empty()) riga.resize((riga.size() / zonaDiStampa + 1) * zonaDiStampa, ' ');
        riga += colonna.nome;
    }
    return riga;
}

}  // namespace

bool cominciaFase(std::string_view riga) { return riga.starts_with(colonne[0].nome); }

std::string testoFase(const RisultatiFase& risultati, int nNodi) {
    std::string testo = rigaColonne() + "\r\n";
    for (int i = 1; i <= nNodi; ++i) {
        for (const auto& colonna : colonne) {
            if (&colonna != std::begin(colonne)) testo += ',';
            testo += base::formattaNumero((risultati.*colonna.valori)[i]);
        }
        testo += "\r\n";
    }
    return testo;
}

std::string testoChiusura(const ChiusuraRisultati& chiusura) {
    std::string testo;
    for (const auto& [campo, nome] : chiuse)
        testo += base::formattaNumero(chiusura.*campo) + "\r\n";
    return testo;
}

LettoreRisultati::LettoreRisultati(const std::string& percorso, int nNodi)
    : LettoreRisultati(base::LettoreRighe::apri(percorso, traduttore(rimedioRisultati)), nNodi) {}

LettoreRisultati::LettoreRisultati(base::LettoreRighe file, int nNodi)
    : file_(std::move(file)), nNodi_(nNodi) {}

double LettoreRisultati::leggiTesta(project::DatiProgetto& dati) {
    const auto titoli = dati.titoli;
    const double metodoScritto = project::leggiDati(file_, dati);
    dati.titoli = titoli;
    return metodoScritto;
}

void LettoreRisultati::leggiFase(RisultatiFase& risultati) {
    if (!cominciaFase(file_.riga(traduttore("i nomi delle colonne di una fase"))))
        file_.rifiuta(traduttore("attesi i nomi delle colonne di una fase"));
    const std::string atteso = traduttore("i tredici valori di un nodo");
    for (int i = 1; i <= nNodi_; ++i) {
        const std::string riga = file_.riga(atteso);
        if (std::count(riga.begin(), riga.end(), ',') + 1 != std::ssize(colonne)) rifiutaNodo(i);
        std::string_view resto = riga;
        for (const auto& colonna : colonne) {
            const auto valore = base::leggiNumero(resto);
            if (!valore) rifiutaNodo(i);
            (risultati.*colonna.valori)[i] = *valore;
            resto.remove_prefix(std::min(resto.find(',') + 1, resto.size()));
        }
    }
}

void LettoreRisultati::rifiutaNodo(int i) const {
    file_.rifiuta(traduttore("attesi i tredici valori del nodo") + " " + std::to_string(i));
}

ChiusuraRisultati LettoreRisultati::leggiChiusura() {
    ChiusuraRisultati chiusura;
    for (const auto& [campo, nome] : chiuse) {
        const std::string riga = file_.riga(traduttore(nome));
        const auto valore = base::leggiNumero(riga);
        if (!valore || riga.find(',') != std::string::npos)
            file_.rifiuta(traduttore("atteso un numero") + ": " + traduttore(nome));
        chiusura.*campo = *valore;
    }
    // The last line may lack its end. But a file cut short there holds the head of the factor,
    // which would read as a smaller one.
    if (!file_.rigaIntera() && chiusura.fsAzioni != structure::fsAzioniSezione)
        file_.rifiuta(traduttore("atteso un numero completo") + ": " +
                      traduttore(chiuse[std::size(chiuse) - 1].nome));
    if (!file_.fine()) {
        file_.riga("");
        file_.rifiuta(traduttore("attesa la fine del file"));
    }
    return chiusura;
}

}  // namespace korven::analysis
