#include "masks/grid_cells.hpp"

#include <cassert>

#include "base/code_page.hpp"

namespace korven::masks {

CelleGriglia::CelleGriglia(int colonne)
    : colonne_(colonne),
      celle_(static_cast<std::size_t>(righe) * static_cast<std::size_t>(colonne)) {}

std::size_t CelleGriglia::posto(int riga, int colonna) const {
    assert(riga >= 1 && riga <= righe && colonna >= 1 && colonna <= colonne_);
    return static_cast<std::size_t>((riga - 1) * colonne_ + colonna - 1);
}

const std::string& CelleGriglia::testo(int riga, int colonna) const {
    return celle_.at(posto(riga, colonna));
}

void CelleGriglia::scrivi(int riga, int colonna, std::string_view testo) {
    celle_.at(posto(riga, colonna)) = base::comeNeiFile(testo);
}

bool CelleGriglia::piena(int riga, int colonna) const {
    return !base::senzaSpaziEsterni(testo(riga, colonna)).empty();
}

bool CelleGriglia::haDati(int riga) const {
    for (int c = 1; c <= colonne_; ++c)
        if (piena(riga, c)) return true;
    return false;
}

int CelleGriglia::righeConDati() const {
    int quante = 0;
    for (int r = 1; r <= righe; ++r) quante += haDati(r) ? 1 : 0;
    return quante;
}

bool CelleGriglia::haVuoti(int riga) const {
    for (int c = 1; c <= colonne_; ++c)
        if (!piena(riga, c)) return true;
    return false;
}

int CelleGriglia::ultimaRiga(int fino) const {
    for (int r = righe; r >= fino; --r)
        if (haDati(r)) return r;
    return 0;
}

bool CelleGriglia::inserisci(int riga) {
    const int ultima = ultimaRiga();
    if (riga > ultima || ultima >= righe) return false;
    for (int c = 1; c <= colonne_; ++c) {
        for (int r = ultima; r >= riga; --r) scrivi(r + 1, c, testo(r, c));
        scrivi(riga, c, "");
    }
    return true;
}

bool CelleGriglia::elimina(int riga) {
    const int ultima = ultimaRiga();
    if (riga > ultima) return false;
    for (int c = 1; c <= colonne_; ++c) {
        for (int r = riga; r < ultima; ++r) scrivi(r, c, testo(r + 1, c));
        scrivi(ultima, c, "");
    }
    return true;
}

std::vector<std::string> CelleGriglia::impacchettate() const {
    std::vector<std::string> lista(1);
    int tenute = 0;
    for (int r = 1; r <= righe; ++r) {
        if (!haDati(r)) continue;
        ++tenute;
        for (int c = 1; c <= colonne_; ++c) lista.push_back(testo(r, c));
    }
    lista[0] = std::to_string(tenute);
    return lista;
}

std::string CelleGriglia::copia(int riga) const {
    const int trovata = ultimaRiga(riga);
    const int ultima = trovata > 0 ? trovata : riga - 1;
    std::string copiato;
    for (int r = 1; r <= ultima; ++r) {
        if (r > 1) copiato += "\r\n";
        for (int c = 1; c <= colonne_; ++c) {
            if (c > 1) copiato += '\t';
            copiato += testo(r, c);
        }
    }
    return copiato;
}

}  // namespace korven::masks
