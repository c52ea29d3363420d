#pragma once

#include <QLabel>
#include <QPainter>

namespace korven::shell {

/// A line that gives up its middle where there is no room for it: of a long path its beginning and
/// its file name stay. The whole of it is the tool tip.
class EtichettaAccorciata : public QLabel {
 public:
    explicit EtichettaAccorciata(QWidget* genitore) : QLabel(genitore) {
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        setTextFormat(Qt::PlainText);
        setContentsMargins(8, 0, 8, 0);
    }
    void mostra(const QString& testo) {
        setText(testo);
        setToolTip(testo);
        setAccessibleName(testo);
    }

 protected:
    void paintEvent(QPaintEvent*) override {
        QPainter pittore(this);
        pittore.setPen(palette().color(foregroundRole()));
        pittore.drawText(contentsRect(), Qt::AlignVCenter | Qt::AlignLeft,
                         fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width()));
    }
};

}  // namespace korven::shell
