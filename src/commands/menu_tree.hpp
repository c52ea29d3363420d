#pragma once

#include <span>
#include <string_view>

namespace korven::commands {

/// What the items of the main form's menu do; `nessuno` opens a menu.
enum class Comando {
    nessuno,
    fileApri,
    fileSalva,
    printSetup,
    aiutoFile,
    editStratigrafia,
    editParatia,
    editRigidezza,
    editTiranti,
    editFasi,
    editTitoli,
    aiutoEdit,
    graficaMomenti,
    graficaSpostamenti,
    graficaTaglio,
    graficaPressioni,
    graficaStruttura,
    graficaStratigrafia,
    stampaVideo,
    stampaTabulati,
    esportaDoc,
    esportaTxt,
    configura,
    aiutoStampa,
    fine,
    sommario,
    about,
};

/// One item of the menu.
struct VoceMenu {
    std::string_view nome;   ///< of the item, by which tests and scripts find it
    std::string_view testo;  ///< caption, an Italian key; "&" marks the access key
    int livello = 0;         ///< 0 menu bar, 1 menu, 2 submenu: an item belongs to the nearest
                             ///< one above it of a lower level
    Comando comando = Comando::nessuno;
    int aiuto = 0;  ///< its entry of the table of help contexts; 0: none
};

/// The menu from left to right and from top to bottom.
[[nodiscard]] std::span<const VoceMenu> albero();

/// The item of a command. @pre not `nessuno`: asserted
[[nodiscard]] const VoceMenu& voce(Comando comando);

/// True for an item that opens a menu: the next one lies deeper.
[[nodiscard]] bool apreMenu(const VoceMenu& voce);

}  // namespace korven::commands
