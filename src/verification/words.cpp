#include "verification/words.hpp"

#include <algorithm>
#include <cmath>

#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "safety/words.hpp"
#include "verification/outcome_names.hpp"

namespace korven::verification {

namespace {

using base::traduttore;

constexpr const char* nessuno = "-";
constexpr int cifreDiUnaCorsa = 6;  // where the expected value is a run's too

// Decimals that leave `cifreDiUnaCorsa` digits.
int decimaliDi(double valore) {
    if (valore == 0) return 1;
    const int interi = static_cast<int>(std::floor(std::log10(std::fabs(valore)))) + 1;
    return std::clamp(cifreDiUnaCorsa - interi, 0, 9);
}

int decimali(const Confronto& c, double valore) {
    return c.attesa->confronto ? decimaliDi(valore) : c.attesa->decimali;
}

std::string parolaEsito(double valore) {
    return safety::parole(static_cast<equilibrium::EsitoFase>(static_cast<int>(valore)));
}

}  // namespace

std::string parole(const Caso& caso, const Attesa& attesa) {
    std::string testo = traduttore(attesa.grandezza->didascalia);
    const Luogo& luogo = attesa.luogo;
    if (attesa.grandezza->diFase && caso.parete.dati.nFasi > 1)
        testo += ", " + traduttore("fase") + ' ' + std::to_string(luogo.fase);
    if (luogo.z) testo += ", z " + safety::metri(*luogo.z) + " m";
    if (luogo.tirante > 0)
        testo += ", " + traduttore("tirante") + ' ' + std::to_string(luogo.tirante);
    return testo;
}

std::string parole(Metodo metodo) {
    switch (metodo) {
        case Metodo::corsa:
            return traduttore("Relazione");
        case Metodo::equilibrio:
            return traduttore("Equilibrio");
        case Metodo::sezione:
            return traduttore("Sezione");
    }
    return {};
}

std::string parole(Verdetto verdetto) { return traduttore(codice(verdetto)); }

std::string codice(Metodo metodo) {
    switch (metodo) {
        case Metodo::corsa:
            return "relazione";
        case Metodo::equilibrio:
            return "equilibrio";
        case Metodo::sezione:
            return "sezione";
    }
    return {};
}

std::string codice(Verdetto verdetto) {
    switch (verdetto) {
        case Verdetto::buono:
            return "buono";
        case Verdetto::fallito:
            return "fallito";
        case Verdetto::noto:
            return "noto";
    }
    return {};
}

std::string atteso(const Confronto& c) {
    if (aParole(*c.attesa->grandezza))
        return parolaEsito(static_cast<double>(*esito(c.attesa->parola)));
    return c.atteso ? base::testoDecimali(*c.atteso, decimali(c, *c.atteso)) : nessuno;
}

std::string ottenuto(const Confronto& c) {
    if (!c.ottenuto) return nessuno;
    if (aParole(*c.attesa->grandezza)) return parolaEsito(*c.ottenuto);
    return base::testoDecimali(*c.ottenuto,
                               decimali(c, *c.ottenuto) + (c.attesa->confronto ? 0 : 1));
}

std::string differenza(const Confronto& c) {
    constexpr int percento = 2;  // places of the point
    constexpr int decimaliPercento = 3;
    if (!c.differenza) return nessuno;
    if (c.attesa->tolleranza.relativa)
        return c.quota() ? base::testoDecimali(*c.quota(), decimaliPercento, percento) + " %"
                         : nessuno;
    const std::string unita(c.attesa->grandezza->unita.mostrata);
    const int cifre = c.attesa->confronto ? decimaliDi(*c.ottenuto) : c.attesa->decimali + 1;
    return base::testoDecimali(*c.differenza, cifre) +
           (unita == nessuno || unita.empty() ? "" : ' ' + unita);
}

std::string sommario(const EsitoVerifica& esito) {
    const int buoni = esito.conta(Verdetto::buono), falliti = esito.conta(Verdetto::fallito),
              noti = esito.conta(Verdetto::noto);
    std::string testo =
        base::riempito(traduttore("Casi: %1; buoni: %2; falliti: %3; differenze note: %4."),
                       {std::to_string(buoni + falliti + noti), std::to_string(buoni),
                        std::to_string(falliti), std::to_string(noti)});
    if (const int rientrati = esito.rientrati(); rientrati > 0)
        testo += ' ' + base::riempito(traduttore("Differenze note che non ci sono più: %1."),
                                      {std::to_string(rientrati)});
    return testo;
}

}  // namespace korven::verification
