#include "shell/section/definej_fields.hpp"

#include <algorithm>
#include <iterator>

namespace korven::shell {

namespace {

constexpr const char* monte = "LATO MONTE";
constexpr const char* valle = "LATO VALLE";

constexpr const char* aiutoCopriferro =
    "Dalla faccia della parete al bordo esterno dei ferri, di solito 50–75 mm. Basta armare una "
    "faccia sola: i dati dell'altra restano 0.";
constexpr const char* aiutoInterasse =
    "Distanza fra gli assi dei ferri lungo la parete, di solito 100–250 mm. Con 0 la faccia non è "
    "armata.";
constexpr const char* aiutoDiametro =
    "Diametro dei ferri della faccia, di solito 16–32 mm. Con 0 la faccia non è armata.";
constexpr const char* aiutoInterassePali =
    "Distanza fra gli assi di due pali vicini. EJ e resistenze valgono per un metro di parete.";

}  // namespace

std::string_view CampoForma::didascalia() const {
    return riga != nullptr ? riga : project::campo(valore).didascalia;
}

std::string CampoForma::intestazione() const {
    if (titolo == nullptr) return {};
    const project::Campo& campo = project::campo(valore);
    return campo.parte == project::Parte::materiali ? etichetta(titolo, campo.unita) : titolo;
}

using project::Sezione;

constexpr CampoForma campiForma[masks::numeroCampiSezione] = {
    {&Sezione::copriferroMonte, "Text5", nullptr, 0, monte, aiutoCopriferro},
    {&Sezione::copriferroValle, "Text6", nullptr, 1, valle, aiutoCopriferro},
    {&Sezione::interasseMonte, "Text1", "Interasse ferri", 0, monte, aiutoInterasse},
    {&Sezione::interasseValle, "Text2", "Interasse ferri", 1, valle, aiutoInterasse},
    {&Sezione::diametroMonte, "Text3", "Diametro ferri", 0, monte, aiutoDiametro},
    {&Sezione::diametroValle, "Text4", "Diametro ferri", 1, valle, aiutoDiametro},
    {&Sezione::spessoreDiaframma, "Text7", nullptr, 0, nullptr,
     "Spessore della parete, di solito 400–1200 mm."},

    {&Sezione::paliDiamEst, "Text11", nullptr, 0, nullptr,
     "Diametro esterno del tubo d'acciaio, calcolato pieno di calcestruzzo."},
    {&Sezione::paliDiamInt, "Text12", nullptr, 0, nullptr,
     "Diametro interno del tubo, minore di quello esterno. Con 0 la sezione non è definita."},
    {&Sezione::paliInterasse, "Text10", nullptr, 0, nullptr, aiutoInterassePali},

    {&Sezione::palancolaBase, "Text16", nullptr, 0, nullptr,
     "Larghezza di un piatto, sull'asse del profilato. Il profilo si ripete ogni 2 b + 4 a."},
    {&Sezione::palancolaLargAla, "Text17", nullptr, 0, nullptr,
     "Misura dell'ala lungo la parete, dalla fine del piatto all'asse del profilo: metà "
     "dell'anima inclinata."},
    {&Sezione::palancolaAltAla, "Text9", nullptr, 0, nullptr,
     "Misura dell'ala attraverso la parete, dall'asse del profilo a quello del piatto. L'altezza "
     "del profilo è 2 h + t."},
    {&Sezione::palancolaSpessore, "Text13", "Spessore piatto", 0, nullptr,
     "Spessore dei piatti, di solito 8–20 mm."},
    {&Sezione::palancolaSpessAla, "Text19", nullptr, 0, nullptr,
     "Spessore delle ali, misurato perpendicolarmente ad esse, di solito 7–15 mm."},

    {&Sezione::armDiamPalo, "Text22", nullptr, 0, nullptr,
     "Diametro dei pali di calcestruzzo, di solito 400–1200 mm."},
    {&Sezione::armInterasse, "Text20", nullptr, 0, nullptr, aiutoInterassePali},
    {&Sezione::armNumLong, "Text25", "N° ferri:", 0, nullptr,
     "Attenzione: il calcolo usa un decimo del numero scritto. Per calcolare con 12 ferri "
     "scrivete 120; anche la relazione mostra 120."},
    {&Sezione::armDiamLong, "Text21", "Diametro correnti", 0, nullptr,
     "Diametro dei ferri longitudinali, disposti in cerchio, di solito 16–32 mm."},
    {&Sezione::armCopriferro, "Text26", "Copriferro", 0, nullptr,
     "Dal bordo del palo al bordo esterno dei ferri longitudinali, di solito 50–75 mm."},
    {&Sezione::armDiamStaffe, "Text24", nullptr, 0, nullptr,
     "Diametro delle staffe o della spirale. Serve solo alla verifica a taglio, che con 0 non "
     "viene fatta."},
    {&Sezione::armPassoStaffe, "Text23", nullptr, 0, nullptr,
     "Distanza fra le staffe lungo il palo. Serve solo alla verifica a taglio, che con 0 non "
     "viene fatta."},

    {&Sezione::fyk, "Text15", "Acciaio", 1, "Fyk",
     "Resistenza caratteristica allo snervamento, in N/mm²: per esempio 450 o 500 per i ferri, "
     "355 per i profilati."},
    {&Sezione::modEacciaio, "Text8", "Acciaio", 2, "E",
     "Modulo elastico dell'acciaio, in N/mm²: 200000 per i ferri, 210000 per i profilati."},
    {&Sezione::fck, "Text18", "CLS", 0, "Fck",
     "Resistenza caratteristica cilindrica del calcestruzzo, in N/mm², di solito 25–40. La "
     "palancola non la usa."},
    {&Sezione::modEcls, "Text14", "CLS", 2, "E",
     "Modulo elastico del calcestruzzo, in N/mm², di solito 30000–35000. La palancola non lo usa."},
};

static_assert(std::equal(std::begin(campiForma), std::end(campiForma),
                         std::begin(masks::campiSezione), [](const auto& una, const auto& altra) {
                             return una.valore == altra.valore;
                         }));

}  // namespace korven::shell
