#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "project/project_data.hpp"
#include "shell/viewer/viewer.hpp"
#include "support/dialog_double.hpp"
#include "support/drawing_by_pen.hpp"
#include "support/failing_disk.hpp"
#include "support/form_setup.hpp"

namespace korven::test {

/// Answers save dialogs from a script and keeps what was printed.
class PorteRegistrate : public shell::PorteGrafica {
 public:
    std::optional<std::string> fileDaSalvare(const shell::FileDaSalvare& richiesta) override {
        richieste.push_back(richiesta);
        return risposta;
    }
    [[nodiscard]] const base::Disco& disco() const override { return guasto; }
    void scritto(const std::string& percorso) override { scritti.push_back(percorso); }
    plot::Foglio foglioStampante() override { return foglio; }
    std::unique_ptr<plot::Stampante> stampante(const std::string& titolo) override {
        titoli.push_back(titolo);
        if (!conStampante) return nullptr;
        return std::make_unique<Inoltro>(carta);
    }

    std::optional<std::string> risposta;  // nothing: cancelled
    std::vector<shell::FileDaSalvare> richieste;
    std::vector<std::string> scritti;
    DiscoGuasto guasto;  // until told otherwise it takes everything
    plot::Foglio foglio{21, 29.7};
    bool conStampante = true;
    std::vector<std::string> titoli;
    // 21 by 29.7 cm at 100 pixels to the centimetre.
    StampanteRegistrata carta{{210, 297, 2100, 2970, 21 * 567, 29.7 * 567, 5.67, 3}};

 private:
    // A job of its own on the one record.
    class Inoltro : public plot::Stampante {
     public:
        explicit Inoltro(StampanteRegistrata& a) : a_(a) {}
        plot::MisureStampante misure() override { return a_.misure(); }
        void iniziaPagina() override { a_.iniziaPagina(); }
        void poligono(std::span<const plot::PuntoPagina> v, plot::Colore c) override {
            a_.poligono(v, c);
        }
        void penna(plot::Colore c, int s) override { a_.penna(c, s); }
        void linea(plot::PuntoPagina da, plot::PuntoPagina a) override { a_.linea(da, a); }
        void carattere(const plot::CaratterePagina& c) override { a_.carattere(c); }
        void testo(plot::PuntoPagina p, std::string_view t, bool centrato,
                   plot::Colore c) override {
            a_.testo(p, t, centrato, c);
        }
        void finePagina() override { a_.finePagina(); }
        void fineStampa() override { a_.fineStampa(); }

     private:
        StampanteRegistrata& a_;
    };
};

/// The viewer over a main form, with a drawing of 10 by 5 cm: a frame about its edge.
class ProvaVisore : public ProvaPlot {
 protected:
    ProvaVisore() {
        configura(penneNere());
        project::fileCorrente = "/progetti/muro.kvd";
        principale.show();
        visore.emplace(principale, porte, dialogo);
    }
    ~ProvaVisore() override {
        visore.reset();
        project::fileCorrente.clear();
    }

    /// Draws and shows the window, large enough that the drawing has its proportions.
    void disegna(double larghezza = 10, double altezza = 5) {
        plot::plotApri(0, 0, larghezza, altezza);
        plot::plotPenna(1);
        plot::plotMuovi(0, 0, plot::pennaSu);
        for (const auto& [x, y] :
             {std::pair{larghezza, 0.0}, {larghezza, altezza}, {0.0, altezza}, {0.0, 0.0}})
            plot::plotMuovi(x, y, plot::pennaGiu);
        plot::plotMuovi(0, 0, plot::fineDisegno);
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&forma()));
    }
    shell::GRAFICA& forma() { return *visore->forma(); }
    QWidget& pulsante(const char* nome) { return controllo(forma(), nome); }
    void premi(const char* nome) { QTest::mouseClick(&pulsante(nome), Qt::LeftButton); }
    void tasto(char lettera) { QTest::keyClick(&forma(), lettera); }
    bool visibile(const char* nome) { return pulsante(nome).isVisible(); }

    /// Place of a point of the sheet on the surface [window pixels].
    QPoint posto(double x, double y) {
        const plot::Riquadro& f = plot::statoPlot.finestra;
        const QWidget& superficie = pulsante("Picture7");
        return {qRound((x - f.xmin) / f.larghezza() * superficie.width()),
                qRound((f.ymax - y) / f.altezza() * superficie.height())};
    }
    void trascina(QPoint da, QPoint a) {
        QWidget& superficie = pulsante("Picture7");
        QTest::mousePress(&superficie, Qt::LeftButton, {}, da);
        QTest::mouseMove(&superficie, (da + a) / 2);
        QTest::mouseMove(&superficie, a);
        QTest::mouseRelease(&superficie, Qt::LeftButton, {}, a);
    }
    static std::string finestra() {
        const plot::Riquadro& f = plot::statoPlot.finestra;
        return punto(f.xmin, f.ymin, 2) + ' ' + punto(f.xmax, f.ymax, 2);
    }

    QApplication& app = applicazione();
    QWidget principale;
    PorteRegistrate porte;
    DialogoFinto dialogo;
    std::optional<shell::VisoreDisegni> visore;
};

}  // namespace korven::test
