#include "shell/toolkit_texts.hpp"

#include <QLibraryInfo>
#include <QLocale>
#include <span>
#include <utility>

namespace korven::shell {

namespace {

constexpr const char* codici[] = {"it", "de", "fr", "es", "en", "pt_BR"};
constexpr int spagnolo = 4, portoghese = 6;

using Parole = std::span<const std::pair<const char*, const char*>>;

// Spanish keyboards and all other texts of the program say Ctrl.
constexpr std::pair<const char*, const char*> paroleSpagnole[] = {{"Control", "Ctrl"}};

// What is said otherwise in Portugal, of the words of the dialogs that the program opens; a longer
// one before its parts.
constexpr std::pair<const char*, const char*> parolePortoghesi[] = {
    {"Arquivo", "Ficheiro"},
    {"arquivo", "ficheiro"},
    {"Salvar", "Guardar"},
    {"salvar", "guardar"},
    {"E&xcluir", "&Eliminar"},
    {"Excluir", "Eliminar"},
    {"excluir", "eliminar"},
    {"&Renomear", "&Mudar o nome"},
    {"na tela", "no ecrã"},
    {"Exibição", "Vista"},
    {"Configurações", "Definições"},
    {"Colorido", "A cores"},
    {"Tons de cinza", "Tons de cinzento"},
    {"Paisagem invertida", "Horizontal invertida"},
    {"Retrato invertido", "Vertical invertida"},
    {"Paisagem", "Horizontal"},
    {"Retrato", "Vertical"},
};

class TestiCorretti : public QTranslator {
 public:
    explicit TestiCorretti(Parole parole) : parole_(parole) {}
    QString translate(const char* contesto, const char* testo, const char* distinzione,
                      int numero) const override {
        QString tradotto = QTranslator::translate(contesto, testo, distinzione, numero);
        for (const auto& [diQt, nostra] : parole_)
            tradotto.replace(QString::fromUtf8(diQt), QString::fromUtf8(nostra));
        return tradotto;
    }

 private:
    Parole parole_;
};

}  // namespace

std::unique_ptr<QTranslator> testiQt(int lingua) {
    if (lingua < 1 || lingua > 6) return nullptr;
    Parole parole;
    if (lingua == spagnolo) parole = paroleSpagnole;
    if (lingua == portoghese) parole = parolePortoghesi;
    auto testi = std::make_unique<TestiCorretti>(parole);
    const bool letti = testi->load(QLatin1String("qtbase_") + QLatin1String(codici[lingua - 1]),
                                   QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    if (!letti) return nullptr;
    return testi;
}

void segnoDecimaleQt() {
    QLocale senzaMigliaia = QLocale::c();
    senzaMigliaia.setNumberOptions(QLocale::OmitGroupSeparator);
    QLocale::setDefault(senzaMigliaia);
}

}  // namespace korven::shell
