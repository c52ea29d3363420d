#include "scene/stage_groups.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"

namespace korven::scene {

namespace {

bool insieme(const SegniFase& uno, const SegniFase& altro, double vicini) {
    for (std::size_t i = 0; i < uno.punti.size(); ++i)
        if (std::hypot(uno.punti[i].x - altro.punti[i].x, uno.punti[i].y - altro.punti[i].y) >
            vicini)
            return false;
    return uno.tinta == altro.tinta;
}

// From the top down, so that a group begins at one of its ends.
bool primaDi(const SegniFase& uno, const SegniFase& altro) {
    for (std::size_t i = 0; i < uno.punti.size(); ++i)
        if (uno.punti[i].y != altro.punti[i].y) return uno.punti[i].y < altro.punti[i].y;
    return uno.fase < altro.fase;
}

GruppoFasi gruppo(const std::vector<SegniFase>& segni) {
    GruppoFasi g;
    g.tinta = segni.front().tinta;
    g.punti.resize(segni.front().punti.size());
    const auto quanti = static_cast<double>(segni.size());
    for (const SegniFase& s : segni) {
        g.fasi.push_back(s.fase);
        for (std::size_t i = 0; i < g.punti.size(); ++i) {
            g.punti[i].x += s.punti[i].x / quanti;
            g.punti[i].y += s.punti[i].y / quanti;
        }
    }
    std::sort(g.fasi.begin(), g.fasi.end());
    g.fasi.erase(std::unique(g.fasi.begin(), g.fasi.end()), g.fasi.end());
    return g;
}

}  // namespace

std::vector<GruppoFasi> gruppiFasi(std::vector<SegniFase> segni, double vicini) {
    std::sort(segni.begin(), segni.end(), primaDi);
    std::vector<std::vector<SegniFase>> tutti;
    for (SegniFase& s : segni) {
        const auto suo = std::find_if(tutti.begin(), tutti.end(), [&](const auto& altri) {
            return insieme(altri.front(), s, vicini);
        });
        if (suo == tutti.end())
            tutti.push_back({std::move(s)});
        else
            suo->push_back(std::move(s));
    }
    std::vector<GruppoFasi> gruppi;
    for (const auto& uno : tutti) gruppi.push_back(gruppo(uno));
    return gruppi;
}

std::string nomeFasi(const std::vector<int>& fasi) {
    if (fasi.size() == 1) return base::traduttore("fase") + " " + std::to_string(fasi.front());
    std::string testo;
    for (std::size_t da = 0; da < fasi.size();) {
        std::size_t a = da;
        while (a + 1 < fasi.size() && fasi[a + 1] == fasi[a] + 1) ++a;
        testo += (testo.empty() ? "" : ", ") + std::to_string(fasi[da]);
        if (a > da) testo += (a == da + 1 ? ", " : "\u2013") + std::to_string(fasi[a]);
        da = a + 1;
    }
    return base::riempito(base::traduttore("fasi %1"), {testo});
}

}  // namespace korven::scene
