#pragma once

#include <string>
#include <type_traits>
#include <utility>

#include "project/codes.hpp"
#include "project/project_data.hpp"

// Walls for tests, in the units in which a project stores them: metres, tonnes-force, degrees.

namespace korven::test {

/// A layer; what a test does not name is that of sand.
struct Strato {
    double fondo = 20;             ///< depth of its lower boundary [m]
    double gammaN = 1.8;           ///< natural unit weight [t/m3]
    double gammaSat = 2;           ///< saturated unit weight [t/m3]
    double phi = 30;               ///< friction angle [degrees]
    double coesione = 0;           ///< c' [t/m2]
    double su = 0;                 ///< undrained strength [t/m2]
    double ks = 1500;              ///< subgrade modulus [t/m3]
    std::string descrizione = {};  ///< graphic code, then description
};

/// An excavation stage; without a word of it the ground is untouched and dry.
struct Fase {
    double scavo = 0;         ///< depth of the excavation [m]
    double tiranti = 0;       ///< anchors in place, counted from the first
    double sovraccarico = 0;  ///< on the excavated side [t/m2]
    double falda = 50;        ///< depth of the downhill water table [m]
};

/// Adds a layer below those already there.
inline void aggiungiStrato(project::DatiProgetto& d, const Strato& strato) {
    const int j = ++d.nStrati;
    d.profStrato[j] = strato.fondo;
    d.gammaN[j] = strato.gammaN;
    d.gammaSat[j] = strato.gammaSat;
    d.phiStrato[j] = strato.phi;
    d.coesione[j] = strato.coesione;
    d.suStrato[j] = strato.su;
    d.ksStrato[j] = strato.ks;
    d.descrStrato[j] = strato.descrizione;
}

/// Adds an anchor after those already there: depth of its head [m], stiffness [t/m], prestress [t]
/// and the code of its kind, 0 for tension only.
inline void aggiungiTirante(project::DatiProgetto& d, double profondita, double rigidezza,
                            double pretensione = 0, double tipo = 0) {
    const int a = ++d.nTiranti;
    d.profTirante[a] = profondita;
    d.rigTirante[a] = rigidezza;
    d.pretTirante[a] = pretensione;
    d.tipoTirante[a] = tipo;
}

/// Adds a stage. @return its number
inline int aggiungiFase(project::DatiProgetto& d, const Fase& fase) {
    const int k = ++d.nFasi;
    d.profFase[k] = fase.scavo;
    d.tirantiFase[k] = fase.tiranti;
    d.sovraccFase[k] = fase.sovraccarico;
    d.faldaFase[k] = fase.falda;
    return k;
}

/// Repeats stage 1 with another number of anchors; the caller changes the rest. @return its number
inline int ripetiFase(project::DatiProgetto& d, double tiranti) {
    return aggiungiFase(d, {d.profFase[1], tiranti, d.sovraccFase[1], d.faldaFase[1]});
}

/// A project as it is after "new": no rows, no length, no codes.
inline project::DatiProgetto progettoVuoto() {
    project::DatiProgetto d;
    project::azzera(d);
    return d;
}

/// Gives each code of the wall its first value: free ends, all computed anew in each stage from
/// effective stresses, Coulomb, Bowles.
inline void primiCodici(project::DatiProgetto& d) {
    d.vincoloTesta = valore(project::VincoloTesta::libera);
    d.vincoloPiede = valore(project::VincoloPiede::libero);
    d.modoSpinte = valore(project::ModoSpinte::ricalcolate);
    d.modoKs = valore(project::ModoKs::ricalcolato);
    d.modoTensioni = valore(project::ModoTensioni::efficaci);
    d.metodoSpinte = valore(project::MetodoSpinte::coulomb);
    d.metodoKs = valore(project::MetodoKs::bowles);
}

/// A wall told in one sentence:
///
///     muro().lungo(12).strato({.fondo = 20, .phi = 34}).tirante(1.5, 500, 5).fase({.scavo = 4})
///
/// It begins as a free wall of 10 m and 10,000 t m2 in dry ground, with Coulomb's pressures and a
/// constant ks, all computed anew in each stage from effective stresses. A wall for which nobody
/// names a layer is in 20 m of sand; one for which nobody names a stage is not dug out.
class Muro {
 public:
    Muro() : d_(progettoVuoto()) {
        primiCodici(d_);
        d_.metodoKs = valore(project::MetodoKs::costante);
        d_.lunghezzaParatia = 10;
        d_.rigidezzaEJ = 10000;
        d_.faldaMonte = 50;
    }

    Muro& lungo(double metri) { return con(&project::DatiProgetto::lunghezzaParatia, metri); }
    Muro& rigido(double EJ) { return con(&project::DatiProgetto::rigidezzaEJ, EJ); }  ///< [t m2]
    Muro& falda(double monte) { return con(&project::DatiProgetto::faldaMonte, monte); }
    Muro& sovraccarico(double monte) { return con(&project::DatiProgetto::sovraccMonte, monte); }
    Muro& titolo(int riga, std::string testo) {
        d_.titoli[riga] = std::move(testo);
        return *this;
    }
    Muro& strato(const Strato& uno) {
        aggiungiStrato(d_, uno);
        return *this;
    }
    Muro& tirante(double profondita, double rigidezza, double pretensione = 0, double tipo = 0) {
        aggiungiTirante(d_, profondita, rigidezza, pretensione, tipo);
        return *this;
    }
    Muro& fase(const Fase& una) {
        aggiungiFase(d_, una);
        return *this;
    }
    /// Any other field of the project.
    template <class T>
    Muro& con(T project::DatiProgetto::*campo, std::type_identity_t<T> valore) {
        d_.*campo = std::move(valore);
        return *this;
    }

    [[nodiscard]] project::DatiProgetto dati() const {
        auto d = d_;
        if (d.nStrati == 0) aggiungiStrato(d, {});
        if (d.nFasi == 0) aggiungiFase(d, {});
        return d;
    }

 private:
    project::DatiProgetto d_;
};

inline Muro muro() { return {}; }

}  // namespace korven::test
