#include "report/lines.hpp"

#include "base/translated_texts.hpp"
#include "project/shown_number.hpp"

namespace korven::report {

namespace {

using project::numeroRelazione;

void cella(std::string& riga, std::string_view testo) {
    if (!riga.empty()) riga += '\t';
    riga += testo;
}

// A number that is no code is called as the last one.
std::string_view vocePrevista(const project::Campo& campo, double valore) {
    const auto* codice = project::codice(campo, valore);
    return codice != nullptr ? codice->voce : campo.codici.back().voce;
}

}  // namespace

Voce voce(const project::DatiProgetto& dati, const project::Membro& membro, bool presente) {
    const project::Campo& campo = project::campo(membro);
    return {etichetta(campo), mostrato(dati, campo), presente};
}

Voce voce(std::string_view didascalia, const project::Unita& unita, double conservato,
          bool presente) {
    return {etichetta(didascalia, unita), mostrato(unita, conservato), presente};
}

void RigheRelazione::riga(std::string_view testo) { testo_.append(testo).append("\r\n"); }

void RigheRelazione::titolo(std::string_view chiave) { riga(base::traduttore(chiave)); }

void RigheRelazione::intestazione(const std::vector<std::string>& chiavi) {
    std::string celle;
    for (const auto& chiave : chiavi) cella(celle, base::traduttore(chiave));
    riga(celle);
}

void RigheRelazione::intestazione(std::span<const project::Membro> colonne) {
    std::vector<std::string> chiavi;
    for (const auto& colonna : colonne) chiavi.push_back(etichetta(project::campo(colonna)));
    intestazione(chiavi);
}

void RigheRelazione::valori(const std::vector<double>& numeri, std::string_view chiave) {
    std::string celle;
    for (const double valore : numeri) cella(celle, numeroRelazione(valore));
    if (!chiave.empty()) cella(celle, base::traduttore(chiave));
    riga(celle);
}

void RigheRelazione::valori(const project::DatiProgetto& dati,
                            std::span<const project::Membro> colonne, int numero) {
    std::vector<double> numeri;
    std::string_view parola;
    for (const auto& colonna : colonne) {
        const project::Campo& campo = project::campo(colonna);
        if (campo.codici.empty())
            numeri.push_back(mostrato(dati, campo, numero));
        else
            parola = vocePrevista(campo, project::numeroConservato(dati, campo, numero));
    }
    valori(numeri, parola);
}

void RigheRelazione::lista(const std::vector<Voce>& voci) {
    riga("#STARTLIST");
    for (const auto& voce : voci)
        if (voce.presente)
            riga(base::traduttore(voce.etichetta) + '\t' + numeroRelazione(voce.valore));
    riga("#ENDLIST");
}

}  // namespace korven::report
