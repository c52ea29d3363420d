#include "desktop/live_check.hpp"

#include <QApplication>
#include <QWindow>

#include "desktop/random_hands.hpp"
#include "live/live_project.hpp"
#include "project/project_data.hpp"
#include "shell/masks/form_frame.hpp"
#include "shell/section/definej.hpp"

namespace korven::test {

namespace {

std::string faseDiversa(const equilibrium::FaseEquilibrio& vista,
                        const equilibrium::FaseEquilibrio& nuova) {
    if (vista.esito != nuova.esito) return "verdict";
    if (vista.y != nuova.y) return "displacements";
    if (vista.momento != nuova.momento || vista.taglio != nuova.taglio) return "moments and shears";
    if (vista.monte != nuova.monte || vista.valle != nuova.valle) return "pressures";
    if (vista.tiri != nuova.tiri) return "anchors";
    return {};
}

std::string pareteDiversa(const live::PareteViva& vista, const live::PareteViva& nuova) {
    if (!(vista.dati == nuova.dati)) return "the data differ";
    if (vista.rifiuto != nuova.rifiuto) return "refusal: " + vista.rifiuto + " | " + nuova.rifiuto;
    if (vista.nSeg != nuova.nSeg || vista.fasi.size() != nuova.fasi.size())
        return "another number of segments or stages";
    for (std::size_t k = 0; k < vista.fasi.size(); ++k)
        if (const auto cosa = faseDiversa(vista.fasi[k], nuova.fasi[k]); !cosa.empty())
            return cosa + " of stage " + std::to_string(k + 1);
    return {};
}

}  // namespace

QWidget* formaAperta() {
    QWidget* modale = QApplication::activeModalWidget();
    const bool forma = qobject_cast<shell::FormaMaschera*>(modale) != nullptr ||
                       qobject_cast<shell::DefinEJ*>(modale) != nullptr;
    return forma && modale->isVisible() && QApplication::activePopupWidget() == nullptr ? modale
                                                                                        : nullptr;
}

ContenutoForma contenutoDi(const QWidget& forma) {
    if (const auto* maschera = qobject_cast<const shell::FormaMaschera*>(&forma)) {
        auto valori = maschera->valori();
        return {std::move(valori.combo), std::move(valori.testi), {}};
    }
    return {{}, {}, qobject_cast<const shell::DefinEJ*>(&forma)->letta()};
}

std::string differenza(const ContenutoForma& una, const ContenutoForma& altra) {
    if (una.scelte != altra.scelte) return "a choice";
    if (!(una.sezione == altra.sezione)) return "the section";
    if (una.testi.size() != altra.testi.size())
        return std::to_string(una.testi.size()) + " texts, not " +
               std::to_string(altra.testi.size());
    for (std::size_t n = 0; n < una.testi.size(); ++n)
        if (una.testi[n] != altra.testi[n])
            return "text " + std::to_string(n) + ": \"" + una.testi[n] + "\", not \"" +
                   altra.testi[n] + "\"";
    return {};
}

std::string vitaDiversa(const desktop::Sessione& sessione, const QWidget* forma) {
    const live::ProgettoVivo& vivo = sessione.vita().vivo();
    const bool aperto = !project::fileCorrente.empty();
    if (vivo.aperto() != aperto) return aperto ? "not seen as open" : "seen as open";
    if (!aperto) return {};
    live::ProgettoVivo nuovo;
    nuovo.guarda(&project::Progetto);
    if (forma != nullptr) {
        if (const auto* maschera = qobject_cast<const shell::FormaMaschera*>(forma)) {
            auto valori = maschera->valori();
            valori.maschera = static_cast<masks::NumeroMaschera>(sessione.maschere().numero());
            nuovo.digita(sessione.maschere().corrente(), valori);
        } else {
            nuovo.digita(qobject_cast<const shell::DefinEJ*>(forma)->letta());
        }
        // What can't be confirmed leaves what was seen last, which nobody but the program knows.
        if (!nuovo.impedimento().empty()) return {};
    }
    return pareteDiversa(vivo.parete(), nuovo.parete());
}

std::string finestreSole() {
    std::string tutte;
    for (const QWidget* una : QApplication::topLevelWidgets()) {
        const auto tipo = una->windowType();
        const bool propria = tipo == Qt::Window || tipo == Qt::Dialog;
        if (propria && una->isVisible() && una->windowHandle()->transientParent() == nullptr)
            tutte += (tutte.empty() ? "" : ", ") + nomeDi(*una);
    }
    return tutte;
}

std::string finestreStrane() {
    for (const QWidget* una : QApplication::topLevelWidgets()) {
        const auto tipo = una->windowType();
        const bool propria = tipo == Qt::Window || tipo == Qt::Dialog;
        if (propria && una->isVisible() && una->windowTitle().isEmpty())
            return "no title: " + nomeDi(*una);
    }
    return {};
}

}  // namespace korven::test
