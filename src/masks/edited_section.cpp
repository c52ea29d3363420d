#include "masks/edited_section.hpp"

#include <algorithm>
#include <cassert>

#include "base/number_text.hpp"
#include "base/translated_texts.hpp"

namespace korven::masks {

using project::tipiSezione;

std::size_t campoSezione(double project::Sezione::*valore) {
    const auto* trovato =
        std::find_if(std::begin(campiSezione), std::end(campiSezione),
                     [valore](const CampoSezione& campo) { return campo.valore == valore; });
    return static_cast<std::size_t>(trovato - std::begin(campiSezione));
}

void daiTipo(project::Sezione& sezione) {
    if (!project::parteInVigore(sezione)) sezione.tipoDiaframma = true;
}

SezioneEditata::SezioneEditata(project::Sezione& sezione, bool& modificato)
    : sezione_(sezione), modificato_(modificato) {
    daiTipo(sezione);
    tipo_ = project::parteInVigore(sezione).value_or(tipo_);
    for (std::size_t i = 0; i < numeroCampiSezione; ++i)
        testi_[i] = base::testoNumero(
            project::mostrato(campiSezione[i].campo(), sezione.*campiSezione[i].valore));
    mostrati_ = testi_;
}

void SezioneEditata::scegli(project::Parte tipo) {
    assert(std::any_of(std::begin(tipiSezione), std::end(tipiSezione),
                       [=](auto flag) { return project::campo(flag).parte == tipo; }));
    if (tipo == tipo_) return;
    storia_.chiudi();
    storia_.scritto(base::traduttore("tipo di sezione"), sceltaTipo, tipo_, tipo);
    storia_.chiudi();
    tipo_ = tipo;
}

void SezioneEditata::scrivi(std::size_t campo, std::string_view testo) {
    storia_.scritto(passoCampo(base::traduttore(campiSezione[campo].campo().cosa)), campo,
                    testi_[campo], std::string(testo));
    testi_[campo] = testo;
}

void SezioneEditata::scrivi(const std::string& nome, const Testi& testi) {
    std::vector<Storia<std::size_t, Valore>::Cambio> cambi;
    for (const auto& [campo, testo] : testi) {
        if (testo == testi_[campo]) continue;
        cambi.push_back({campo, testi_[campo], testo});
        testi_[campo] = testo;
    }
    if (cambi.empty()) return;
    const std::size_t primo = cambi.front().posto;
    storia_.fatto({nome, primo, std::move(cambi)});
}

void SezioneEditata::entra(std::size_t campo) {
    if (campo != dove_) storia_.chiudi();
    dove_ = campo;
}

void SezioneEditata::metti(std::size_t campo, const Valore& valore) {
    if (campo == sceltaTipo)
        tipo_ = std::get<project::Parte>(valore);
    else
        testi_[campo] = std::get<std::string>(valore);
}

std::optional<std::size_t> SezioneEditata::annulla() {
    const auto dove =
        storia_.annulla([this](std::size_t campo, const Valore& prima) { metti(campo, prima); });
    dove_ = dove.value_or(dove_);
    return dove;
}

std::optional<std::size_t> SezioneEditata::ripeti() {
    const auto dove =
        storia_.ripeti([this](std::size_t campo, const Valore& dopo) { metti(campo, dopo); });
    dove_ = dove.value_or(dove_);
    return dove;
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
