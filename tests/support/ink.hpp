#pragma once

#include <QImage>
#include <algorithm>

namespace korven::test {

/// Rows and columns of the pixels of a picture that are darker than mid grey.
struct Macchia {
    int sinistra = 1 << 20, sopra = 1 << 20, destra = -1, sotto = -1;
    [[nodiscard]] int larghezza() const { return destra - sinistra + 1; }
    [[nodiscard]] int altezza() const { return sotto - sopra + 1; }
};

inline Macchia macchia(const QImage& immagine) {
    Macchia m;
    for (int y = 0; y < immagine.height(); ++y)
        for (int x = 0; x < immagine.width(); ++x) {
            if (qGray(immagine.pixel(x, y)) > 127) continue;
            m = {std::min(m.sinistra, x), std::min(m.sopra, y), std::max(m.destra, x),
                 std::max(m.sotto, y)};
        }
    return m;
}

}  // namespace korven::test
