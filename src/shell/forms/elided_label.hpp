#pragma once

#include <QLabel>
#include <QPainter>

namespace korven::shell {

/// A line that is shortened where there is no room for it. Of a path the middle goes, so that its
/// beginning and its file name stay; of a sentence the end. The whole of it is the tool tip.
class EtichettaAccorciata : public QLabel {
 public:
    /// @param percorsi  false: a stroke is no sign of a path, as in "kN/m"
    explicit EtichettaAccorciata(QWidget* genitore, bool percorsi = true)
        : QLabel(genitore), percorsi_(percorsi) {
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        setTextFormat(Qt::PlainText);
        setContentsMargins(8, 0, 8, 0);
    }
    void mostra(const QString& testo) { mostra(testo, testo); }
    /// @param intero  what the tool tip and screen readers tell instead
    void mostra(const QString& testo, const QString& intero) {
        setText(testo);
        setToolTip(intero);
        setAccessibleName(intero);
    }

 protected:
    void paintEvent(QPaintEvent*) override {
        QPainter pittore(this);
        pittore.setPen(palette().color(foregroundRole()));
        const auto dove =
            percorsi_ && text().contains(QLatin1Char('/')) ? Qt::ElideMiddle : Qt::ElideRight;
        pittore.drawText(contentsRect(), Qt::AlignVCenter | Qt::AlignLeft,
                         fontMetrics().elidedText(text(), dove, contentsRect().width()));
    }

 private:
    bool percorsi_;
};

}  // namespace korven::shell
