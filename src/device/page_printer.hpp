#pragma once

#include <QFont>
#include <QPainter>
#include <QString>
#include <memory>
#include <string>

#include "device/least_margins.hpp"
#include "plot/geometry.hpp"
#include "plot/printer.hpp"

class QPrinter;

namespace korven::device {

/// Page of a printer [cm], its margins included, as it lies before the reader.
[[nodiscard]] plot::Foglio paginaStampante(const QPrinter& stampante);

/// A drawing on the pages of a printer, or of a PDF file when the printer writes one. Pages are
/// printed to their printable edge: the margins are the least that the printer knows, for as long
/// as this lives. The process needs a QGuiApplication.
class StampantePagine : public plot::Stampante {
 public:
    /// @param stampante  not owned
    /// @param titolo     name of the job in the queue of the printer
    StampantePagine(QPrinter& stampante, const QString& titolo);
    StampantePagine(const StampantePagine&) = delete;
    StampantePagine& operator=(const StampantePagine&) = delete;
    ~StampantePagine() override;

    plot::MisureStampante misure() override;
    /// @throws base::ErroreFile when the printer or the file takes no page, and when the system no
    /// longer knows the printer
    void iniziaPagina() override;
    void poligono(std::span<const plot::PuntoPagina> vertici, plot::Colore colore) override;
    void penna(plot::Colore colore, int spessore) override;
    void linea(plot::PuntoPagina da, plot::PuntoPagina a) override;
    void carattere(const plot::CaratterePagina& carattere) override;
    void testo(plot::PuntoPagina punto, std::string_view testo, bool centrato,
               plot::Colore colore) override;
    void finePagina() override {}
    /// @throws base::ErroreFile when the printer or the file has failed (print_outcome.hpp)
    void fineStampa() override;

 private:
    [[noreturn]] void fallita() const;

    QPrinter& stampante_;
    MarginiMinimi margini_;
    QPainter pittore_;
    std::string carattere_;
    QFont font_;
    double corpo_ = 1;
    double gradi_ = 0;
};

/// The same on a PDF file, for a machine without a printer. The file is written when the job ends.
/// @param pagina  whose page is taken
[[nodiscard]] std::unique_ptr<plot::Stampante> stampanteSuPdf(const QString& percorso,
                                                              const QPrinter& pagina,
                                                              const QString& titolo);

}  // namespace korven::device
