#pragma once

#include <string>

#include "base/table.hpp"
#include "project/section.hpp"

namespace korven::project {

inline constexpr int massimoStrati = 100;
inline constexpr int massimoTiranti = 20;
inline constexpr int massimoFasi = 20;
inline constexpr int numeroTitoli = 6;
inline constexpr int caratteriTitolo = 80;  ///< that the editor takes for a heading

/// The whole data set of one retaining-wall project. Forces in tonnes-force, lengths of the
/// geometry in metres, lengths of the section in centimetres; the user sees kN and mm, ten times
/// these numbers. Tables are counted from 1; row 0 stays 0 and is the ground level and the state
/// before the first stage.
///
/// All members start at 0, empty and false, the state of a program in which no reset has run yet;
/// `azzera` gives the defaults of a new project.
struct DatiProgetto {
    // Soil layers, rows 1 to nStrati.
    int nStrati = 0;
    base::Tabella<double, massimoStrati> profStrato;        ///< depth of the lower boundary [m]
    base::Tabella<double, massimoStrati> gammaN;            ///< natural unit weight [t/m3]
    base::Tabella<double, massimoStrati> gammaSat;          ///< saturated unit weight [t/m3]
    base::Tabella<double, massimoStrati> phiStrato;         ///< friction angle [degrees]
    base::Tabella<double, massimoStrati> coesione;          ///< cohesion c' [t/m2]
    base::Tabella<double, massimoStrati> suStrato;          ///< undrained strength [t/m2]
    base::Tabella<double, massimoStrati> ksStrato;          ///< subgrade modulus [t/m3]
    base::Tabella<std::string, massimoStrati> descrStrato;  ///< graphic code, then description

    // Wall and ground. The codes (codes.hpp) are numbers as the file holds them; a value that is no
    // code of the field acts as each use of it says.
    double vincoloTesta = 0;       ///< top: VincoloTesta
    double vincoloPiede = 0;       ///< toe: VincoloPiede
    double modoSpinte = 0;         ///< vertical stress downhill: ModoSpinte
    double modoKs = 0;             ///< ks downhill: ModoKs
    double modoTensioni = 0;       ///< effective or total stresses: ModoTensioni
    double opzioneRiservata = 0;   ///< carried through load, save and comparison; nothing reads it
    double metodoSpinte = 0;       ///< earth pressures: MetodoSpinte
    double metodoKs = 0;           ///< subgrade modulus: MetodoKs
    double lunghezzaParatia = 0;   ///< wall length [m]
    double rigidezzaEJ = 0;        ///< bending stiffness per metre [t m2]; 0: not yet given
    double coeffM = 0;             ///< coefficient m of Lancellotta's ks
    double pressioneOrizz = 0;     ///< constant horizontal pressure [t/m2]
    double sovraccMonte = 0;       ///< uphill surcharge [t/m2]
    double momentoTesta = 0;       ///< external moment at the top [t m]
    double forzaTesta = 0;         ///< external horizontal force at the top [t]
    double sforzoNormale = 0;      ///< axial force, bending check only [t]
    double inclinazioneMonte = 0;  ///< slope of the uphill ground [degrees]
    double faldaMonte = 0;         ///< uphill water table depth [m]
    /// Downhill water table depth [m]. A working value: each stage of a run overwrites it, and the
    /// file records what the last run left.
    double faldaValle = 0;
    double gammaAcqua = 0;  ///< unit weight of water [t/m3]

    // Anchors, rows 1 to nTiranti, sorted by depth.
    int nTiranti = 0;
    base::Tabella<double, massimoTiranti> profTirante;  ///< depth of the head [m]
    base::Tabella<double, massimoTiranti> rigTirante;   ///< axial stiffness [t/m]
    base::Tabella<double, massimoTiranti> pretTirante;  ///< prestress [t]
    /// TipoTirante. Any other value acts as tension only, though the report calls it tension and
    /// compression.
    base::Tabella<double, massimoTiranti> tipoTirante;

    // Excavation stages, rows 1 to nFasi. The four columns have capacities of their own; only rows
    // 1 to 20 are ever used.
    int nFasi = 0;
    base::Tabella<double, 20> profFase;     ///< excavation depth [m]
    base::Tabella<double, 20> tirantiFase;  ///< anchors in place, counted from row 1
    base::Tabella<double, 50> sovraccFase;  ///< surcharge of the stage [t/m2]
    base::Tabella<double, 100> faldaFase;   ///< downhill water table depth [m]

    base::Tabella<std::string, numeroTitoli> titoli;  ///< heading lines of the report

    Sezione sezione;

    bool operator==(const DatiProgetto&) const = default;
};

/// Gives every field its default: 0, empty and false, but 1 for the weight of water and a
/// continuous wall for the section. Of the layer table rows 1 to 50 are cleared, of the anchor and
/// stage tables rows 1 to 20; rows beyond keep what they held, out of the reach of the counts.
void azzera(DatiProgetto& dati);

/// The one project of the program and the state of its document, program-wide.
extern DatiProgetto Progetto;
extern std::string fileCorrente;  ///< full path of the project file [UTF-8]; empty: no project open
extern bool modificato;           ///< the data differ from the file
extern int faseGrafico;           ///< stage that the result diagrams draw; 0: all

/// Resets `Progetto` and `faseGrafico`; `fileCorrente` and `modificato` are the caller's.
void azzeraProgetto();

}  // namespace korven::project
