#pragma once

#include <algorithm>
#include <iterator>
#include <string>
#include <type_traits>

#include "base/translated_texts.hpp"
#include "project/field_table.hpp"

namespace korven::project {

/// The fields with which one of the later blocks of the file begins; older files end before them.
inline constexpr Membro inizioBlocchi[] = {&Sezione::tipoPalancola, &Sezione::tipoPaliArmati,
                                           &DatiProgetto::sforzoNormale};

/// Goes through a project in the order of the file's lines, that of the table of fields; columns of
/// a table row by row. The visitor reads, writes or compares:
///
///     visita.conteggio(int&, capacity, name)   a row count
///     visita.numero(double&, name)             visita.bandiera(bool&, name)
///     visita.metodoSpinte(double&, name)       the one number not always taken unchanged
///     visita.descrizione(std::string&, name)   visita.titolo(std::string&, name)
///     visita.blocco() -> bool                  whether one of the later blocks is there
///
/// `name` is what an error calls the line, translated.
///
/// `Dati` is DatiProgetto, const where the visitor changes nothing.
template <class Visita, class Dati>
class Percorso {
 public:
    Percorso(Visita& visita, Dati& dati) : visita_(visita), dati_(dati) {}

    void tutto() {
        const auto tutti = campi();
        for (auto da = tutti.begin(); da != tutti.end();) {
            if (apreBlocco(*da) && !visita_.blocco()) return;
            const auto a = finePasso(da, tutti.end());
            if (colonna(*da))
                for (int i = 1; i <= righe(dati_, da->parte); ++i)
                    std::for_each(da, a, [&](const Campo& c) { visitaRiga(c, i); });
            else
                visitaValore(*da, 1, base::traduttore(da->cosa));
            da = a;
        }
    }

 private:
    static bool apreBlocco(const Campo& campo) {
        return std::find(std::begin(inizioBlocchi), std::end(inizioBlocchi), campo.membro) !=
               std::end(inizioBlocchi);
    }

    // The columns of a table are visited together, anything else alone.
    template <class Posto>
    static Posto finePasso(Posto da, Posto fine) {
        if (!colonna(*da)) return std::next(da);
        return std::find_if(da, fine,
                            [&](const Campo& c) { return !colonna(c) || c.parte != da->parte; });
    }

    void visitaRiga(const Campo& campo, int i) {
        visitaValore(campo, i, base::traduttore(campo.cosa) + ' ' + std::to_string(i));
    }

    void visitaValore(const Campo& campo, int i, const std::string& nome) {
        conValore(dati_, campo, i, [&](auto& valore) {
            using Valore = std::remove_cvref_t<decltype(valore)>;
            if constexpr (std::is_same_v<Valore, int>)
                visita_.conteggio(valore, static_cast<int>(campo.limiti->massimo), nome);
            else if constexpr (std::is_same_v<Valore, bool>)
                visita_.bandiera(valore, nome);
            else if constexpr (std::is_same_v<Valore, std::string>)
                campo.parte == Parte::titoli ? visita_.titolo(valore, nome)
                                             : visita_.descrizione(valore, nome);
            else if (campo.membro == Membro(&DatiProgetto::metodoSpinte))
                visita_.metodoSpinte(valore, nome);
            else
                visita_.numero(valore, nome);
        });
    }

    Visita& visita_;
    Dati& dati_;
};

}  // namespace korven::project
