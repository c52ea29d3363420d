#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace korven::commands {

class Programma;
struct FormeProgramma;

/// An item of a menu that is filled as it opens.
struct VoceMutevole {
    std::string testo;             ///< caption as it is shown; "&" marks the access key
    std::function<void()> scelta;  ///< carries it out; empty: it is shown and can't be chosen
    bool staccata = false;         ///< a line parts it from the item above
};

/// One item of the menu with its command: all that the program knows of either. A new command is a
/// new row.
struct VoceMenu {
    std::string_view nome;   ///< of the item, by which the program, tests and scripts find it
    std::string_view testo;  ///< caption, an Italian key; "&" marks the access key
    int livello = 0;         ///< 0 menu bar, 1 menu, 2 submenu: an item belongs to the nearest
                             ///< one above it of a lower level
    int guida = 0;           ///< its entry of the table of help contexts; 0: none
    /// Whether the form that the command shows is plugged in; null if it shows none.
    bool (*haForma)(const FormeProgramma& forme) = nullptr;
    /// Carries the command out; null for an item that opens a menu.
    /// @return true when the program is to end
    bool (*comando)(Programma& programma, const VoceMenu& voce) = nullptr;
    /// Its keys, as the whole world writes them ("Ctrl+O"); empty: none.
    std::string_view tasti = {};
    /// Whether the command has anything to do just now, asked when its menu opens; null: always.
    bool (*possibile)(const Programma& programma) = nullptr;
    /// What the command would act on just now, asked with `possibile`: the name of a form,
    /// translated; null for one that needs no such word.
    std::string (*cosa)(const Programma& programma) = nullptr;
    /// The items of a menu that is filled anew each time it opens; null for one whose items stand
    /// in the tree.
    std::vector<VoceMutevole> (*riempi)(Programma& programma) = nullptr;
    bool staccata = false;  ///< a line parts it from the item above
    /// It opens a window beside the main form and changes nothing: also while a drawing is shown,
    /// which the main form waits for.
    bool accanto = false;
};

/// The menu from left to right and from top to bottom.
[[nodiscard]] std::span<const VoceMenu> albero();

/// The item of a name, which lives as long as the program. @pre there is one: asserted
[[nodiscard]] const VoceMenu& voceMenu(std::string_view nome);

/// True for an item that opens a menu: the next one lies deeper.
[[nodiscard]] bool apreMenu(const VoceMenu& voce);

}  // namespace korven::commands
