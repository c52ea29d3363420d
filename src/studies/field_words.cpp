#include "studies/field_words.hpp"

#include <initializer_list>
#include <string_view>

#include "base/colon.hpp"
#include "base/decimal_commas.hpp"
#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/option_names.hpp"
#include "base/translated_texts.hpp"
#include "project/units_per_metre.hpp"

namespace korven::studies {

namespace {

using project::Campo;
using project::MotivoRifiuto;
using project::Parte;
using project::Rifiuto;

std::string frase(std::string_view chiave, std::initializer_list<std::string> valori = {}) {
    return base::riempito(base::traduttore(chiave), valori);
}

// "gammaN[2] [kN/m³]"
std::string nomeConUnita(const std::string& nome, const Campo& campo) {
    const std::string unita = traParentesi(unitaAlMetro(campo));
    return unita.empty() ? nome : nome + ' ' + unita;
}

// The field that holds the number of rows of a table; nullptr for the headings, which are fixed.
const Campo* conteggio(Parte parte) {
    for (const Campo& campo : project::campi())
        if (campo.parte == parte && !project::colonna(campo)) return &campo;
    return nullptr;
}

std::string senzaNome(const Rifiuto& rifiuto) {
    if (const auto simile = project::nomeSimile(rifiuto.nome))
        return frase("nessun campo si chiama così; forse %1?", {*simile});
    return frase("nessun campo si chiama così; i nomi sono quelli di «korven32c %1»",
                 {base::nomeComandoCampi.mostrato()});
}

std::string senzaLaRiga(const Rifiuto& rifiuto) {
    const std::string righe = std::to_string(rifiuto.righe);
    const Campo* quante = conteggio(rifiuto.campo->parte);
    if (quante == nullptr) return frase("le righe vanno da 1 a %1", {righe});
    return frase("questa riga non c'è: le righe sono %1, numero che %2 cambia",
                 {righe, std::string(quante->nome)});
}

std::string fuoriLimiti(const Campo& campo) {
    const auto limiti = project::limitiScritti(campo);
    if (!limiti) return frase("numero troppo grande");
    return frase("ammessi valori da %1 a %2",
                 {base::testoNumero(limiti->minimo), base::testoNumero(limiti->massimo)});
}

std::string perche(const Rifiuto& rifiuto) {
    switch (rifiuto.motivo) {
        case MotivoRifiuto::nomeIgnoto:
            return senzaNome(rifiuto);
        case MotivoRifiuto::senzaRiga:
            return frase("manca il numero della riga: %1", {rifiuto.nome + "[1]"});
        case MotivoRifiuto::rigaAssente:
            return senzaLaRiga(rifiuto);
        case MotivoRifiuto::nonNumero:
            return frase("non è un numero");
        case MotivoRifiuto::virgola:
            return frase("il segno decimale è il punto: %1",
                         {base::conIlPunto(rifiuto.scritto).value_or(rifiuto.scritto)});
        case MotivoRifiuto::fuoriLimiti:
            return fuoriLimiti(*rifiuto.campo);
        case MotivoRifiuto::nonIntero:
            return frase("deve essere un numero intero");
        case MotivoRifiuto::codiceIgnoto:
            return frase("valori ammessi: %1", {codiciAmmessi(*rifiuto.campo)});
        case MotivoRifiuto::nonConservato:
            return frase("un file si riapre sempre con Coulomb; scegliere il metodo con %1",
                         {base::nomeOpzioneMetodo.mostrato()});
        case MotivoRifiuto::carattere:
            return frase("un testo sta in una riga e ha solo i caratteri di Windows-1252");
        case MotivoRifiuto::troppoLungo:
            return frase("al massimo %1 caratteri", {std::to_string(project::caratteriTitolo)});
    }
    return {};
}

std::string profondita(const project::DatiProgetto& dati, const Campo& campo, int riga) {
    return nomeStabile(campo, riga) + " = " +
           base::testoNumero(mostrato(campo, numeroConservato(dati, campo, riga))) + ' ' +
           std::string(campo.unita.mostrata);
}

}  // namespace

std::string parole(const Rifiuto& rifiuto) {
    const bool delValore = rifiuto.motivo >= MotivoRifiuto::nonNumero;
    const std::string cosa =
        delValore ? nomeConUnita(rifiuto.nome, *rifiuto.campo) + " = " + rifiuto.scritto
                  : rifiuto.nome;
    return base::conDuePunti(cosa, perche(rifiuto));
}

std::string parole(const project::Disordine& disordine, const project::DatiProgetto& dati) {
    return frase("%1 viene dopo %2: le righe vanno in ordine di profondità",
                 {profondita(dati, *disordine.campo, disordine.riga),
                  profondita(dati, *disordine.campo, disordine.riga - 1)});
}

std::string codiciAmmessi(const Campo& campo) {
    std::string testo;
    for (const project::Codice& codice : campo.codici)
        testo.append(testo.empty() ? "" : ", ")
            .append(base::testoNumero(codice.valore))
            .append(" (")
            .append(codice.nome)
            .append(")");
    return testo;
}

}  // namespace korven::studies
