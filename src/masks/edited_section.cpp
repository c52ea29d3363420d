#include "masks/edited_section.hpp"

#include <algorithm>
#include <cassert>

#include "base/number_text.hpp"

namespace korven::masks {

using project::tipiSezione;

std::size_t campoSezione(double project::Sezione::*valore) {
    const auto* trovato =
        std::find_if(std::begin(campiSezione), std::end(campiSezione),
                     [valore](const CampoSezione& campo) { return campo.valore == valore; });
    return static_cast<std::size_t>(trovato - std::begin(campiSezione));
}

SezioneEditata::SezioneEditata(project::Sezione& sezione, bool& modificato)
    : sezione_(sezione), modificato_(modificato) {
    if (const auto tipo = project::parteInVigore(sezione))
        tipo_ = *tipo;
    else
        sezione.tipoDiaframma = true;
    for (std::size_t i = 0; i < numeroCampiSezione; ++i)
        testi_[i] = base::testoNumero(
            project::mostrato(campiSezione[i].campo(), sezione.*campiSezione[i].valore));
    mostrati_ = testi_;
}

void SezioneEditata::scegli(project::Parte tipo) {
    assert(std::any_of(std::begin(tipiSezione), std::end(tipiSezione),
                       [=](auto flag) { return project::campo(flag).parte == tipo; }));
    tipo_ = tipo;
}

double SezioneEditata::scritto(std::size_t campo) const {
    return project::conservato(campiSezione[campo].campo(),
                               base::leggiNumero(testi_[campo]).value_or(0));
}

// 0.21 is shown as 2.1, and a tenth of that double is not the double 0.21. The decimals are: what
// is shown names the stored number when its point, moved back, gives that number's text.
bool SezioneEditata::nominato(std::size_t campo) const {
    const int posti = project::posti(campiSezione[campo].campo().unita);
    const std::string testo =
        posti > 0 ? mostrati_[campo] + "e-" + std::to_string(posti) : mostrati_[campo];
    return base::leggiNumero(testo).value_or(0) == sezione_.*campiSezione[campo].valore;
}

project::Sezione SezioneEditata::letta() const {
    project::Sezione editata;
    for (const auto flag : tipiSezione) editata.*flag = project::campo(flag).parte == tipo_;
    for (std::size_t i = 0; i < numeroCampiSezione; ++i) {
        const auto campo = campiSezione[i].valore;
        editata.*campo = testi_[i] == mostrati_[i] ? sezione_.*campo : scritto(i);
    }
    return editata;
}

bool SezioneEditata::ritorna() const {
    for (std::size_t i = 0; i < numeroCampiSezione; ++i)
        if (testi_[i] == mostrati_[i] && !nominato(i)) return false;
    return true;
}

void SezioneEditata::conferma() {
    const project::Sezione editata = letta();
    if (!(editata == sezione_) || !ritorna()) modificato_ = true;
    sezione_ = editata;
}

}  // namespace korven::masks
