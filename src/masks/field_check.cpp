#include "masks/field_check.hpp"

#include "base/code_page.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "masks/column_keys.hpp"
#include "masks/field_type.hpp"

namespace korven::masks {

namespace {

bool cifra(char c) { return c >= '0' && c <= '9'; }

// True when the text begins with a number, of whatever size.
bool cominciaConNumero(std::string_view testo) {
    if (testo.starts_with('-') || testo.starts_with('+')) testo.remove_prefix(1);
    if (testo.starts_with('.')) testo.remove_prefix(1);
    return !testo.empty() && cifra(testo.front());
}

std::string_view frase(Vizio vizio) {
    switch (vizio) {
        case Vizio::intervallo:
            return "Vi e' un errore di digitazione del valore introdotto o il valore è fuori dal "
                   "range previsto; deve infatti appartenere all'intervallo:";
        case Vizio::alfanumerico:
            return "Non sono ammessi caratteri alfanumerici in un campo di tipo numerico.";
        case Vizio::lunghezza:
            return "Il dato introdotto eccede la lunghezza ammessa. Viene quindi troncato alla "
                   "massima lunghezza ammissibile.";
        case Vizio::chiave:
            return "Il dato inserito non e' compreso tra quelli ammissibili.";
        case Vizio::nessuno:
            break;
    }
    return {};
}

}  // namespace

Vizio controllaNumero(std::string_view testo, double minimo, double massimo) {
    const std::string_view interno = base::senzaSpaziEsterni(testo);
    if (interno.empty()) return Vizio::nessuno;
    // A blank is among the allowed characters only outside the number.
    if (interno.find_first_not_of("+-.1234567890eE") != std::string_view::npos)
        return Vizio::alfanumerico;
    const auto letto = base::leggiNumero(interno);
    if (!letto && cominciaConNumero(interno)) return Vizio::intervallo;
    const double valore = letto.value_or(0);
    return valore < minimo || valore > massimo ? Vizio::intervallo : Vizio::nessuno;
}

Vizio controllaCampo(const CampoMaschera& campo, std::string_view testo) {
    const TipoCampo tipo = tipoCampo(campo.tipo);
    if (tipo.numero) return controllaNumero(testo, campo.minimo, campo.massimo);
    const bool lungo = !tipo.illimitato && base::numeroCaratteri(testo) > tipo.lunghezza;
    return lungo ? Vizio::lunghezza : Vizio::nessuno;
}

Vizio controllaCella(const CampoMaschera& colonna, std::string_view testo) {
    if (base::senzaSpaziEsterni(testo).empty()) return Vizio::nessuno;
    if (!ammessa(colonna.aiuto, testo)) return Vizio::chiave;
    const TipoColonna tipo = tipoColonna(colonna.tipo);
    if (!tipo.testo) return controllaNumero(testo, colonna.minimo, colonna.massimo);
    const bool lungo = !tipo.illimitato && base::numeroCaratteri(testo) > tipo.lunghezza;
    return lungo ? Vizio::lunghezza : Vizio::nessuno;
}

std::string tagliato(std::string_view testo, std::size_t caratteri) {
    std::size_t fine = 0;
    for (std::size_t n = 0; n < caratteri && fine < testo.size(); ++n)
        fine += base::lunghezzaPrimoCarattere(testo.substr(fine));
    return std::string(testo.substr(0, fine));
}

void segnala(Vizio vizio, const CampoMaschera& campo, std::string_view titolo,
             std::string_view aCapo, base::Dialogo& dialogo) {
    std::string testo = base::traduttore(frase(vizio));
    if (vizio == Vizio::intervallo)
        testo.append(aCapo)
            .append(base::testoNumero(campo.minimo))
            .append("; ")
            .append(base::testoNumero(campo.massimo));
    dialogo.messaggio(testo, titolo, base::Icona::stop);
}

}  // namespace korven::masks
