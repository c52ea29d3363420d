#include "shell/icons/icon_set.hpp"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>
#include <cassert>
#include <utility>
#include <variant>

#include "shell/qt_text.hpp"

// Outside of all namespaces, as Qt asks: the drawings are part of a library.
static void apriRaccolta() { Q_INIT_RESOURCE(icons); }

namespace korven::shell {

namespace {

using Colore = std::variant<QPalette::ColorRole, QColor>;

QByteArray contenuto(std::string_view nome) {
    QFile file(QStringLiteral(":/icons/") + qt(nome) + QStringLiteral(".svg"));
    const bool aperto = file.open(QIODevice::ReadOnly);
    assert(aperto);
    return aperto ? file.readAll() : QByteArray();
}

// Draws the lines anew at the size asked for, in the colour of that moment.
class MotoreIcona : public QIconEngine {
 public:
    MotoreIcona(QByteArray disegno, Colore colore)
        : disegno_(std::move(disegno)), colore_(std::move(colore)) {}

    void paint(QPainter* pittore, const QRect& luogo, QIcon::Mode modo, QIcon::State) override {
        QByteArray tinto = disegno_;
        tinto.replace("currentColor", colore(modo).name().toLatin1());
        QSvgRenderer(tinto).render(pittore, luogo);
    }
    QPixmap pixmap(const QSize& misure, QIcon::Mode modo, QIcon::State stato) override {
        QPixmap immagine(misure);
        immagine.fill(Qt::transparent);
        QPainter pittore(&immagine);
        paint(&pittore, QRect(QPoint(), misure), modo, stato);
        return immagine;
    }
    [[nodiscard]] QIconEngine* clone() const override { return new MotoreIcona(*this); }

 private:
    [[nodiscard]] QColor colore(QIcon::Mode modo) const {
        const QPalette tavolozza = QGuiApplication::palette();
        if (modo == QIcon::Disabled)
            return tavolozza.color(QPalette::Disabled, QPalette::ButtonText);
        if (modo == QIcon::Selected) return tavolozza.color(QPalette::HighlightedText);
        if (const auto* ruolo = std::get_if<QPalette::ColorRole>(&colore_))
            return tavolozza.color(QPalette::Active, *ruolo);
        return std::get<QColor>(colore_);
    }

    QByteArray disegno_;
    Colore colore_;
};

QIcon nuova(std::string_view nome, Colore colore) {
    apriRaccolta();
    return QIcon(new MotoreIcona(contenuto(nome), std::move(colore)));
}

}  // namespace

QIcon icona(std::string_view nome, QPalette::ColorRole ruolo) { return nuova(nome, ruolo); }

QIcon icona(std::string_view nome, const QColor& colore) { return nuova(nome, colore); }

QStringList nomiIcone() {
    apriRaccolta();
    QStringList nomi;
    for (const QString& file : QDir(QStringLiteral(":/icons")).entryList(QDir::Files, QDir::Name))
        nomi += file.chopped(4);  // ".svg"
    return nomi;
}

}  // namespace korven::shell
