// Which drawing each menu item has.

#include <algorithm>
#include <iterator>

#include "shell/icons/icon_set.hpp"

namespace korven::shell {

namespace {

struct IconaVoce {
    std::string_view voce, icona;
};

constexpr IconaVoce iconeVoci[] = {
    {"FileApri", "open"},
    {"FileSalva", "save"},
    {"PrintSetup", "printer_setup"},
    {"AiutoFile", "help"},
    {"EditStratigrafia", "layers"},
    {"EditParatia", "wall"},
    {"EditRigidezza", "section"},
    {"EditTiranti", "anchor"},
    {"EditFasi", "stages"},
    {"EditTitoli", "headings"},
    {"AiutoEdit", "help"},
    {"StampaGrafica", "diagrams"},
    {"GraficaMomenti", "moments"},
    {"GraficaSpostamenti", "displacements"},
    {"GraficaTaglio", "shear"},
    {"GraficaPressioni", "pressures"},
    {"GraficaStruttura", "section"},
    {"GraficaStratigrafia", "log"},
    {"statab", "tables"},
    {"StampaVideo", "preview"},
    {"StampaTabulati", "print"},
    {"espotab", "doc"},
    {"espotabtxt", "txt"},
    {"configura", "pens"},
    {"AiutoStampa", "help"},
    {"annulla", "undo"},
    {"ripeti", "redo"},
    {"controlli", "remarks"},
    {"risultati", "results"},
    {"sicurezza", "safety"},
    {"allegato", "annex"},
    {"confronto", "compare"},
    {"norme", "codes"},
    {"studio", "study"},
    {"nuovo", "new"},
    {"duplica", "duplicate"},
    {"recenti", "recent"},
    {"lingua", "language"},
    {"tasti", "keys"},
    {"fine", "exit"},
    {"sommario", "contents"},
    {"about", "info"},
};

}  // namespace

std::string_view iconaVoce(std::string_view voce) {
    const auto* trovata = std::find_if(std::begin(iconeVoci), std::end(iconeVoci),
                                       [voce](const IconaVoce& i) { return i.voce == voce; });
    return trovata == std::end(iconeVoci) ? std::string_view() : trovata->icona;
}

}  // namespace korven::shell
