#pragma once

#include <QLabel>
#include <QPainter>
#include <algorithm>

namespace korven::shell {

/// The label of a field, followed by a leader of dots as far as there is room. The dots end at the
/// right edge, so that those of all rows are below each other and none is cut in half.
class EtichettaPuntinata : public QLabel {
 public:
    EtichettaPuntinata(const QString& didascalia, const QString& etichetta, QWidget* genitore)
        : QLabel(didascalia, genitore), etichetta_(etichetta) {
        setTextFormat(Qt::PlainText);
        setAccessibleName(etichetta);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    }

    [[nodiscard]] QSize minimumSizeHint() const override { return misura(3); }
    [[nodiscard]] QSize sizeHint() const override { return misura(12); }

 protected:
    void paintEvent(QPaintEvent*) override {
        QPainter pittore(this);
        const QRect posto = contentsRect();
        pittore.setPen(palette().color(foregroundRole()));
        pittore.drawText(posto, Qt::AlignVCenter | Qt::AlignLeft, etichetta_);
        const int libera = posto.width() - inizioPunti();
        const auto disponibili = text().size() - etichetta_.size() - 1;
        const auto quanti = std::clamp<qsizetype>(libera / punto(), 0, disponibili);
        pittore.setPen(palette().color(QPalette::PlaceholderText));
        for (int i = 1; i <= quanti; ++i)
            pittore.drawText(
                QRect(posto.right() + 1 - i * punto(), posto.top(), punto(), posto.height()),
                Qt::AlignVCenter | Qt::AlignHCenter | Qt::TextDontClip, QStringLiteral("."));
    }

 private:
    [[nodiscard]] int punto() const {
        return std::max(1, fontMetrics().horizontalAdvance(QLatin1Char('.')));
    }
    [[nodiscard]] int inizioPunti() const {
        return fontMetrics().horizontalAdvance(etichetta_ + QLatin1Char(' '));
    }
    [[nodiscard]] QSize misura(int punti) const {
        return {inizioPunti() + punti * punto(), QLabel::sizeHint().height()};
    }

    QString etichetta_;
};

}  // namespace korven::shell
