#include "shell/picture/live_picture.hpp"

#include <memory>
#include <string>
#include <utility>

#include "base/colon.hpp"
#include "base/translated_texts.hpp"
#include "shell/main/menu1.hpp"
#include "shell/picture/picture_files.hpp"
#include "shell/picture/picture_panel.hpp"
#include "shell/picture/picture_view.hpp"
#include "shell/viewer/dialogs.hpp"

namespace korven::shell {

void collegaFigura(Menu1& principale, VitaProgetto& vita, base::Dialogo& dialogo,
                   std::function<QPrinter&()> stampante) {
    insegnaAccessoFigura();
    auto porte = std::make_shared<PorteDesktop>(
        std::move(stampante), [&principale](const std::string& percorso) {
            principale.stato(base::conDuePunti(base::traduttore("File scritto"), percorso));
        });
    auto* pannello = new PannelloFigura(vita, [&vita, &dialogo, porte](const QFont& font) {
        salvaFigura(vita.vivo(), font, *porte, dialogo);
    });
    principale.accogliFigura(pannello,
                             {PannelloFigura::larghezzaEmblema, PannelloFigura::altezzaEmblema});
    QObject::connect(pannello, &PannelloFigura::copiata, &principale, [&](const QString& che) {
        principale.stato(base::traduttore("Figura copiata come immagine e come SVG") + " (" +
                         che.toStdString() + ")");
    });
    QObject::connect(&vita, &VitaProgetto::cambiata, pannello, [&principale, &vita] {
        if (vita.vivo().aperto()) principale.mostraFigura();
    });
}

}  // namespace korven::shell
