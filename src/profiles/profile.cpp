#include "profiles/profile.hpp"

#include <algorithm>
#include <cassert>
#include <iterator>

#include "base/code_page.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"

namespace korven::profiles {

namespace {

using masks::campiSezione;
using project::Parte;
using project::Sezione;

struct RigaGenere {
    Genere genere;
    std::string_view parola;
    Parte tipo;  // of the section that it is, or `strati` where it is none
};

constexpr RigaGenere generi[] = {
    {Genere::ferro, "ferro", Parte::strati},
    {Genere::tubo, "tubo", Parte::strati},
    {Genere::diaframma, "diaframma", Parte::diaframma},
    {Genere::pali, "pali", Parte::pali},
    {Genere::palancola, "palancola", Parte::palancola},
    {Genere::paliArmati, "pali-armati", Parte::paliArmati},
};

const RigaGenere& riga(Genere genere) { return generi[static_cast<std::size_t>(genere)]; }

constexpr double Sezione::*diametriFerri[] = {&Sezione::diametroMonte, &Sezione::diametroValle,
                                              &Sezione::armDiamLong, &Sezione::armDiamStaffe};

bool diCalcestruzzo(std::size_t campo) {
    return campiSezione[campo].valore == &Sezione::fck ||
           campiSezione[campo].valore == &Sezione::modEcls;
}

// As the sketch calls it, or the materials by their names.
std::string simbolo(std::size_t campo) {
    const auto breve = campiSezione[campo].simbolo;
    if (!breve.empty()) return std::string(breve);
    static constexpr std::pair<double Sezione::*, const char*> materiali[] = {
        {&Sezione::fyk, "fyk"},
        {&Sezione::modEacciaio, "Es"},
        {&Sezione::fck, "fck"},
        {&Sezione::modEcls, "Ec"}};
    const auto* trovato =
        std::find_if(std::begin(materiali), std::end(materiali),
                     [=](const auto& m) { return m.first == campiSezione[campo].valore; });
    assert(trovato != std::end(materiali));
    return trovato->second;
}

}  // namespace

std::string_view parola(Genere genere) { return riga(genere).parola; }

Genere genereDi(Parte tipo) {
    const auto* trovato = std::find_if(std::begin(generi), std::end(generi),
                                       [=](const auto& g) { return g.tipo == tipo; });
    assert(trovato != std::end(generi));
    return trovato->genere;
}

bool ammessa(Genere genere, std::size_t campo) {
    const Parte riquadro = campiSezione[campo].riquadro();
    if (riga(genere).tipo == Parte::strati) return false;
    if (riquadro != Parte::materiali) return riquadro == riga(genere).tipo;
    return genere != Genere::palancola || !diCalcestruzzo(campo);
}

bool adatto(const Profilo& profilo, Parte tipo) {
    switch (profilo.genere) {
        case Genere::ferro:
            return !campiFerro(tipo).empty();
        case Genere::tubo:
            return tipo == Parte::pali;
        default:
            return riga(profilo.genere).tipo == tipo;
    }
}

std::vector<std::size_t> campiFerro(Parte tipo) {
    std::vector<std::size_t> campi;
    for (std::size_t i = 0; i < masks::numeroCampiSezione; ++i)
        if (campiSezione[i].riquadro() == tipo &&
            std::find(std::begin(diametriFerri), std::end(diametriFerri), campiSezione[i].valore) !=
                std::end(diametriFerri))
            campi.push_back(i);
    return campi;
}

masks::SezioneEditata::Testi testi(const Profilo& p, std::size_t campo) {
    using base::testoNumero;
    if (p.genere == Genere::ferro) return {{campo, testoNumero(p.diametro)}};
    if (p.genere == Genere::tubo)
        return {
            {masks::campoSezione(&Sezione::paliDiamEst), testoNumero(p.diametro)},
            {masks::campoSezione(&Sezione::paliDiamInt), testoNumero(p.diametro - 2 * p.spessore)}};
    masks::SezioneEditata::Testi scritti;
    for (const auto& [quale, valore] : p.misure) scritti.emplace_back(quale, testoNumero(valore));
    return scritti;
}

std::string misureMostrate(const Profilo& p) {
    if (p.genere == Genere::ferro) return "Ø " + base::testoNumero(p.diametro) + " mm";
    if (p.genere == Genere::tubo)
        return "Ø " + base::testoNumero(p.diametro) + ", t " + base::testoNumero(p.spessore) +
               " mm";
    std::string testo;
    for (const auto& [campo, valore] : p.misure)
        testo += (testo.empty() ? "" : ", ") + simbolo(campo) + " = " + base::testoNumero(valore);
    return testo;
}

bool trovato(const Profilo& profilo, std::string_view cercato) {
    const std::string dove =
        base::minuscolo(profilo.nome + ' ' + misureMostrate(profilo) + ' ' + profilo.fonte);
    const std::string parole = base::minuscolo(cercato);
    for (std::size_t da = 0; da < parole.size();) {
        const std::size_t a = std::min(parole.find(' ', da), parole.size());
        if (dove.find(parole.substr(da, a - da)) == std::string::npos) return false;
        da = a + 1;
    }
    return true;
}

Profilo profiloDi(Parte tipo, const Sezione& sezione, bool materiali) {
    Profilo p;
    p.genere = genereDi(tipo);
    p.proprio = true;
    for (std::size_t i = 0; i < masks::numeroCampiSezione; ++i) {
        const auto& campo = campiSezione[i];
        if (!ammessa(p.genere, i) || !(sezione.*campo.valore > 0)) continue;
        if (campo.riquadro() == Parte::materiali && !materiali) continue;
        const auto letto = base::leggiNumero(
            base::testoNumero(project::mostrato(campo.campo(), sezione.*campo.valore)));
        p.misure.emplace_back(i, letto.value_or(0));
    }
    return p;
}

}  // namespace korven::profiles
