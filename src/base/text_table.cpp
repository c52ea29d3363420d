#include "base/text_table.hpp"

#include <utility>

#include "base/code_page.hpp"
#include "base/text_lines.hpp"

namespace korven::base {

TabellaTesti tabellaTesti;
TabellaTesti testiAggiunti{massimoTestiAggiunti};

RecordTesti& TabellaTesti::nuovaRiga() {
    righe.resize(static_cast<std::size_t>(++nTesti));
    return righe.emplace_back();
}

std::string chiaveTesto(std::string_view testo) { return inCp1252(maiuscolo(testo)); }

void aggiungiTesti(TabellaTesti& testi, LettoreRighe& file) {
    while (!file.fine()) {
        RecordTesti record;
        for (int lingua = 1; lingua <= numeroLingue; ++lingua)
            record.testo[lingua] = file.riga("le sei traduzioni di un testo");
        if (testi.nTesti == testi.capacita)
            file.rifiuta("attesi non più di " + std::to_string(testi.capacita) +
                         " testi in tutti i file insieme");
        testi.nuovaRiga() = std::move(record);
        if (!file.fine()) file.riga("la riga che separa due testi");
    }
}

// Shell's method: passes of exchanges over pairs `passo` rows apart. A pass ends where the one
// before it made its last exchange, as everything after that is in order already.
void ordinaTesti(TabellaTesti& testi) {
    auto& righe = testi.righe;
    for (int i = 1; i <= testi.nTesti; ++i)
        righe[i].chiave = chiaveTesto(righe[i].testo[colonnaItaliano]);

    for (int passo = testi.nTesti / 2; passo > 0; passo /= 2) {
        int limite = testi.nTesti - passo;
        while (limite > 0) {
            int ultimoScambio = 0;
            for (int i = 1; i <= limite; ++i) {
                if (righe[i].chiave <= righe[i + passo].chiave) continue;
                std::swap(righe[i], righe[i + passo]);
                ultimoScambio = i;
            }
            limite = ultimoScambio;
        }
    }
}

int cercaTesto(const TabellaTesti& testi, std::string_view testo) {
    // A character that the code page lacks would be compared as '?' and so match a question mark.
    if (testi.nTesti == 0 || !rappresentabile(testo)) return 0;
    const std::string cercata = chiaveTesto(testo);
    int basso = 1;
    int alto = testi.nTesti;
    if (testi.righe[basso].chiave == cercata) return basso;
    if (testi.righe[alto].chiave == cercata) return alto;
    while (alto - basso >= 2) {
        const int mezzo = (basso + alto) / 2;
        const int confronto = cercata.compare(testi.righe[mezzo].chiave);
        if (confronto == 0) return mezzo;
        (confronto < 0 ? alto : basso) = mezzo;
    }
    return 0;
}

}  // namespace korven::base
