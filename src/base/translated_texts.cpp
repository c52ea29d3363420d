#include "base/translated_texts.hpp"

#include "base/case_form.hpp"
#include "base/code_page.hpp"
#include "base/files.hpp"
#include "base/language.hpp"
#include "base/text_lines.hpp"

namespace korven::base {

namespace {

int lingua = colonnaItaliano;
Dialogo* modoProva = nullptr;

bool unitaDiMisura(std::string_view s) { return s.starts_with('[') && s.ends_with(']'); }
bool nonTradotto(std::string_view s) { return s.starts_with('@'); }

// Row 0 of a record belongs to no language, so a code of 0 must not read it.
const std::string& colonna(const RecordTesti& record, int codice) {
    if (codice == 0) throw ErroreIndice(codice, numeroLingue);
    return record.testo[codice];
}

// The boxes of the test mode. Their titles are texts like all others, but a gap among them is told
// by no further box.
class Segnalatore {
 public:
    Segnalatore(const TabellaTesti& testi, int codice, Dialogo* dialogo)
        : testi_(testi), codice_(codice), dialogo_(dialogo) {}

    void segnala(std::string_view titolo, std::string_view testo,
                 std::string_view coda = {}) const {
        if (!dialogo_) return;
        std::string intero = traduci(testi_, codice_, titolo);
        if (!coda.empty()) intero.append(" ").append(coda);
        dialogo_->messaggio(testo, intero, Icona::nessuna);
    }

 private:
    const TabellaTesti& testi_;
    int codice_;
    Dialogo* dialogo_;
};

const RecordTesti* cercaRecord(const TabellaTesti& testi, const TabellaTesti* aggiunti,
                               std::string_view testo) {
    for (const TabellaTesti* tabella : {&testi, aggiunti}) {
        const int riga = tabella ? cercaTesto(*tabella, testo) : 0;
        if (riga > 0) return &tabella->righe[static_cast<std::size_t>(riga)];
    }
    return nullptr;
}

void leggiTesti(TabellaTesti& testi, const std::string& percorso) {
    LettoreRighe file = LettoreRighe::apri(percorso);
    aggiungiTesti(testi, file);
}

}  // namespace

std::string traduci(const TabellaTesti& testi, int codice, std::string_view testo, Dialogo* prova,
                    const TabellaTesti* aggiunti) {
    std::string s(senzaSpaziEsterni(testo));
    if (codice == colonnaItaliano || unitaDiMisura(s)) return s;

    const Segnalatore box(testi, codice, prova);
    const RecordTesti* trovato = cercaRecord(testi, aggiunti, s);
    if (!trovato) {
        box.segnala("Testo Mancante", s);
        return s;
    }
    const RecordTesti& record = *trovato;
    std::string t = colonna(record, codice);
    if (nonTradotto(t)) {
        t = record.testo[colonnaInglese];
        box.segnala("Testo Non Tradotto in", s, siglaLingua(codice));
    }
    if (nonTradotto(t)) {
        t = s;
        box.segnala("Testo Non Tradotto Neanche in Inglese", s);
    }
    if (s != record.testo[colonnaItaliano]) {
        t = conFormaDi(s, t);
        // The two forms of this short word appear in the boxes of every system; they need no eye.
        if (maiuscolo(s) != "NO") box.segnala("Verificare maiuscole", s + "\n" + t);
    }
    return t;
}

std::string traduttore(std::string_view testo) {
    return traduci(tabellaTesti, lingua, testo, modoProva, &testiAggiunti);
}

void caricaTesti(const std::string& percorsoComuni, const std::string& percorsoModulo,
                 const std::string& percorsoAggiunti) {
    const auto vuota = [] { tabellaTesti.nTesti = testiAggiunti.nTesti = 0; };
    vuota();
    try {
        leggiTesti(tabellaTesti, percorsoComuni);
        leggiTesti(tabellaTesti, percorsoModulo);
        if (esisteFile(percorsoAggiunti)) leggiTesti(testiAggiunti, percorsoAggiunti);
    } catch (...) {
        vuota();
        throw;
    }
    ordinaTesti(tabellaTesti);
    ordinaTesti(testiAggiunti);
}

void impostaLingua(int codice) { lingua = codice; }
int linguaCorrente() { return lingua; }
void impostaModoProva(Dialogo* dialogo) { modoProva = dialogo; }
bool inModoProva() { return modoProva != nullptr; }

}  // namespace korven::base
