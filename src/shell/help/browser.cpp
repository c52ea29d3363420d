#include "shell/help/browser.hpp"

#include <QTextBlock>
#include <QUrl>
#include <QWheelEvent>
#include <algorithm>

#include "help/search.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

namespace {

constexpr int minimoIngrandimento = -4;
constexpr int massimoIngrandimento = 16;

// A warning has the same pale ground in light and dark desktops, so it brings its own letters.
constexpr const char* stile = R"(
h1 { font-size: x-large; margin-top: 2px; margin-bottom: 8px; }
h2 { font-size: large; margin-top: 16px; margin-bottom: 4px; }
h3 { font-size: medium; margin-top: 14px; margin-bottom: 2px; }
p, li, td { line-height: 112%; }
p, ul { margin-top: 4px; margin-bottom: 6px; }
li { margin-bottom: 3px; }
.formula { margin-left: 28px; margin-top: 6px; margin-bottom: 8px; }
.capitolo { color: gray; margin-bottom: 0px; }
.avviso { background-color: #fff3cd; margin-top: 6px; margin-bottom: 8px; }
.avviso td { color: #3d3000; }
.tabella { border-collapse: collapse; border-color: gray; margin-top: 6px; margin-bottom: 8px; }
)";

QString pulito(const std::string& testo) { return qt(testo).toHtmlEscaped(); }

// True for the heading that can be jumped to by that name.
bool haNome(const QTextBlock& blocco, const QString& ancora) {
    for (auto pezzo = blocco.begin(); !pezzo.atEnd(); ++pezzo)
        if (pezzo.fragment().charFormat().anchorNames().contains(ancora)) return true;
    return false;
}

}  // namespace

VistaGuida::VistaGuida(const help::Guida& guida, QWidget* padre)
    : QTextBrowser(padre), guida_(guida) {
    setOpenExternalLinks(false);
    document()->setDefaultStyleSheet(QLatin1String(stile));
    document()->setDocumentMargin(14);
}

void VistaGuida::vai(const help::PaginaGuida& pagina, const std::string& ancora) {
    QUrl indirizzo(QStringLiteral("guida:/") + qt(pagina.nome));
    if (help::haAncora(pagina, ancora)) indirizzo.setFragment(qt(ancora));
    setSource(indirizzo, QTextDocument::HtmlResource);
}

const help::PaginaGuida* VistaGuida::paginaDi(const QUrl& indirizzo) const {
    return help::paginaDiNome(guida_, indirizzo.path().mid(1).toStdString());
}

void VistaGuida::doSetSource(const QUrl& indirizzo, QTextDocument::ResourceType tipo) {
    if (indirizzo.scheme() != QLatin1String("documento"))
        return QTextBrowser::doSetSource(indirizzo, tipo);
    if (documento) documento(indirizzo.path().toStdString());
}

QVariant VistaGuida::loadResource(int, const QUrl& indirizzo) {
    const auto* pagina = paginaDi(indirizzo);
    if (pagina == nullptr) return {};
    return QStringLiteral("<p class=\"capitolo\">%1</p><h1>%2</h1>%3")
        .arg(pulito(guida_.capitoli[pagina->capitolo]), pulito(pagina->titolo), qt(pagina->html));
}

void VistaGuida::evidenzia(const std::vector<std::string>& parole, const QString& ancora) {
    QList<ExtraSelection> scelte;
    const auto scegli = [&](int da, int a) {
        ExtraSelection scelta;
        scelta.cursor = QTextCursor(document());
        scelta.cursor.setPosition(da);
        scelta.cursor.setPosition(a, QTextCursor::KeepAnchor);
        scelta.format.setBackground(QColor(0xFF, 0xE0, 0x66));
        scelta.format.setForeground(Qt::black);
        scelte.append(scelta);
    };
    for (QTextBlock blocco = document()->begin(); blocco.isValid(); blocco = blocco.next()) {
        const std::string testo = blocco.text().toStdString();
        const auto posizione = [&](std::size_t byte) {
            return blocco.position() +
                   static_cast<int>(qt(std::string_view(testo).substr(0, byte)).size());
        };
        if (!ancora.isEmpty() && haNome(blocco, ancora))
            scegli(blocco.position(), blocco.position() + blocco.length() - 1);
        for (const auto& [da, a] : help::postiTrovati(testo, parole))
            scegli(posizione(da), posizione(a));
    }
    setExtraSelections(scelte);
}

void VistaGuida::ingrandisci(int passi) {
    passi = std::clamp(passi, minimoIngrandimento, massimoIngrandimento);
    zoomIn(passi - ingrandimento_);
    ingrandimento_ = passi;
}

void VistaGuida::wheelEvent(QWheelEvent* evento) {
    if (!(evento->modifiers() & Qt::ControlModifier)) return QTextBrowser::wheelEvent(evento);
    ingrandisci(ingrandimento_ + (evento->angleDelta().y() > 0 ? 1 : -1));
    evento->accept();
}

}  // namespace korven::shell
