#include "dossier/section_values.hpp"

#include <cmath>

#include "project/units.hpp"
#include "results/structure_checks.hpp"
#include "structure/bending_resistance.hpp"
#include "structure/material_laws.hpp"
#include "structure/partial_factors.hpp"

namespace korven::dossier {

namespace {

using structure::SezioneStrisce;
using structure::StatoLimite;

std::optional<double> uso(double azione, double resistenza) {
    if (!(resistenza > 0) || !(azione > 0)) return std::nullopt;
    return azione / resistenza;
}

// Sums of forces and of their moments, from which the place follows.
struct Somma {
    double forza = 0, momento = 0;

    void aggiungi(double F, double y) {
        forza += F;
        momento += F * y;
    }
    [[nodiscard]] Interna risultante() const {
        return forza == 0 ? Interna{} : Interna{std::fabs(forza), momento / forza};
    }
};

void forzeInterne(const structure::ModelloStrisce& m, const StatoLimite& stato,
                  LatoFlessione& lato) {
    Somma calcestruzzo, compresso, teso;
    for (int i = 1; i <= structure::nStrisce; ++i) {
        const double y = structure::mezzeria(m, i);
        const double eps = stato.eps0 + stato.chi * y;
        calcestruzzo.aggiungi(m.Ac[i] * structure::tensioneCls(eps, m.fcd), y);
        (eps < 0 ? compresso : teso)
            .aggiungi(m.As[i] * structure::tensioneAcciaio(eps, m.fyd, m.modEacciaio), y);
    }
    lato.calcestruzzo = calcestruzzo.risultante();
    lato.acciaioCompresso = compresso.risultante();
    lato.acciaioTeso = teso.risultante();
}

// The last halving may lie on either side of the limit: the one that is nearest is meant.
LimiteSezione limite(double epsCompresso, double epsPunto) {
    return epsCompresso / structure::accorciamentoLimite > epsPunto / structure::allungamentoLimite
               ? LimiteSezione::accorciamento
               : LimiteSezione::allungamento;
}

// k as for `statoLimite`.
LatoFlessione lato(const SezioneStrisce& s, double Nd, int k) {
    const StatoLimite stato = structure::statoLimite(s.modello, k, s.H, s.punti, Nd);
    LatoFlessione l;
    if (stato.M == 0) return l;
    const auto eps = [&](double y) { return stato.eps0 + stato.chi * y; };
    const bool monteTeso = k == 1;
    l.MRd = k * stato.M;
    l.chi = std::fabs(stato.chi);
    l.epsTeso = eps(monteTeso ? s.H : 0);
    l.epsCompresso = eps(monteTeso ? 0 : s.H);
    if (l.epsCompresso < 0)
        l.x = l.epsTeso <= 0 ? s.H : s.H * l.epsCompresso / (l.epsCompresso - l.epsTeso);
    l.limite = limite(l.epsCompresso, eps(monteTeso ? s.punti.monte : s.punti.valle));
    forzeInterne(s.modello, stato, l);
    return l;
}

// Less than this share more or less is what the search of the resistance leaves open.
constexpr double differenzaMinima = 1e-3;

// k as for `statoLimite`.
void conAltriSforzi(const SezioneStrisce& s, double sforzoNormale, int k, LatoFlessione& l) {
    if (sforzoNormale == 0 || !(l.MRd > 0)) return;
    bool minore = false;
    for (const double volte : {1.0, 0.0}) {
        ConAltroSforzo altro;
        altro.volte = volte;
        altro.Nd = volte * project::newton * sforzoNormale;
        altro.MRd = k * structure::statoLimite(s.modello, k, s.H, s.punti, altro.Nd).M;
        altro.uso = uso(l.Md, altro.MRd);
        minore = minore || altro.MRd < l.MRd * (1 - differenzaMinima);
        l.altri.push_back(altro);
    }
    if (!minore) l.altri.clear();
}

void confronta(const live::ControlliSezione& controlli, ValoriFlessione& v) {
    if (!controlli.flessione) return;
    const results::ConfrontoMomenti& c = *controlli.flessione;
    v.positivo.verificato = !c.fallitaPos();
    v.negativo.verificato = !c.fallitaNeg();
    v.positivo.Md = c.mdMax > 0 ? project::newtonMillimetri * c.mdMax : 0;
    v.negativo.Md = c.mdMin < 0 ? -project::newtonMillimetri * c.mdMin : 0;
    for (LatoFlessione* l : {&v.positivo, &v.negativo}) l->uso = uso(l->Md, l->MRd);
}

void aree(const structure::ModelloStrisce& m, ValoriFlessione& v) {
    double momento = 0;
    for (int i = 1; i <= structure::nStrisce; ++i) {
        v.Ac += m.Ac[i];
        v.As += m.As[i];
        momento += structure::mezzeria(m, i) * (m.Ac[i] + m.As[i]);
    }
    v.yNd = momento / (v.Ac + v.As);
}

}  // namespace

std::optional<double> LatoFlessione::usoMaggiore() const {
    std::optional<double> maggiore = uso;
    for (const ConAltroSforzo& altro : altri)
        if (altro.uso && (!maggiore || *altro.uso > *maggiore)) maggiore = altro.uso;
    return maggiore;
}

std::optional<ValoriFlessione> valoriFlessione(const project::DatiProgetto& dati,
                                               const live::ControlliSezione& controlli) {
    const project::Sezione& sezione = dati.sezione;
    if (!live::sezioneCalcolabile(sezione)) return std::nullopt;
    const auto s = structure::sezioneStrisce(sezione);
    ValoriFlessione v;
    v.fyk = sezione.fyk;
    v.fyd = s->modello.fyd;
    v.modEacciaio = sezione.modEacciaio;
    v.fsCalcestruzzo = structure::fsCalcestruzzo;
    v.fsAcciaio = structure::fsAcciaio;
    v.fsAzioni = structure::fsAzioniSezione;
    v.H = s->H;
    aree(s->modello, v);
    if (v.Ac > 0) {
        v.fck = sezione.fck;
        v.fcd = s->modello.fcd;
    }
    v.sforzoNormale = dati.sforzoNormale;
    v.Nd = structure::sforzoDiProgetto(dati.sforzoNormale);
    v.assiali = structure::resistenzeAssiali(sezione);
    v.positivo = lato(*s, v.Nd, -1);
    v.negativo = lato(*s, v.Nd, 1);
    confronta(controlli, v);
    conAltriSforzi(*s, v.sforzoNormale, -1, v.positivo);
    conAltriSforzi(*s, v.sforzoNormale, 1, v.negativo);
    return v;
}

std::optional<ValoriTaglio> valoriTaglio(const project::DatiProgetto& dati,
                                         const live::ControlliSezione& controlli) {
    const project::Sezione& sezione = dati.sezione;
    if (!controlli.taglio || !live::sezioneCalcolabile(sezione)) return std::nullopt;
    ValoriTaglio v;
    v.palo = structure::valoriTaglio(sezione, 0);  // the check takes no axial force
    v.fck = sezione.fck;
    v.fyk = sezione.fyk;
    v.fsCalcestruzzo = structure::fsCalcestruzzo;
    v.fsAcciaio = structure::fsAcciaio;
    v.interasse = project::inMillimetri(sezione.armInterasse);
    v.metro = *controlli.taglio;
    v.usoBielle = uso(v.metro.Vsd, v.metro.Vrd2);
    v.usoArmatura = uso(v.metro.Vsd, v.metro.Vrd3);
    return v;
}

std::optional<double> taglioDiProgetto(const live::PareteViva& parete) {
    const equilibrium::Estremo& T = parete.estremi.taglio;
    if (!parete.sta() || T.fase == 0) return std::nullopt;
    return structure::fsAzioniSezione * std::fabs(project::inKilonewton(T.valore));
}

}  // namespace korven::dossier
