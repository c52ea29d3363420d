#pragma once

#include <QPageLayout>
#include <QString>
#include <memory>
#include <string>

#include "base/disk.hpp"
#include "markup/report_printer.hpp"

class QPrinter;

namespace korven::device {

/// The report on the pages of a printer, or in the file that the printer writes. Pages are measured
/// from their printable edge, or from half a centimetre where that is less. A job that an error
/// cuts short is taken back when the printer given out is deleted. A QGuiApplication must exist.
///
/// A printer that the system no longer knows is told before the first page, and again at the end of
/// the job: the pages go to the queue when the job ends, which tells nobody whether they arrived.
/// @param stampante  not owned; its margins are its own again afterwards
/// @param titolo     name of the job in the queue
[[nodiscard]] std::unique_ptr<markup::ReportPrinter> relazioneSuStampante(QPrinter& stampante,
                                                                          const QString& titolo);

/// The same on the printer of that name, with its usual paper.
/// @throws markup::PrinterError if the system knows no printer of that name; the text has those it
///         does know
[[nodiscard]] std::unique_ptr<markup::ReportPrinter> relazioneSuStampante(
    const std::string& nome, const std::string& titolo);

/// @throws as `relazioneSuStampante`
void controllaStampante(const std::string& nome);

/// The report as a PDF file, written whole or not at all when the job ends; a second job replaces
/// the first.
/// @param pagina  whose sheet and orientation are taken, not its margins
/// @param titolo  name of the document
[[nodiscard]] std::unique_ptr<markup::ReportPrinter> relazioneSuPdf(
    const std::string& percorso, const QPageLayout& pagina, const QString& titolo,
    const base::Disco& disco = base::discoDiSistema());

/// The same on upright A4 paper.
[[nodiscard]] std::unique_ptr<markup::ReportPrinter> relazioneSuPdf(
    const std::string& percorso, const std::string& titolo,
    const base::Disco& disco = base::discoDiSistema());

}  // namespace korven::device
