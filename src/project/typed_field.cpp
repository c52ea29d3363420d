#include "project/typed_field.hpp"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <vector>

#include "base/code_page.hpp"
#include "base/decimal_commas.hpp"
#include "base/number_text.hpp"
#include "base/similar_name.hpp"
#include "project/codes.hpp"

namespace korven::project {

namespace {

template <class M, class T>
constexpr bool tiene = std::is_same_v<M, T>;
template <class V, std::size_t n, class T>
constexpr bool tiene<base::Tabella<V, n>, T> = std::is_same_v<V, T>;

// Whether a field, or a row of one, holds a T.
template <class T>
bool delTipo(const Campo& campo) {
    return std::visit([]<class Record, class M>(M Record::*) { return tiene<M, T>; }, campo.membro);
}

// A flag is written as 1 here, and as -1 in the file.
bool bandiera(double numero) { return numero == 0 || numero == 1 || numero == -1; }

bool stessoNome(std::string_view uno, std::string_view altro) {
    // Small letters take as many bytes as capital ones.
    return uno.size() == altro.size() && base::minuscolo(uno) == base::minuscolo(altro);
}

const Codice* codiceScritto(const Campo& campo, std::string_view testo) {
    const auto trovato =
        std::find_if(campo.codici.begin(), campo.codici.end(),
                     [testo](const Codice& c) { return stessoNome(c.nome, testo); });
    return trovato == campo.codici.end() ? nullptr : &*trovato;
}

std::optional<MotivoRifiuto> motivoTesto(const Campo& campo, std::string_view testo) {
    if (testo.find_first_of("\r\n") != std::string_view::npos || !base::rappresentabile(testo))
        return MotivoRifiuto::carattere;
    if (campo.parte == Parte::titoli && base::numeroCaratteri(testo) > std::size_t{caratteriTitolo})
        return MotivoRifiuto::troppoLungo;
    return {};
}

std::optional<MotivoRifiuto> motivoNonNumero(const Campo& campo, std::string_view testo) {
    if (base::conIlPunto(testo)) return MotivoRifiuto::virgola;
    return campo.codici.empty() ? MotivoRifiuto::nonNumero : MotivoRifiuto::codiceIgnoto;
}

void svuotaRighe(DatiProgetto& dati, Parte parte, int da, int a) {
    for (const Campo& campo : campi()) {
        if (campo.parte != parte || !colonna(campo)) continue;
        for (int i = da; i <= a; ++i)
            conValore(dati, campo, i,
                      [](auto& valore) { valore = std::remove_cvref_t<decltype(valore)>(); });
    }
}

}  // namespace

std::variant<CampoNominato, Rifiuto> campoScritto(const DatiProgetto& dati, std::string_view nome) {
    Rifiuto rifiuto{.motivo = MotivoRifiuto::nomeIgnoto, .nome = std::string(nome)};
    const auto trovato = campoNominato(nome);
    if (!trovato) {
        const auto prima = campoNominato(std::string(nome) + "[1]");
        if (!prima) return rifiuto;
        rifiuto.motivo = MotivoRifiuto::senzaRiga;
        rifiuto.campo = prima->campo;
        rifiuto.righe = righe(dati, prima->campo->parte);
        return rifiuto;
    }
    const int presenti = righe(dati, trovato->campo->parte);
    if (!colonna(*trovato->campo) || (trovato->riga >= 1 && trovato->riga <= presenti))
        return *trovato;
    rifiuto.motivo = MotivoRifiuto::rigaAssente;
    rifiuto.campo = trovato->campo;
    rifiuto.righe = presenti;
    return rifiuto;
}

std::optional<std::string> nomeSimile(std::string_view nome) {
    const auto fine = std::min(nome.find('['), nome.size());
    const auto senzaParte = [](std::string_view intero) {
        return intero.substr(intero.find('.') + 1);  // the whole of one without a point
    };
    for (const Campo& campo : campi())
        if (stessoNome(senzaParte(campo.nome), senzaParte(nome.substr(0, fine))))
            return std::string(campo.nome) + std::string(nome.substr(fine));
    std::vector<std::string> nomi;
    for (const Campo& campo : campi()) nomi.emplace_back(campo.nome);
    auto vicino = base::nomeVicino(nome.substr(0, fine), nomi);
    if (vicino) vicino->append(nome.substr(fine));
    return vicino;
}

std::optional<MotivoRifiuto> motivoRifiuto(const Campo& campo, double mostrato) {
    if (!std::isfinite(mostrato) || delTipo<std::string>(campo)) return MotivoRifiuto::nonNumero;
    if (!campo.codici.empty() && codice(campo, conservato(campo, mostrato)) == nullptr)
        return MotivoRifiuto::codiceIgnoto;
    if (delTipo<bool>(campo) && !bandiera(mostrato)) return MotivoRifiuto::fuoriLimiti;
    if (delTipo<int>(campo) && mostrato != std::floor(mostrato)) return MotivoRifiuto::nonIntero;
    if (campo.limiti && (mostrato < campo.limiti->minimo || mostrato > campo.limiti->massimo))
        return MotivoRifiuto::fuoriLimiti;
    return {};
}

std::variant<ValoreCampo, Rifiuto> valoreScritto(const CampoNominato& nominato,
                                                 std::string_view testo) {
    const Campo& campo = *nominato.campo;
    const auto rifiutato = [&](MotivoRifiuto motivo) {
        return Rifiuto{.motivo = motivo,
                       .nome = nomeStabile(campo, nominato.riga),
                       .scritto = std::string(testo),
                       .campo = &campo};
    };
    if (delTipo<std::string>(campo)) {
        if (const auto motivo = motivoTesto(campo, testo)) return rifiutato(*motivo);
        return ValoreCampo(std::string(testo));
    }
    const std::string_view interno = base::senzaSpaziEsterni(testo);
    if (const Codice* scritto = codiceScritto(campo, interno)) return ValoreCampo(scritto->valore);
    if (!base::soloUnNumero(interno)) return rifiutato(*motivoNonNumero(campo, interno));
    const auto numero = base::leggiNumero(interno);  // nothing for one that is too large
    if (!numero) return rifiutato(MotivoRifiuto::fuoriLimiti);
    if (const auto motivo = motivoRifiuto(campo, *numero)) return rifiutato(*motivo);
    return ValoreCampo(conservatoNelFile(campo, *numero));
}

std::optional<Limiti> limitiScritti(const Campo& campo) {
    if (!campo.codici.empty()) return {};
    return delTipo<bool>(campo) ? Limiti{0, 1} : campo.limiti;
}

double comeNelFile(double conservato) {
    return base::leggiNumero(base::formattaNumero(conservato)).value_or(0);
}

double conservatoNelFile(const Campo& campo, double mostrato) {
    if (delTipo<bool>(campo)) return mostrato != 0 ? 1 : 0;
    return comeNelFile(conservato(campo, mostrato));
}

bool tornaDalFile(const Campo& campo, double conservato) {
    return campo.membro != Membro(&DatiProgetto::metodoSpinte) ||
           !(conservato > MetodoSpinte::coulomb);
}

ValoreCampo valoreConservato(const DatiProgetto& dati, const CampoNominato& campo) {
    ValoreCampo trovato;
    conValore(dati, *campo.campo, campo.riga, [&trovato](const auto& valore) {
        using Valore = std::remove_cvref_t<decltype(valore)>;
        if constexpr (std::is_same_v<Valore, std::string>)
            trovato = valore;
        else
            trovato = static_cast<double>(valore);
    });
    return trovato;
}

std::string testoDaScrivere(const DatiProgetto& dati, const CampoNominato& campo) {
    const ValoreCampo valore = valoreConservato(dati, campo);
    if (const auto* parole = std::get_if<std::string>(&valore)) return *parole;
    return base::testoNumero(mostrato(*campo.campo, std::get<double>(valore)));
}

void metti(DatiProgetto& dati, const CampoNominato& campo, const ValoreCampo& valore) {
    const auto numero = [&valore] { return std::get<double>(valore); };
    if (delTipo<int>(*campo.campo)) {
        const auto [meno, piu] =
            std::minmax({righe(dati, campo.campo->parte), static_cast<int>(numero())});
        svuotaRighe(dati, campo.campo->parte, meno + 1, piu);
    }
    conValore(dati, *campo.campo, campo.riga, [&](auto& tenuto) {
        using Valore = std::remove_cvref_t<decltype(tenuto)>;
        if constexpr (std::is_same_v<Valore, std::string>)
            tenuto = std::get<std::string>(valore);
        else if constexpr (std::is_same_v<Valore, bool>)
            tenuto = numero() != 0;
        else
            tenuto = static_cast<Valore>(numero());
    });
}

}  // namespace korven::project
