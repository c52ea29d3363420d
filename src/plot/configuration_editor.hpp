#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "plot/plot_configuration.hpp"

namespace korven::plot {

/// A number that the file can't hold: the field that it was typed into, and what it may be.
struct ValoreFuori {
    enum class Campo { spessore, margineSinistro, margineSuperiore };
    Campo campo{};
    int penna = 0;  ///< of a width; 0 for a margin
    double minimo = 0, massimo = 0;
    bool operator==(const ValoreFuori&) const = default;
};

/// The edits of a pen configuration while its user makes them: which pen is shown, what its
/// controls change, what is written at the end. A form only moves values in and out.
///
/// A pen is found by its label. Of two pens with the same label the first one therefore takes the
/// edits of both.
class ModelloPenne {
 public:
    /// Reads the file `percorso`.
    /// @throws ErroreFile when it is missing or broken (plot_configuration.hpp)
    explicit ModelloPenne(std::string percorso);

    [[nodiscard]] const ConfigurazionePlot& configurazione() const { return configurazione_; }

    /// Makes the pen with that label the one that the changes below go to, and lets `mostra` put
    /// its values into the controls. The changes that these then report are not the user's, and
    /// change nothing. A label that no pen has does nothing.
    void scegliPenna(std::string_view etichetta,
                     const std::function<void(const PennaConfigurata&)>& mostra);

    /// What the user does to the pen chosen. Without one, and while a pen is being shown, nothing.
    /// @param indice  0 to 15; 0: not drawn
    void cambiaColore(int indice);
    /// @param testo  as typed, in millimetres; what is no number is 0
    void cambiaSpessore(std::string_view testo);
    void cambiaCarattere(std::string_view nome);

    /// True when a double click on that colour opens the colour chooser: on every one but 0, unless
    /// a pen is being shown.
    [[nodiscard]] bool siPuoCambiareValore(int indice) const;

    /// Gives a colour another value, for all pens that use it.
    /// @return false when it is the one that it had; nobody then asks for its new name
    bool cambiaValore(int indice, Colore valore);
    void cambiaNome(int indice, std::string_view nome);

    /// The first width (from pen 1 on), or else the first margin, that `conferma` would refuse.
    [[nodiscard]] std::optional<ValoreFuori> valoreFuori(std::string_view margineSinistro,
                                                         std::string_view margineSuperiore) const;

    /// Takes the margins as typed, writes the file anew and puts the margins into force at once.
    /// The pens come into force with the next drawing.
    /// @throws ErroreFile with the system's reason, or with the line of a width or a margin that
    ///         could not be read back; the margins in force and the file are then as before
    void conferma(std::string_view margineSinistro, std::string_view margineSuperiore,
                  const base::Disco& disco = base::discoDiSistema());

 private:
    PennaConfigurata* pennaDaCambiare();

    std::string percorso_;
    ConfigurazionePlot configurazione_;
    std::string etichetta_;   // label of the pen chosen
    bool scelta_ = false;     // a pen is chosen
    bool mostrando_ = false;  // while `mostra` fills the controls
};

}  // namespace korven::plot
