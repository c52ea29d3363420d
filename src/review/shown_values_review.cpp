#include <cmath>

#include "base/translated_texts.hpp"
#include "review/list.hpp"
#include "structure/section_type.hpp"

namespace korven::review {

namespace {

using base::traduttore;
using project::DatiProgetto;
using project::Sezione;
using structure::TipoSezione;

// The fields shown ten times as large as they are stored, with their names in a review.

constexpr double mostrato = 10;

template <class Colonna>
struct CampoRiga {
    Colonna DatiProgetto::*colonna;
    std::string_view etichetta;
};

constexpr CampoRiga<base::Tabella<double, project::massimoStrati>> strati[] = {
    {&DatiProgetto::gammaN, "Gamma [kN/m³]"},
    {&DatiProgetto::gammaSat, "Gamma Sat. [kN/m³]"},
    {&DatiProgetto::coesione, "Coes. [kN/m²]"},
    {&DatiProgetto::ksStrato, "ks [kN/m³]"},
};

constexpr CampoRiga<base::Tabella<double, project::massimoTiranti>> tiranti[] = {
    {&DatiProgetto::rigTirante, "Rigidezza [kN/m]"},
    {&DatiProgetto::pretTirante, "Pretens. [kN]"},
};

constexpr CampoRiga<base::Tabella<double, 50>> fasi[] = {
    {&DatiProgetto::sovraccFase, "Sovracc. [kN/m²]"},
};

struct CampoSolo {
    double DatiProgetto::*campo;
    std::string_view etichetta;
};

constexpr CampoSolo campiSoli[] = {
    {&DatiProgetto::rigidezzaEJ, "Rigidezza EJ diaframma [kN m²]"},
    {&DatiProgetto::pressioneOrizz, "Pressione orizzontale costante [kN/m²]"},
    {&DatiProgetto::sovraccMonte, "Sovraccarico verticale lato monte [kN/m²]"},
    {&DatiProgetto::momentoTesta, "Momento esterno applicato alla sommità del diaframma [kN m]"},
    {&DatiProgetto::forzaTesta,
     "Forza orizzontale esterna applicata alla sommità del diaframma [kN]"},
    {&DatiProgetto::sforzoNormale, "sforzo normale"},
};

// Of the section only the type in force is shown. `dove` names a face of the diaphragm.
struct CampoSezione {
    TipoSezione tipo;
    double Sezione::*campo;
    std::string_view etichetta;
    std::string_view dove = {};
};

constexpr CampoSezione campiSezione[] = {
    {TipoSezione::diaframma, &Sezione::spessoreDiaframma, "spessore del diaframma"},
    {TipoSezione::diaframma, &Sezione::copriferroMonte, "Copriferro [mm]", "lato monte"},
    {TipoSezione::diaframma, &Sezione::interasseMonte, "Interasse armature [mm]", "lato monte"},
    {TipoSezione::diaframma, &Sezione::diametroMonte, "Diametro armature [mm]", "lato monte"},
    {TipoSezione::diaframma, &Sezione::copriferroValle, "Copriferro [mm]", "lato valle"},
    {TipoSezione::diaframma, &Sezione::interasseValle, "Interasse armature [mm]", "lato valle"},
    {TipoSezione::diaframma, &Sezione::diametroValle, "Diametro armature [mm]", "lato valle"},
    {TipoSezione::pali, &Sezione::paliDiamEst, "Diametro esterno [mm]"},
    {TipoSezione::pali, &Sezione::paliDiamInt, "Diametro interno [mm]"},
    {TipoSezione::pali, &Sezione::paliInterasse, "interasse dei pali"},
    {TipoSezione::palancola, &Sezione::palancolaBase, "base della palancola"},
    {TipoSezione::palancola, &Sezione::palancolaLargAla, "Larghezza ala [mm]"},
    {TipoSezione::palancola, &Sezione::palancolaAltAla, "Altezza ala [mm]"},
    {TipoSezione::palancola, &Sezione::palancolaSpessore, "Spessore palancola [mm]"},
    {TipoSezione::palancola, &Sezione::palancolaSpessAla, "Spessore ala [mm]"},
    {TipoSezione::paliArmati, &Sezione::armInterasse, "interasse dei pali armati"},
    {TipoSezione::paliArmati, &Sezione::armDiamPalo, "Diametro pali [mm]"},
    {TipoSezione::paliArmati, &Sezione::armDiamLong, "Diametro armature longitudinali [mm]"},
    {TipoSezione::paliArmati, &Sezione::armNumLong, "Numero armature logitudinali [-]"},
    {TipoSezione::paliArmati, &Sezione::armCopriferro, "Copriferro armature logitudinali [mm]"},
    {TipoSezione::paliArmati, &Sezione::armDiamStaffe, "Diametro staffe [mm]"},
    {TipoSezione::paliArmati, &Sezione::armPassoStaffe, "Passo staffe [mm]"},
};

void esamina(double valore, const std::string& campo, ElencoRilievi& elenco) {
    if (std::isfinite(valore * mostrato)) return;
    elenco.impedimento(campo + ": " + traduttore("valore troppo grande per essere mostrato"));
}

template <class Colonna, std::size_t n>
void esaminaRighe(const DatiProgetto& dati, const CampoRiga<Colonna> (&campi)[n],
                  std::string_view nome, int righe, ElencoRilievi& elenco) {
    for (int j = 1; j <= righe; ++j)
        for (const auto& [colonna, etichetta] : campi)
            esamina((dati.*colonna)[j], rigaNumerata(nome, j, etichetta), elenco);
}

}  // namespace

void controlloMostrati(const DatiProgetto& dati, ElencoRilievi& elenco) {
    esaminaRighe(dati, strati, "strato", dati.nStrati, elenco);
    for (const auto& [campo, etichetta] : campiSoli)
        esamina(dati.*campo, traduttore(etichetta), elenco);
    esaminaRighe(dati, tiranti, "tirante", dati.nTiranti, elenco);
    esaminaRighe(dati, fasi, "fase", dati.nFasi, elenco);
    for (const auto& [tipo, campo, etichetta, dove] : campiSezione) {
        if (tipo != structure::tipoSezione(dati.sezione)) continue;
        const std::string faccia = dove.empty() ? std::string() : traduttore(dove) + ": ";
        esamina(dati.sezione.*campo, faccia + traduttore(etichetta), elenco);
    }
}

bool mostrabile(const DatiProgetto& dati) {
    ElencoRilievi elenco;
    controlloMostrati(dati, elenco);
    return elenco.ordinato().empty();
}

}  // namespace korven::review
