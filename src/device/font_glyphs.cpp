#include "device/font_glyphs.hpp"

#include <QFontMetricsF>
#include <QTextLayout>
#include <utility>

namespace korven::device {

namespace {

// Scripts whose characters stand one after the other whatever their neighbours: Latin without
// combining marks, Greek, punctuation, arrows and mathematical signs.
bool inFila(char16_t c) {
    constexpr char16_t primoStampato = 0x20, segniCombinati = 0x300, greco = 0x370,
                       cirillico = 0x400, trattini = 0x2010, finePunteggiatura = 0x2028,
                       apici = 0x2030, segniNascosti = 0x2060, esponenti = 0x2070, tecnici = 0x2300;
    return (c >= primoStampato && c < segniCombinati) || (c >= greco && c < cirillico) ||
           (c >= trattini && c < finePunteggiatura) || (c >= apici && c < segniNascosti) ||
           (c >= esponenti && c < tecnici);
}

}  // namespace

GlifiFont::GlifiFont(QFont font) : font_(std::move(font)) { font_.setPixelSize(corpo); }

const std::vector<QGlyphRun>& GlifiFont::righe(const QString& testo) {
    righe_.clear();
    const Glifo* ultimo = nullptr;
    double x = 0;
    for (const QChar c : testo) {
        const Glifo& g = glifo(c.unicode());
        if (!g.solo) {
            indici_.clear();
            posti_.clear();
            righe_.clear();
            return righe_;
        }
        if (ultimo != nullptr && !(ultimo->carattere == g.carattere)) chiudi(ultimo->carattere);
        indici_.append(g.indice);
        posti_.append({x, 0});
        x += g.avanzamento;
        ultimo = &g;
    }
    if (ultimo != nullptr) chiudi(ultimo->carattere);
    return righe_;
}

void GlifiFont::chiudi(const QRawFont& carattere) {
    QGlyphRun riga;
    riga.setRawFont(carattere);
    riga.setGlyphIndexes(indici_);
    riga.setPositions(posti_);
    righe_.push_back(riga);
    indici_.clear();
    posti_.clear();
}

const GlifiFont::Glifo& GlifiFont::glifo(char16_t carattere) {
    const auto [posto, nuovo] = glifi_.try_emplace(carattere);
    if (!nuovo || !inFila(carattere)) return posto->second;
    QTextLayout riga(QString(QChar(carattere)), font_);
    riga.beginLayout();
    (void)riga.createLine();
    riga.endLayout();
    const QList<QGlyphRun> forme = riga.glyphRuns();
    if (forme.size() == 1 && forme[0].glyphIndexes().size() == 1)
        posto->second = {forme[0].rawFont(), forme[0].glyphIndexes()[0],
                         QFontMetricsF(font_).horizontalAdvance(QChar(carattere)), true};
    return posto->second;
}

}  // namespace korven::device
