#include "shell/tools/tool_forms.hpp"

#include <QWidget>

#include "base/language.hpp"
#include "base/translated_texts.hpp"
#include "commands/start/example_folders.hpp"
#include "commands/start/language_change.hpp"
#include "shell/main/selezling.hpp"
#include "shell/tools/keys_window.hpp"
#include "shell/tools/pattern_choice.hpp"

namespace korven::shell {

void collegaStrumenti(commands::FormeProgramma& forme, base::Dialogo& dialogo,
                      QWidget& principale) {
    forme.nuovo = [&principale] {
        const auto sigla = base::siglaLingua(base::linguaCorrente());
        return chiediModello(commands::modelli(commands::cartellaEsempi(sigla)), &principale);
    };
    forme.tasti = [&principale] { mostraTasti(principale); };
    forme.lingua = [&dialogo, &principale] {
        return commands::cambiaLingua(
            {.dialogo = dialogo, .scegli = [&principale](const auto& codici, int presente) {
                 return chiediAltraLingua(codici, presente, &principale);
             }});
    };
}

}  // namespace korven::shell
