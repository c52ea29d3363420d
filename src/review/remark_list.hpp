#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "project/field_table.hpp"
#include "review/remark.hpp"
#include "review/remark_table.hpp"

// The parts of a project's review: the list that its checks fill, and the checks by subject. A
// field is called as editor and report call it and its value shown in their unit.

namespace korven::review {

/// What a remark is about: how its line begins, and the fields in question.
struct Soggetto {
    std::string testo;
    std::vector<std::string> campi;
};

class ElencoOsservazioni {
 public:
    /// "strato 3: Gamma [kN/m³] = 18: ...", the text of the row with its values after the subject.
    void aggiungi(Voce voce, const Soggetto& soggetto, const std::vector<std::string>& valori = {});
    /// One that is about no field in particular.
    void aggiungi(Voce voce) { aggiungi(voce, Soggetto{}); }
    /// The value in question follows in brackets.
    void conValore(Voce voce, const Soggetto& soggetto, double valore);
    /// A sentence that is worded elsewhere, translated, follows.
    void conParole(Voce voce, const Soggetto& soggetto, const std::string& testo);
    void conParole(Voce voce, const std::string& testo) { conParole(voce, Soggetto{}, testo); }

    /// By weight, else in the order in which they were found; empties the list.
    [[nodiscard]] Osservazioni ordinate();

 private:
    Osservazioni osservazioni_;
};

/// One alone, of a sentence that is worded elsewhere.
[[nodiscard]] Osservazione una(Voce voce, const std::string& testo);

/// The text of a row, translated, with its values.
[[nodiscard]] std::string testo(Voce voce, const std::vector<std::string>& valori = {});

/// "strato 3", with one cell of its row in question.
[[nodiscard]] Soggetto riga(const project::Membro& colonna, int numero);

/// The same where the rows of a table have names of their own: "puntone 2".
[[nodiscard]] Soggetto riga(const project::DatiProgetto& dati, const project::Membro& colonna,
                            int numero);

/// "strato 3: Gamma [kN/m³] = 18".
[[nodiscard]] Soggetto rigaConValore(const project::DatiProgetto& dati,
                                     const project::Membro& colonna, int numero);

/// Several rows with one column in question: "titoli 2, 3, 4"; of one row as above.
/// @pre there is one
[[nodiscard]] Soggetto righe(const project::Membro& colonna, const std::vector<int>& numeri);

/// Several rows with their cells of one column: "strati 1, 3: Phi [°] = 30, 28"; of one row as
/// above. @pre there is one
[[nodiscard]] Soggetto righeConValori(const project::DatiProgetto& dati,
                                      const project::Membro& colonna,
                                      const std::vector<int>& numeri);

/// "Gamma [kN/m³] = 18" for a stored 1.8.
[[nodiscard]] Soggetto campoConValore(const project::Membro& membro, double conservato);

/// The same in front of which another text stands: "lato monte: ...".
[[nodiscard]] Soggetto dopo(const std::string& prima, Soggetto soggetto);

/// Two fields in one remark: "..., ...".
[[nodiscard]] Soggetto insieme(Soggetto uno, const Soggetto& altro);

/// "1, 3, 4".
[[nodiscard]] std::string inFila(const std::vector<std::string>& pezzi);

/// A text followed by the value in question, in brackets.
[[nodiscard]] std::string conValoreTraParentesi(std::string testo, double valore);

/// What a remark calls a field: its caption and unit or, where a caption says too little or too
/// much outside its form, what it is; translated.
[[nodiscard]] std::string nomeCampo(const project::Campo& campo);

/// "strato 3" for a column of the layers, and so on.
[[nodiscard]] std::string nomeRiga(const project::Campo& colonna, int numero);

[[nodiscard]] bool intero(double valore);

/// The layers, the ground and the water.
void controlloTerreno(const project::DatiProgetto& dati, ElencoOsservazioni& elenco);

/// The water levels.
void controlloAcqua(const project::DatiProgetto& dati, ElencoOsservazioni& elenco);

/// What the kind of stresses and the method of the pressures leave out or count twice.
void controlloTensioni(const project::DatiProgetto& dati, ElencoOsservazioni& elenco);

/// The soil values of all stages, as a run would compute them.
/// @pre no input check fails: asserted
void controlloSuolo(const project::DatiProgetto& scritti, int nSeg, ElencoOsservazioni& elenco);

/// The fields whose shown value is larger than the stored one and no number any more.
void controlloMostrati(const project::DatiProgetto& dati, ElencoOsservazioni& elenco);

/// What the methods chosen do not take up of what is typed, and what becomes of the methods.
void controlloMetodi(const project::DatiProgetto& dati, ElencoOsservazioni& elenco);

void controlloTiranti(const project::DatiProgetto& dati, ElencoOsservazioni& elenco);

/// The anchors and the stages that put them in place.
void controlloPosa(const project::DatiProgetto& dati, ElencoOsservazioni& elenco);

/// The nodes that the anchors get. @pre the wall has a length
void controlloNodiTiranti(const project::DatiProgetto& dati, int nSeg, ElencoOsservazioni& elenco);

void controlloFasi(const project::DatiProgetto& dati, ElencoOsservazioni& elenco);

/// The heading lines, of which report and drawings make something else than is typed.
void controlloTitoli(const project::DatiProgetto& dati, ElencoOsservazioni& elenco);

/// The descriptions of the layers, where the log has no room for them.
void controlloDescrizioni(const project::DatiProgetto& dati, ElencoOsservazioni& elenco);

/// The stiffness and the structural section.
void controlloSezione(const project::DatiProgetto& dati, ElencoOsservazioni& elenco);

/// Strengths, moduli and lengths of the section that look typed in another unit or can't be built.
void controlloValoriSezione(const project::Sezione& sezione, ElencoOsservazioni& elenco);

/// An axial force beyond the section, and a section that carries nothing.
void controlloResistenza(const project::DatiProgetto& dati, ElencoOsservazioni& elenco);

}  // namespace korven::review
