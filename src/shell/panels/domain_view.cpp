#include "shell/panels/domain_view.hpp"

#include <QPainter>
#include <utility>

#include "device/scene_palette.hpp"
#include "scene/domain.hpp"
#include "shell/accessible_roles.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

VistaDominio::VistaDominio(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("dominio"));
    setAccessibleName(tradotto("Dominio N–M"));
    presentaFigura(*this);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void VistaDominio::mostra(std::vector<structure::PuntoDominio> dominio,
                          std::vector<live::FaseNelDominio> fasi, std::string senza) {
    dominio_ = std::move(dominio);
    fasi_ = std::move(fasi);
    senza_ = std::move(senza);
    const QString detto = qt(scene::descrizioneDominio(dominio_, fasi_));
    setAccessibleDescription(detto.isEmpty() ? qt(senza_) : detto);
    setToolTip(detto);
    update();
}

void VistaDominio::paintEvent(QPaintEvent*) {
    const device::MisuraTestiQt misura(font());
    device::PittoreScena pittore(font(), device::tavolozza(palette()));
    QPainter p(this);
    pittore.dipingi(
        p, scene::scenaDominio(dominio_, fasi_,
                               {static_cast<double>(width()), static_cast<double>(height())},
                               misura, senza_));
}

}  // namespace korven::shell
