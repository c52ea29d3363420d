#pragma once

#include <string>

#include "document/blocks.hpp"
#include "project/project_data.hpp"
#include "project/units.hpp"
#include "report/annex/chapters.hpp"
#include "tables/result_table.hpp"

// What the chapters put their tables and paragraphs together from. Titles are Italian keys.

namespace korven::report {

/// A column of numbers; what it is stands in the sentences beside the table.
[[nodiscard]] tables::Colonna numeri(const project::Unita& unita, const char* titolo);
[[nodiscard]] tables::Colonna numeri(const char* titolo);
/// The same, headed by a symbol that is the same in all languages.
[[nodiscard]] tables::Colonna simboli(const project::Unita& unita, const char* simbolo);

/// "Momento [kN m/m]", the name of a row of numbers.
[[nodiscard]] tables::Cella conUnita(const project::Unita& unita, const char* titolo);

/// A number of which only its size matters: "2.1e-12".
/// @param mostrato  in the shown unit
[[nodiscard]] tables::Cella ordineDiGrandezza(double mostrato);

/// True for a number that is printed as 0: where it stands says nothing.
[[nodiscard]] bool stampataNulla(const tables::Cella& cella);

/// The place of such a number: none, and why.
[[nodiscard]] tables::Cella senzaPosto();

/// Adds one block.
void paragrafo(std::string testo, Blocchi& blocchi,
               document::Stile stile = document::Stile::normale);
void tavola(tables::Prospetto prospetto, Blocchi& blocchi);

/// With a capital first and a full stop last; empty stays empty.
[[nodiscard]] std::string inFrase(std::string testo);

/// Why a stage has no equilibrium, in few words: the chapter of the stages tells it whole.
/// @param fase  0: of the first that has none, where none stands
[[nodiscard]] std::string percheInBreve(const live::PareteViva& parete, int fase);

}  // namespace korven::report
