#pragma once

#include <QAbstractScrollArea>
#include <QPixmap>
#include <map>
#include <optional>

#include "device/document_fonts.hpp"
#include "document/page.hpp"

namespace korven::shell {

/// The pages of a document one below the other, as they come out of the printer.
///
/// Keys: Page Up and Page Down turn the pages, Home and End go to the first and the last, the
/// arrows and the wheel scroll, Ctrl with + and - or with the wheel makes the pages larger or
/// smaller.
class VistaDocumento : public QAbstractScrollArea {
    Q_OBJECT
 public:
    explicit VistaDocumento(QWidget* padre);

    /// Shows other pages, beginning at the one that was looked at, if there is one of its number.
    void mostra(document::Impaginato impaginato);
    [[nodiscard]] const document::Impaginato& impaginato() const { return impaginato_; }

    [[nodiscard]] int pagine() const { return static_cast<int>(impaginato_.pagine.size()); }
    /// The page that most is seen of, from 1; 0 where there are none.
    [[nodiscard]] int pagina() const;
    void vaiA(int pagina);

    // How large the pages are. Those fitted to the window follow its size.
    void adattaPagina();
    void adattaLarghezza();
    void ingrandisci(double percento);
    /// 100: as large as on paper, as far as the screen tells its resolution.
    [[nodiscard]] double percento() const;

 signals:
    void girata(int pagina);
    /// Made larger or smaller by keys or wheel.
    void ingrandita();

 protected:
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void wheelEvent(QWheelEvent* evento) override;
    void focusInEvent(QFocusEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;

 private:
    enum class Modo { pagina, larghezza, fisso };

    [[nodiscard]] double passo() const;
    [[nodiscard]] double larga() const;
    [[nodiscard]] QRectF posto(int pagina) const;
    [[nodiscard]] const QPixmap& immagine(int pagina);
    void scala(double pixelPerPunto);
    void adatta();
    void cambia(int scatti);
    void disponi();
    void annuncia();
    void descrivi();

    document::Impaginato impaginato_;
    device::CaratteriPagine caratteri_;
    Modo modo_ = Modo::larghezza;
    double scala_ = 1;                // pixels of the screen in a point
    int annunciata_ = 0;              // the page told last
    std::map<int, QPixmap> dipinte_;  // of the pages in sight, at this scale
};

}  // namespace korven::shell
