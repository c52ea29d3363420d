#pragma once

#include <string_view>

#include "project/project_data.hpp"

// The fields of the project file in the order of its lines, each with the name by which an error
// calls it, an Italian key. Reading, writing and comparing all walk these tables.

namespace korven::project {

template <class Colonna>
struct CampoTabella {
    Colonna DatiProgetto::*colonna;
    std::string_view nome;
};

template <class Record>
struct CampoScalare {
    double Record::*campo;
    std::string_view nome;
};

inline constexpr CampoTabella<base::Tabella<double, massimoStrati>> campiStrato[] = {
    {&DatiProgetto::profStrato, "profondità dello strato"},
    {&DatiProgetto::gammaN, "peso naturale dello strato"},
    {&DatiProgetto::gammaSat, "peso saturo dello strato"},
    {&DatiProgetto::phiStrato, "angolo di attrito dello strato"},
    {&DatiProgetto::coesione, "coesione dello strato"},
    {&DatiProgetto::suStrato, "resistenza non drenata dello strato"},
    {&DatiProgetto::ksStrato, "modulo ks dello strato"},
};

inline constexpr CampoScalare<DatiProgetto> campiParatia[] = {
    {&DatiProgetto::vincoloTesta, "vincolo in testa"},
    {&DatiProgetto::vincoloPiede, "vincolo al piede"},
    {&DatiProgetto::modoSpinte, "opzione delle spinte"},
    {&DatiProgetto::modoKs, "opzione di ks"},
    {&DatiProgetto::modoTensioni, "opzione delle tensioni"},
    {&DatiProgetto::opzioneRiservata, "opzione riservata"},
    {&DatiProgetto::metodoSpinte, "metodo delle spinte"},
    {&DatiProgetto::metodoKs, "metodo di ks"},
    {&DatiProgetto::lunghezzaParatia, "lunghezza della paratia"},
    {&DatiProgetto::rigidezzaEJ, "rigidezza EJ"},
    {&DatiProgetto::coeffM, "coefficiente m"},
    {&DatiProgetto::pressioneOrizz, "pressione orizzontale"},
    {&DatiProgetto::sovraccMonte, "sovraccarico a monte"},
    {&DatiProgetto::momentoTesta, "momento in testa"},
    {&DatiProgetto::forzaTesta, "forza in testa"},
    {&DatiProgetto::inclinazioneMonte, "inclinazione del terreno a monte"},
    {&DatiProgetto::faldaMonte, "falda a monte"},
    {&DatiProgetto::faldaValle, "falda a valle"},
    {&DatiProgetto::gammaAcqua, "peso dell'acqua"},
};

inline constexpr CampoTabella<base::Tabella<double, massimoTiranti>> campiTirante[] = {
    {&DatiProgetto::profTirante, "profondità del tirante"},
    {&DatiProgetto::rigTirante, "rigidezza del tirante"},
    {&DatiProgetto::pretTirante, "pretensione del tirante"},
    {&DatiProgetto::tipoTirante, "tipo del tirante"},
};

inline constexpr CampoScalare<Sezione> campiDiaframma[] = {
    {&Sezione::copriferroMonte, "copriferro a monte"},
    {&Sezione::copriferroValle, "copriferro a valle"},
    {&Sezione::interasseMonte, "interasse delle armature a monte"},
    {&Sezione::interasseValle, "interasse delle armature a valle"},
    {&Sezione::diametroMonte, "diametro delle armature a monte"},
    {&Sezione::diametroValle, "diametro delle armature a valle"},
    {&Sezione::spessoreDiaframma, "spessore del diaframma"},
    {&Sezione::modEacciaio, "modulo elastico dell'acciaio"},
    {&Sezione::modEcls, "modulo elastico del calcestruzzo"},
    {&Sezione::fyk, "resistenza fyk"},
    {&Sezione::fck, "resistenza fck"},
};

inline constexpr CampoScalare<Sezione> campiPali[] = {
    {&Sezione::paliDiamEst, "diametro esterno dei pali"},
    {&Sezione::paliDiamInt, "diametro interno dei pali"},
    {&Sezione::paliInterasse, "interasse dei pali"},
};

inline constexpr CampoScalare<Sezione> campiPalancola[] = {
    {&Sezione::palancolaBase, "base della palancola"},
    {&Sezione::palancolaLargAla, "larghezza dell'ala"},
    {&Sezione::palancolaAltAla, "altezza dell'ala"},
    {&Sezione::palancolaSpessore, "spessore della palancola"},
    {&Sezione::palancolaSpessAla, "spessore dell'ala"},
};

inline constexpr CampoScalare<Sezione> campiPaliArmati[] = {
    {&Sezione::armInterasse, "interasse dei pali armati"},
    {&Sezione::armDiamLong, "diametro delle barre"},
    {&Sezione::armDiamPalo, "diametro dei pali armati"},
    {&Sezione::armPassoStaffe, "passo delle staffe"},
    {&Sezione::armDiamStaffe, "diametro delle staffe"},
    {&Sezione::armNumLong, "numero delle barre"},
    {&Sezione::armCopriferro, "copriferro delle barre"},
};

}  // namespace korven::project
