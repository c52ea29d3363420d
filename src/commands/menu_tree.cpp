#include "commands/menu_tree.hpp"

#include <algorithm>
#include <cassert>
#include <iterator>

namespace korven::commands {

namespace {

using enum Comando;

constexpr VoceMenu voci[] = {
    {"archivi", "&Archivi", 0, nessuno, 0},
    {"FileApri", "&Apri", 1, fileApri, 3},
    {"FileSalva", "&Salva", 1, fileSalva, 4},
    {"PrintSetup", "&Configura Stampante", 1, printSetup, 27},
    {"AiutoFile", "&Help", 1, aiutoFile, 24},
    {"edizione", "&Edizione", 0, nessuno, 0},
    {"EditStratigrafia", "&Stratigrafia", 1, editStratigrafia, 5},
    {"EditParatia", "&Parametri Diaframma", 1, editParatia, 6},
    {"EditRigidezza", "&Descrizione Struttura", 1, editRigidezza, 7},
    {"EditTiranti", "&Caratteristiche Tiranti", 1, editTiranti, 8},
    {"EditFasi", "&Fasi di Scavo", 1, editFasi, 9},
    {"EditTitoli", "&Titoli", 1, editTitoli, 10},
    {"AiutoEdit", "&Help", 1, aiutoEdit, 25},
    {"Stampa", "&Stampa", 0, nessuno, 0},
    {"StampaGrafica", "&Grafica", 1, nessuno, 11},
    {"GraficaMomenti", "&Momenti", 2, graficaMomenti, 12},
    {"GraficaSpostamenti", "&Spostamenti", 2, graficaSpostamenti, 13},
    {"GraficaTaglio", "&Taglio", 2, graficaTaglio, 14},
    {"GraficaPressioni", "&Pressioni", 2, graficaPressioni, 15},
    {"GraficaStruttura", "&Elemento Strutturale", 2, graficaStruttura, 16},
    {"GraficaStratigrafia", "&Descrizione stratigrafica", 2, graficaStratigrafia, 17},
    {"statab", "&Tabulati", 1, nessuno, 18},
    {"StampaVideo", "Visualizza &Anteprima Tabulati", 2, stampaVideo, 19},
    {"StampaTabulati", "Stampa &Rapida Tabulati", 2, stampaTabulati, 20},
    {"espotab", "&Esporta Tabulati in Formato DOC", 2, esportaDoc, 21},
    {"espotabtxt", "Esporta Tabulati in Formato &TXT", 2, esportaTxt, 22},
    {"configura", "&Configura", 1, configura, 23},
    {"AiutoStampa", "&Help", 1, aiutoStampa, 26},
    {"fine", "&Uscita", 0, fine, 0},
    {"menuhelp", "&Help", 0, nessuno, 0},
    {"sommario", "&Sommario", 1, sommario, 0},
    {"about", "&Info", 1, about, 32},
};

}  // namespace

std::span<const VoceMenu> albero() { return voci; }

const VoceMenu& voce(Comando comando) {
    const auto* trovata = std::find_if(std::begin(voci), std::end(voci),
                                       [comando](const auto& v) { return v.comando == comando; });
    assert(comando != nessuno && trovata != std::end(voci));
    return *trovata;
}

bool apreMenu(const VoceMenu& voce) { return voce.comando == Comando::nessuno; }

}  // namespace korven::commands
