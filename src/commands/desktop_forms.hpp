#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

#include "commands/rescue/rescue_offer.hpp"
#include "masks/values.hpp"

namespace korven::commands {

/// The forms and devices of the menu commands, plugged in by `main`: all of them, but those of the
/// help where its file is missing. The call returns when the form is closed; preview and help stay
/// while the program goes on. A command whose form is missing can't be chosen.
struct FormeProgramma {
    /// Shows the form of the current mask, a field form or a grid, with its values; hands what was
    /// confirmed back to it, and nothing when the form was left without.
    std::function<void(masks::Maschere&)> maschera;
    /// The section form `DefinEJ`, which takes its values into `Progetto` and sets `modificato`.
    std::function<void()> sezione;
    /// The same, which begins at a field of `masks::campiSezione`.
    std::function<void(std::size_t campo)> sezioneDa;
    /// The viewer `GRAFICA` of the drawing in the plot store.
    std::function<void()> grafica;
    /// Takes that viewer away, whose drawing was given up.
    std::function<void()> chiudiGrafica;
    /// Height of the printer's page [cm], for which the stratigraphic log is drawn.
    std::function<double()> altezzaPagina;
    /// What is done with a report, given by the path of its mark-up file. The pointer is the
    /// hourglass when they are called: a form that waits for its user gives it back first.
    std::function<void(const std::string&relazione)> anteprima, stampa, esportaDoc, esportaTxt;
    /// Colours and pens, `Editacfg`.
    std::function<void()> editacfg;
    /// The system's dialog for the printer.
    std::function<void()> impostaStampante;
    /// The help file at the page of a context number, and at its contents.
    std::function<void(int contesto)> guida;
    std::function<void()> sommario;
    /// The help file at the page of a name.
    std::function<void(const std::string& nome)> paginaGuida;
    /// Offers the unsaved work that was found of a project when it was opened.
    OffreRecupero recupero;
    /// The about box with the line of the open project, empty if none (document_names.hpp).
    std::function<void(const std::string& fileCorrente)> informazioni;
    /// The windows beside the main form: remarks, results, safety, annex, comparison, codes,
    /// studies. The call shows the window and returns at once.
    std::function<void()> controlli, risultati, sicurezza, allegato, confronto, norme, studio;
    /// Asks for the pattern of a new project (project_patterns.hpp).
    /// @return its path, empty for the defaults; nothing when the form was left without
    std::function<std::optional<std::string>()> nuovo;
    /// Asks for another language and writes it down. @return true when the program is to start
    /// again
    std::function<bool()> lingua;
    /// Told that the program, which is about to end, is to start again.
    std::function<void()> riavvia;
    /// The window that lists the keys of the program.
    std::function<void()> tasti;
};

}  // namespace korven::commands
