#include "shell/viewer/icons.hpp"

#include <QByteArray>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>
#include <algorithm>
#include <cassert>
#include <iterator>

namespace korven::shell {

namespace {

struct Figura {
    std::string_view nome;
    const char* tratti;  // SVG path on a square of 24 by 24
};

constexpr Figura figure[] = {
    {"ingrandisci", "M16 10A6 6 0 1 1 4 10A6 6 0 1 1 16 10zM14.5 14.5L20.5 20.5M10 7.5v5M7.5 10h5"},
    {"tutto", "M3.5 8.5v-5h5M15.5 3.5h5v5M20.5 15.5v5h-5M8.5 20.5h-5v-5M8 8h8v8h-8z"},
    {"stampa", "M7 8V3.5h10V8M7 17H3.5V8h17v9H17M7 13.5h10v7H7zM17 10.8h.6"},
    {"stampaAdattata",
     "M6 7V3.5h8V7M6 14H3.5V7h13v3M6 14v-2.5h4M11.5 11.5h9v9h-9zM14 18l4-4M18 16.5V14h-2.5"
     "M14 15.5V18h2.5"},
    {"dxf",
     "M5.5 10.5v-7.5h8.5l4.5 4.5v3M14 3v4.5h4.5M3.5 14v7h1.5a2.5 2.5 0 0 0 2.5-2.5v-2a2.5 2.5 0 0 "
     "0-2.5-2.5zM10 14l4 7M14 14l-4 7M17 21v-7h4M17 17.5h3"},
    {"esporta", "M12 18H3V4.5h16.5V10M3 14.5l4.5-4.5 4.5 4.5 2-2M15 8.2h.6M18 13v8M15 18l3 3 3-3"},
    {"esci", "M13 3.5h7v17h-7M3.5 12h11M10.5 8l4 4-4 4"},
    {"sinistra", "M14.5 6l-6 6 6 6"},
    {"destra", "M9.5 6l6 6-6 6"},
    {"alto", "M6 14.5l6-6 6 6"},
    {"basso", "M6 9.5l6 6 6-6"},
    {"moltoSinistra", "M11.5 6l-6 6 6 6M18.5 6l-6 6 6 6"},
    {"moltoDestra", "M12.5 6l6 6-6 6M5.5 6l6 6-6 6"},
    {"moltoAlto", "M6 11.5l6-6 6 6M6 18.5l6-6 6 6"},
    {"moltoBasso", "M6 12.5l6 6 6-6M6 5.5l6 6 6-6"},
};

QByteArray disegno(const char* tratti, const QColor& colore) {
    return QByteArray("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 24 24'><path d='") +
           tratti + "' fill='none' stroke='" + colore.name().toLatin1() +
           "' stroke-width='1.6' stroke-linecap='round' stroke-linejoin='round'/></svg>";
}

// Draws the lines anew at the size asked for. No file and no plugin is needed.
class MotoreIcona : public QIconEngine {
 public:
    explicit MotoreIcona(const char* tratti) : tratti_(tratti) {}

    void paint(QPainter* pittore, const QRect& luogo, QIcon::Mode modo, QIcon::State) override {
        const auto gruppo = modo == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        QSvgRenderer figura(
            disegno(tratti_, QGuiApplication::palette().color(gruppo, QPalette::ButtonText)));
        figura.render(pittore, luogo);
    }
    QPixmap pixmap(const QSize& misure, QIcon::Mode modo, QIcon::State stato) override {
        QPixmap immagine(misure);
        immagine.fill(Qt::transparent);
        QPainter pittore(&immagine);
        paint(&pittore, QRect(QPoint(), misure), modo, stato);
        return immagine;
    }
    [[nodiscard]] QIconEngine* clone() const override { return new MotoreIcona(tratti_); }

 private:
    const char* tratti_;
};

}  // namespace

QIcon iconaGrafica(std::string_view nome) {
    const auto* figura = std::find_if(std::begin(figure), std::end(figure),
                                      [nome](const Figura& f) { return f.nome == nome; });
    assert(figura != std::end(figure));
    return QIcon(new MotoreIcona(figura->tratti));
}

}  // namespace korven::shell
