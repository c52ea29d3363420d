#include <QImage>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>
#include <cstdlib>
#include <iostream>

// make_icons DRAWING.svg SIZE ICON.png: paints a drawing in a square of so many pixels. It holds no
// text, so that no window system is needed.

int main(int argc, char** argv) {
    const int size = argc == 4 ? std::atoi(argv[2]) : 0;
    if (size <= 0) {
        std::cerr << "usage: make_icons DRAWING.svg SIZE ICON.png\n";
        return 2;
    }
    QSvgRenderer drawing(QString::fromLocal8Bit(argv[1]));
    if (!drawing.isValid()) {
        std::cerr << "make_icons: no drawing: " << argv[1] << '\n';
        return 1;
    }
    QImage icon(size, size, QImage::Format_ARGB32);
    icon.fill(Qt::transparent);
    {
        QPainter painter(&icon);
        painter.setRenderHint(QPainter::Antialiasing);
        drawing.render(&painter);
    }
    if (icon.save(QString::fromLocal8Bit(argv[3]), "PNG")) return 0;
    std::cerr << "make_icons: can't write: " << argv[3] << '\n';
    return 1;
}
