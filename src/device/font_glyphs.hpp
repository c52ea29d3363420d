#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QList>
#include <QString>
#include <unordered_map>
#include <vector>

namespace korven::device {

/// The shapes of a font's characters and their widths, each looked up once: thousands of numbers
/// of a document are made of the same few. For fonts without kerning and ligatures, in which a text
/// is the row of its characters.
class GlifiFont {
 public:
    explicit GlifiFont(QFont font);

    /// Size at which the shapes are had [pixels]: that of the grid on which most typefaces are
    /// designed, so that widths are whole numbers and short ones in a file.
    static constexpr int corpo = 2048;

    /// The text as rows of shapes, one for each typeface that it takes, from the origin of its base
    /// line on, at size `corpo` [pixels]. Empty for an empty text and for one with characters that
    /// are no row of their own: joined, combined, from right to left.
    [[nodiscard]] const std::vector<QGlyphRun>& righe(const QString& testo);

 private:
    struct Glifo {
        QRawFont carattere;
        quint32 indice = 0;
        double avanzamento = 0;  // [pixels]
        bool solo = false;       // one shape is the whole character
    };

    [[nodiscard]] const Glifo& glifo(char16_t carattere);
    void chiudi(const QRawFont& carattere);

    QFont font_;
    std::unordered_map<char16_t, Glifo> glifi_;
    std::vector<QGlyphRun> righe_;
    QList<quint32> indici_;  // of the row in the making
    QList<QPointF> posti_;
};

}  // namespace korven::device
