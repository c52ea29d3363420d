#pragma once

#include <string>
#include <string_view>

#include "base/dialogo.hpp"
#include "base/text_table.hpp"

namespace korven::base {

/// Returns the text to show for an Italian text, which is its key. Every text that is shown or
/// printed passes through here. Never fails for a text: one that no table holds comes back as it
/// is, without its outer blanks. A unit in brackets ("[kN/m]") is the same in every language.
///
/// A key is found whatever its case; when the case differs from the record's, the translation takes
/// the case form of the argument (case_form.hpp). A translation that begins with "@" is replaced by
/// the English one, and that by the Italian text.
///
/// @throws ErroreIndice when a text is found and the language code lies outside 1 to 6
[[nodiscard]] std::string traduttore(std::string_view testo);

/// Fills and sorts the two tables of the program: the first from the texts common to the maker's
/// programs and those of this one, the second from the texts added since (text_table.hpp).
///
/// @param percorsoAggiunti  a program folder of an older version has no such file: without it the
///                          second table stays empty
/// @throws ErroreFile when a file cannot be read or is broken (text_table.hpp); the tables then
/// hold no text
void caricaTesti(const std::string& percorsoComuni, const std::string& percorsoModulo,
                 const std::string& percorsoAggiunti = {});

/// Chooses the language, 1 to 6; before the first call it is Italian. Another code is taken as it
/// is and refused where `traduttore` needs its column.
void impostaLingua(int codice);
[[nodiscard]] int linguaCorrente();

/// Switches the translators' test mode on, with the dialog that shows its boxes, or off with
/// nullptr. In this mode a box tells of every text that has no record, no translation, or another
/// case than its record. In Italian nothing is looked up, so nothing is told.
///
/// @param dialogo  not owned; must outlive the mode
void impostaModoProva(Dialogo* dialogo);
/// True in that mode, in which `traduttore` may open a box: whoever calls it is in the thread of
/// the forms.
[[nodiscard]] bool inModoProva();

/// The rule of `traduttore` on tables of one's own, already sorted.
/// @param prova     dialog of the test mode, nullptr when it is off
/// @param aggiunti  where a text is looked up that the first table lacks; nullptr: nowhere
[[nodiscard]] std::string traduci(const TabellaTesti& testi, int codice, std::string_view testo,
                                  Dialogo* prova = nullptr, const TabellaTesti* aggiunti = nullptr);

}  // namespace korven::base
