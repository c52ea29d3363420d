#include "shell/toolkit_texts.hpp"

#include <QLibraryInfo>
#include <QLocale>
#include <utility>

namespace korven::shell {

namespace {

constexpr const char* codici[] = {"it", "de", "fr", "es", "en", "pt_BR"};
constexpr int portoghese = 6;

// What is said otherwise in Portugal, of the words of the dialogs that the program opens; a longer
// one before its parts.
constexpr std::pair<const char*, const char*> parole[] = {
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

class DelPortogallo : public QTranslator {
 public:
    QString translate(const char* contesto, const char* testo, const char* distinzione,
                      int numero) const override {
        QString tradotto = QTranslator::translate(contesto, testo, distinzione, numero);
        for (const auto& [brasiliano, europeo] : parole)
            tradotto.replace(QString::fromUtf8(brasiliano), QString::fromUtf8(europeo));
        return tradotto;
    }
};

}  // namespace

std::unique_ptr<QTranslator> testiQt(int lingua) {
    if (lingua < 1 || lingua > 6) return nullptr;
    std::unique_ptr<QTranslator> testi;
    if (lingua == portoghese)
        testi = std::make_unique<DelPortogallo>();
    else
        testi = std::make_unique<QTranslator>();
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
