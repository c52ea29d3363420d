#include "tables/check_words.hpp"

#include "base/translated_texts.hpp"
#include "structure/offered_stiffness.hpp"
#include "structure/section_type.hpp"

namespace korven::tables {

using base::traduttore;
using results::Verifica;
using structure::TipoSezione;

const char* nome(Verifica verifica) {
    switch (verifica) {
        case Verifica::momentoPositivo:
            return "Flessione, momento positivo";
        case Verifica::momentoNegativo:
            return "Flessione, momento negativo";
        case Verifica::bielle:
            return "Taglio, bielle di calcestruzzo";
        case Verifica::armatura:
            break;
    }
    return "Taglio, armatura d'anima";
}

const project::Unita& unitaDi(Verifica verifica) {
    return verifica == Verifica::momentoPositivo || verifica == Verifica::momentoNegativo
               ? project::unita::momentoAlMetro
               : project::unita::forzaAlMetro;
}

std::string percheSenzaTaglio(const project::Sezione& sezione) {
    if (!structure::sezioneCalcolabile(sezione)) return traduttore("La sezione non è definita.");
    switch (structure::tipoSezione(sezione)) {
        case TipoSezione::diaframma:
            return traduttore("Il programma non ha una verifica a taglio per i diaframmi.");
        case TipoSezione::pali:
            return traduttore("Il programma non ha una verifica a taglio per i pali tubolari.");
        case TipoSezione::palancola:
            return traduttore("Il programma non ha una verifica a taglio per le palancole.");
        case TipoSezione::paliArmati:
            return traduttore(
                "Per i pali armati il taglio si verifica solo con le staffe scritte.");
        case TipoSezione::nessuno:
            break;
    }
    return traduttore("La sezione non è definita.");
}

const char* azioniNonNote(const live::PareteViva& parete) {
    return parete.fasi.empty() ? "Azioni non note: la paratia non è calcolata."
                               : "Azioni non note: la paratia non è in equilibrio.";
}

}  // namespace korven::tables
