#include "shell/help/guida.hpp"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QStyle>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <functional>

#include "help/search.hpp"
#include "shell/dialogo_qt.hpp"
#include "shell/form_sizes.hpp"
#include "shell/help/browser.hpp"
#include "shell/help/documents.hpp"
#include "shell/help/results.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

namespace {

constexpr int datoPagina = Qt::UserRole;  // index of the page of an item
constexpr const char* chiaveCaratteri = "guida/caratteri";

QToolButton* bottone(const char* nome, const QString& testo, const QString& tasti, QWidget* padre,
                     std::function<void()> azione) {
    auto* fatto = new QToolButton(padre);
    fatto->setObjectName(QLatin1String(nome));
    fatto->setAccessibleName(testo);
    fatto->setToolTip(testo + QStringLiteral(" (") + tasti + QStringLiteral(")"));
    fatto->setAutoRaise(true);
    fatto->setFocusPolicy(Qt::TabFocus);
    QObject::connect(fatto, &QToolButton::clicked, padre, std::move(azione));
    return fatto;
}

}  // namespace

FinestraGuida::FinestraGuida(help::Guida guida) : guida_(std::move(guida)) {
    setObjectName(QStringLiteral("guida"));
    setWindowTitle(QStringLiteral("KORVEN 32 - ") + tradotto("Guida"));
    setAttribute(Qt::WA_QuitOnClose, false);
    pagina_ = new VistaGuida(guida_, this);
    pagina_->setObjectName(QStringLiteral("pagina"));
    pagina_->setAccessibleName(tradotto("Guida"));
    pagina_->documento = [this](const std::string& nome) {
        DialogoQt dialogo;
        dialogo.sopra(this);
        apriDocumento(nome, dialogo);
    };
    auto* divisa = new QSplitter(this);
    divisa->setChildrenCollapsible(false);
    divisa->addWidget(fareColonna());
    divisa->addWidget(pagina_);
    divisa->setStretchFactor(1, 1);
    divisa->setSizes({320, 660});
    auto* tutto = new QVBoxLayout(this);
    tutto->setContentsMargins(6, 4, 6, 6);
    tutto->setSpacing(4);
    tutto->addWidget(fareBarra());
    tutto->addWidget(divisa, 1);
    fareScorciatoie();
    riempiAlbero();
    connect(pagina_, &QTextBrowser::sourceChanged, this,
            [this](const QUrl& indirizzo) { segui(indirizzo); });
    setMinimumSize(560, 360);
    prendiMisura(*this, {1000, 700});
    pagina_->ingrandisci(ricordiFinestre().value(QLatin1String(chiaveCaratteri), 0).toInt());
}

QWidget* FinestraGuida::fareBarra() {
    auto* barra = new QWidget(this);
    indietro_ =
        bottone("indietro", tradotto("Indietro"), "Alt+←", barra, [this] { pagina_->backward(); });
    avanti_ = bottone("avanti", tradotto("Avanti"), "Alt+→", barra, [this] { pagina_->forward(); });
    auto* sommario =
        bottone("sommario", tradotto("Sommario"), "Alt+Home", barra, [this] { mostraSommario(); });
    auto* piccoli = bottone("piccoli", tradotto("Caratteri più piccoli"), "Ctrl+−", barra,
                            [this] { ingrandisci(pagina_->ingrandimento() - 1); });
    auto* grandi = bottone("grandi", tradotto("Caratteri più grandi"), "Ctrl++", barra,
                           [this] { ingrandisci(pagina_->ingrandimento() + 1); });
    indietro_->setIcon(style()->standardIcon(QStyle::SP_ArrowBack));
    avanti_->setIcon(style()->standardIcon(QStyle::SP_ArrowForward));
    sommario->setText(tradotto("Sommario"));
    piccoli->setText(QStringLiteral("A−"));
    grandi->setText(QStringLiteral("A+"));
    for (QToolButton* freccia : {indietro_, avanti_}) {
        freccia->setEnabled(false);
        freccia->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        freccia->setText(freccia->accessibleName());
    }
    connect(pagina_, &QTextBrowser::backwardAvailable, indietro_, &QWidget::setEnabled);
    connect(pagina_, &QTextBrowser::forwardAvailable, avanti_, &QWidget::setEnabled);
    auto* fila = new QHBoxLayout(barra);
    fila->setContentsMargins(0, 0, 0, 0);
    for (QWidget* uno : {indietro_, avanti_, sommario}) fila->addWidget(uno);
    fila->addStretch();
    fila->addWidget(piccoli);
    fila->addWidget(grandi);
    return barra;
}

QWidget* FinestraGuida::fareColonna() {
    auto* tutta = new QWidget(this);
    cerca_ = new QLineEdit(tutta);
    cerca_->setObjectName(QStringLiteral("cerca"));
    cerca_->setPlaceholderText(tradotto("Cerca nella guida"));
    cerca_->setAccessibleName(cerca_->placeholderText());
    cerca_->setClearButtonEnabled(true);
    albero_ = new QTreeWidget(tutta);
    albero_->setObjectName(QStringLiteral("albero"));
    albero_->setAccessibleName(tradotto("Sommario"));
    albero_->setHeaderHidden(true);
    risultati_ = new QWidget(tutta);
    conto_ = new QLabel(risultati_);
    conto_->setObjectName(QStringLiteral("conto"));
    trovate_ = new QListWidget(risultati_);
    trovate_->setObjectName(QStringLiteral("trovate"));
    trovate_->setAccessibleName(tradotto("Pagine trovate"));
    trovate_->setItemDelegate(new DelegatoTrovate(trovate_));
    trovate_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    trovate_->setResizeMode(QListView::Adjust);
    trovate_->setAlternatingRowColors(true);
    auto* sotto = new QVBoxLayout(risultati_);
    sotto->setContentsMargins(0, 0, 0, 0);
    sotto->addWidget(conto_);
    sotto->addWidget(trovate_, 1);
    colonna_ = new QStackedWidget(tutta);
    colonna_->addWidget(albero_);
    colonna_->addWidget(risultati_);
    auto* pila = new QVBoxLayout(tutta);
    pila->setContentsMargins(0, 0, 0, 0);
    pila->addWidget(cerca_);
    pila->addWidget(colonna_, 1);

    connect(cerca_, &QLineEdit::textChanged, this, [this](const QString& testo) { cerca(testo); });
    connect(cerca_, &QLineEdit::returnPressed, this, [this] { apriTrovata(); });
    connect(trovate_, &QListWidget::itemClicked, this, [this] { apriTrovata(); });
    connect(trovate_, &QListWidget::itemActivated, this, [this] { apriTrovata(); });
    const auto apri = [this](QTreeWidgetItem* voce) {
        const QVariant indice = voce->data(0, datoPagina);
        if (indice.isValid()) mostra(guida_.pagine[indice.toULongLong()]);
    };
    connect(albero_, &QTreeWidget::itemClicked, this, apri);
    connect(albero_, &QTreeWidget::itemActivated, this, apri);
    return tutta;
}

void FinestraGuida::fareScorciatoie() {
    const auto lega = [this](const QKeySequence& tasti, std::function<void()> azione) {
        auto* scorciatoia = new QShortcut(tasti, this);
        connect(scorciatoia, &QShortcut::activated, this, std::move(azione));
    };
    lega(QKeySequence(Qt::ALT | Qt::Key_Left), [this] { pagina_->backward(); });
    lega(QKeySequence(Qt::ALT | Qt::Key_Right), [this] { pagina_->forward(); });
    lega(QKeySequence(Qt::ALT | Qt::Key_Home), [this] { mostraSommario(); });
    lega(QKeySequence(Qt::CTRL | Qt::Key_F), [this] {
        cerca_->setFocus();
        cerca_->selectAll();
    });
    for (const int piu : {int{Qt::Key_Plus}, int{Qt::Key_Equal}})
        lega(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(piu)),
             [this] { ingrandisci(pagina_->ingrandimento() + 1); });
    lega(QKeySequence(Qt::CTRL | Qt::Key_Minus),
         [this] { ingrandisci(pagina_->ingrandimento() - 1); });
    lega(QKeySequence(Qt::CTRL | Qt::Key_0), [this] { ingrandisci(0); });
    lega(QKeySequence(Qt::Key_Escape), [this] { close(); });
    // Down leads from the search to what it found.
    auto* giu = new QShortcut(QKeySequence(Qt::Key_Down), cerca_);
    giu->setContext(Qt::WidgetShortcut);
    connect(giu, &QShortcut::activated, this, [this] { colonna_->currentWidget()->setFocus(); });
    risultati_->setFocusProxy(trovate_);
}

void FinestraGuida::riempiAlbero() {
    for (std::size_t i = 0; i < guida_.pagine.size(); ++i) {
        const auto& pagina = guida_.pagine[i];
        const int capitolo = static_cast<int>(pagina.capitolo);
        while (albero_->topLevelItemCount() <= capitolo) {
            const auto nuovo = static_cast<std::size_t>(albero_->topLevelItemCount());
            auto* voce = new QTreeWidgetItem(albero_, {qt(guida_.capitoli[nuovo])});
            QFont grassetto = voce->font(0);
            grassetto.setBold(true);
            voce->setFont(0, grassetto);
        }
        auto* voce = new QTreeWidgetItem(albero_->topLevelItem(capitolo), {qt(pagina.titolo)});
        voce->setData(0, datoPagina, static_cast<qulonglong>(i));
        voce->setToolTip(0, qt(pagina.titolo));
    }
    albero_->expandAll();
}

void FinestraGuida::mostra(const help::PaginaGuida& pagina, const std::string& ancora) {
    pagina_->vai(pagina, ancora);
}

void FinestraGuida::mostraSommario() {
    cerca_->clear();
    mostra(guida_.pagine.front());
    albero_->setFocus();
}

void FinestraGuida::cerca(const QString& testo) {
    const std::string cercato = testo.toStdString();
    trovate_->clear();
    for (const auto& trovata : help::cercaNellaGuida(guida_, cercato)) {
        auto* voce = new QListWidgetItem(qt(trovata.pagina->titolo), trovate_);
        voce->setData(datoBrano, qt(trovata.brano));
        voce->setData(datoPagina, static_cast<qulonglong>(trovata.pagina - guida_.pagine.data()));
    }
    conto_->setText(trovate_->count() == 0 ? tradotto("Nessuna pagina trovata")
                                           : tradotto("Pagine trovate") +
                                                 QStringLiteral(": %1").arg(trovate_->count()));
    trovate_->setCurrentRow(0);
    const bool parole = !help::paroleCercate(cercato).empty();
    colonna_->setCurrentWidget(parole ? risultati_ : albero_);
    pagina_->evidenzia(help::paroleCercate(cercato));
}

void FinestraGuida::apriTrovata() {
    if (const QListWidgetItem* voce = trovate_->currentItem())
        mostra(guida_.pagine[voce->data(datoPagina).toULongLong()]);
}

void FinestraGuida::segui(const QUrl& indirizzo) {
    const auto* pagina = pagina_->paginaDi(indirizzo);
    if (pagina == nullptr) return;
    const auto indice = static_cast<qulonglong>(pagina - guida_.pagine.data());
    for (QTreeWidgetItemIterator voce(albero_); *voce != nullptr; ++voce)
        if ((*voce)->data(0, datoPagina).isValid() &&
            (*voce)->data(0, datoPagina).toULongLong() == indice)
            albero_->setCurrentItem(*voce);
    pagina_->evidenzia(help::paroleCercate(cerca_->text().toStdString()), indirizzo.fragment());
}

void FinestraGuida::ingrandisci(int passi) {
    pagina_->ingrandisci(passi);
    ricordiFinestre().setValue(QLatin1String(chiaveCaratteri), pagina_->ingrandimento());
}

void FinestraGuida::closeEvent(QCloseEvent* evento) {
    ricordaMisure(*this);
    QWidget::closeEvent(evento);
}

}  // namespace korven::shell
