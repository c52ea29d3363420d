#include "report/report_lines.hpp"

#include "base/number_text.hpp"
#include "base/translated_texts.hpp"

namespace korven::report {

namespace {

std::string numero(double valore) { return base::formattaDecimali(valore, 2); }

void cella(std::string& riga, std::string_view testo) {
    if (!riga.empty()) riga += '\t';
    riga += testo;
}

}  // namespace

void RigheRelazione::riga(std::string_view testo) { testo_.append(testo).append("\r\n"); }

void RigheRelazione::titolo(std::string_view chiave) { riga(base::traduttore(chiave)); }

void RigheRelazione::intestazione(std::initializer_list<std::string_view> chiavi) {
    std::string celle;
    for (const auto chiave : chiavi) cella(celle, base::traduttore(chiave));
    riga(celle);
}

void RigheRelazione::valori(std::initializer_list<double> numeri, std::string_view chiave) {
    std::string celle;
    for (const double valore : numeri) cella(celle, numero(valore));
    if (!chiave.empty()) cella(celle, base::traduttore(chiave));
    riga(celle);
}

void RigheRelazione::lista(const std::vector<Voce>& voci) {
    riga("#STARTLIST");
    for (const auto& voce : voci)
        if (voce.presente) riga(base::traduttore(voce.etichetta) + '\t' + numero(voce.valore));
    riga("#ENDLIST");
}

}  // namespace korven::report
