#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

#include "project/project_data.hpp"
#include "project/units.hpp"

// The one table of the fields of a project: what each is called, in which unit it is stored and
// shown, what may be typed into it, which codes it knows. The file, the editors, the remarks, the
// report and the drawings go through it. Where one of them must say another word, or leave a field
// out, its own code says so.

namespace korven::project {

/// The member that a field is: one of the project, a column of its tables or one of its section.
using Membro = std::variant<int DatiProgetto::*, double DatiProgetto::*,
                            base::Tabella<double, massimoStrati> DatiProgetto::*,
                            base::Tabella<double, massimoTiranti> DatiProgetto::*,
                            base::Tabella<double, 50> DatiProgetto::*,
                            base::Tabella<std::string, massimoStrati> DatiProgetto::*,
                            base::Tabella<std::string, numeroTitoli> DatiProgetto::*,
                            double Sezione::*, bool Sezione::*>;

/// What a field belongs to.
enum class Parte {
    strati,  ///< a table, as the next two: its number of rows, then its columns
    tiranti,
    fasi,
    titoli,  ///< one column, whose number of rows is fixed
    paratia,
    diaframma,  ///< of the section, as all that follow: a part for each type,
    pali,
    palancola,
    paliArmati,
    materiali,  ///< and one for all of them
};

/// A code of a field.
struct Codice {
    double valore;          ///< as stored
    std::string_view nome;  ///< of its enumerator (codes.hpp); for programs to read
    std::string_view voce;  ///< what its editor offers, Italian
};

/// The least and the greatest number, in the shown unit.
struct Limiti {
    double minimo;
    double massimo;
};

struct Campo {
    Membro membro;
    std::string_view nome;  ///< of the member as written, "sezione." before one of the section
    Parte parte;
    std::string_view cosa;  ///< what it is, as an error or a remark says it; Italian key
    /// The caption of editor and report without its unit, Italian; empty for what neither shows.
    std::string_view didascalia;
    Unita unita;
    std::optional<Limiti> limiti = {};    ///< of what its editor takes; none: any number or text
    std::span<const Codice> codici = {};  ///< none: the field is no code
};

/// All fields, in the order of the project file.
[[nodiscard]] std::span<const Campo> campi();

/// The row of a member. @pre there is one, as for every member of the project
[[nodiscard]] const Campo& campo(const Membro& membro);

/// The name of a field for programs, with its row if it is one of a table: "gammaN[3]".
[[nodiscard]] std::string nomeStabile(const Campo& campo, int riga = 1);

/// A field with the row that a stable name says, 1 for one that is no table.
struct CampoNominato {
    const Campo* campo;
    int riga;
};

/// The other way: the field of a stable name; nothing for a name that is none.
[[nodiscard]] std::optional<CampoNominato> campoNominato(std::string_view nome);

/// The code that a stored number of the field is; nullptr for one that is none.
[[nodiscard]] const Codice* codice(const Campo& campo, double conservato);

/// Caption and unit, as a table or a list is headed: "Gamma Sat. [kN/m³]"; Italian key.
[[nodiscard]] std::string etichetta(const Campo& campo);

/// The part of a section's type: of its first true flag in the order of `tipiSezione`; none without
/// one. Of the section only this part and the materials count.
[[nodiscard]] std::optional<Parte> parteInVigore(const Sezione& sezione);

/// Rows that the table of a part has; 1 for one that is no table.
[[nodiscard]] int righe(const DatiProgetto& dati, Parte parte);

/// True for a field with one value for each row of its part.
[[nodiscard]] bool colonna(const Campo& campo);

template <class T>
inline constexpr bool eTabella = false;
template <class T, std::size_t n>
inline constexpr bool eTabella<base::Tabella<T, n>> = true;

/// The value of a member of the project, in row `riga` if it is a column.
template <class Dati, class T>
[[nodiscard]] auto& cella(Dati& dati, T DatiProgetto::*membro, int riga) {
    if constexpr (eTabella<T>)
        return (dati.*membro)[riga];
    else
        return dati.*membro;
}
template <class Dati, class T>
[[nodiscard]] auto& cella(Dati& dati, T Sezione::*membro, int) {
    return dati.sezione.*membro;
}

/// Hands the value of a field to `visita`, which takes an int (a count), a double, a bool or a
/// std::string, by reference.
template <class Dati, class Visita>
void conValore(Dati& dati, const Campo& campo, int riga, Visita visita) {
    std::visit([&](auto membro) { visita(cella(dati, membro, riga)); }, campo.membro);
}

/// The stored number of a field, 0 for one that is none. @pre `riga` is one of its rows: asserted
[[nodiscard]] double numeroConservato(const DatiProgetto& dati, const Campo& campo, int riga = 1);

/// The number in the unit that people see.
[[nodiscard]] inline double mostrato(const Campo& campo, double conservato) {
    return mostrato(campo.unita, conservato);
}
[[nodiscard]] double mostrato(const DatiProgetto& dati, const Campo& campo, int riga = 1);

/// The stored number of one that was typed.
[[nodiscard]] inline double conservato(const Campo& campo, double scritto) {
    return scritto / campo.unita.fattore;
}

}  // namespace korven::project
