#include "shell/main/selezling.hpp"

#include <QHBoxLayout>
#include <QPainter>
#include <QToolButton>
#include <algorithm>
#include <iterator>

#include "shell/main/flags.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

namespace {

struct BottoneLingua {
    int codice;
    const char* nome;    // of the button
    const char* lingua;  // in that language: whoever looks for it reads no other
};

constexpr BottoneLingua bottoni[] = {
    {1, "Picture4", "Italiano"}, {2, "Picture3", "Deutsch"}, {3, "Picture2", "Français"},
    {4, "Picture5", "Español"},  {5, "Picture1", "English"}, {6, "Picture6", "Português"},
};

constexpr QSize misuraBandiera{96, 64};

// Some styles show the focus only once the tab key has been used: whoever meets the program here
// sees at once which language the space bar takes.
class BottoneConCornice : public QToolButton {
 public:
    using QToolButton::QToolButton;

 protected:
    void paintEvent(QPaintEvent* evento) override {
        QToolButton::paintEvent(evento);
        if (!hasFocus()) return;
        QPainter pittore(this);
        pittore.setPen(QPen(palette().color(QPalette::ButtonText), 2));
        pittore.drawRect(rect().adjusted(1, 1, -1, -1));
    }
};

}  // namespace

Selezling::Selezling(const std::vector<int>& codici, int presente, QWidget* genitore)
    : QDialog(genitore) {
    setObjectName("selezling");
    setWindowTitle(presente == 0 ? QStringLiteral("Select your language...")
                                 : tradotto("Lingua del programma"));
    auto* fila = new QHBoxLayout(this);
    fila->setContentsMargins(24, 24, 24, 24);
    fila->setSpacing(12);
    fila->addStretch();
    for (const int codice : codici) {
        const auto* dati = std::find_if(std::begin(bottoni), std::end(bottoni),
                                        [codice](const auto& b) { return b.codice == codice; });
        if (dati == std::end(bottoni)) continue;
        auto* bottone = new BottoneConCornice(this);
        bottone->setObjectName(dati->nome);
        bottone->setText(QString::fromUtf8(dati->lingua));
        bottone->setAccessibleName(bottone->text());
        bottone->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        bottone->setIcon(QIcon(bandiera(codice, misuraBandiera, devicePixelRatioF())));
        bottone->setIconSize(misuraBandiera);
        bottone->setFocusPolicy(Qt::StrongFocus);
        connect(bottone, &QToolButton::clicked, this, [this, codice] {
            scelta_ = codice;
            accept();
        });
        fila->addWidget(bottone);
        if (codice != presente) continue;
        bottone->setCheckable(true);
        bottone->setChecked(true);
        bottone->setFocus();
    }
    fila->addStretch();
}

int chiediLingua(const std::vector<int>& codici) {
    Selezling forma(codici);
    forma.exec();
    return forma.scelta();
}

int chiediAltraLingua(const std::vector<int>& codici, int presente, QWidget* sopra) {
    Selezling forma(codici, presente, sopra);
    forma.exec();
    return forma.scelta();
}

}  // namespace korven::shell
