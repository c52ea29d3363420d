// Every text that the sources may show must be in the table of texts. What reaches the translation
// goes through tables, constants and functions, so this test does not follow it: it takes each
// literal with a word in it for a text and knows by name those that are none.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <string_view>

#include "base/code_page.hpp"
#include "base/files.hpp"
#include "base/text_table.hpp"
#include "project/field_table.hpp"
#include "tools/string_literals.hpp"
#include "tools/text_source.hpp"

namespace korven {
namespace {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

// Files whose literals are all none.
const std::map<std::string, std::string> silentFiles = {
    {"batch/run/outcome_json.cpp", "names of fields, the same in all languages"},
    {"project/units.hpp", "units, the same in all languages"},
    {"base/language.cpp", "tags, and errors from before a language is chosen"},
    {"base/language.hpp", "an error from before a language is chosen"},
    {"base/text_table.cpp", "errors of the table of texts itself"},
    {"base/table.hpp", "an index beyond a table, which the translation may meet itself"},
    {"analysis/solver/vector_lanes.hpp", "names of processors"},
    {"plot/dxf/tables.cpp", "words of the DXF format"},
    {"outdoc/document_blocks.cpp", "words of the file"},
    {"outdoc/document_page.cpp", "words of the file"},
    {"outdoc/document_parts.cpp", "words of the file"},
    {"outdoc/document_parts.hpp", "names of styles"},
    {"outdoc/paragraph.cpp", "words of the file, a font"},
    {"analysis/solver/vector_lanes.cpp", "names of processors"},
    {"device/drawing_fonts.cpp", "names of fonts"},
    {"device/svg_writer.cpp", "words of the file"},
    {"batch/options/paper.cpp", "names of sheets, the same in all languages"},
    {"help/search_text.cpp", "tags, names of letters"},
    {"shell/help/browser.cpp", "style and addresses of the pages"},
    {"shell/form_sizes.cpp", "names of the user's settings"},
    {"shell/viewer/icons.cpp", "drawings of icons and their names"},
    {"shell/toolkit_texts.cpp", "words of Qt's own texts"},
};

// Names of files and of the system, symbols, what is typed on the command line.
const std::map<std::string, Texts> noTexts = {
    {"analysis/progress.cpp", {"iter.=", "Ymax=", "Mmax="}},
    {"analysis/result_file.cpp",
     {"sigmaVv", "Ehv", "kav", "kpv", "sigmaVm", "Ehm", "kam", "kpm", "Spostamenti", "Momenti"}},
    {"analysis/segment_count.cpp", {"nseg.txt"}},
    {"analysis/unfinished_results.cpp", {"sigmaVv"}},
    {"base/folders/file_names.cpp", {"OUT", "TAB", "doc", "pdf"}},
    {"base/folders/file_names.hpp",
     {"relazione", "report", "sezione", "section", "stratigrafia", "log"}},
    {"base/file_identity.cpp", {"/.korven-XXXXXX", "/.KORVEN-"}},
    {"base/process/closed_pipe.cpp", {"/dev/null"}},
    {"base/files.cpp", {"/.korven-XXXXXX"}},
    {"base/folders/leftovers.hpp", {".korven-", ".lock", "korven32-"}},
    {"base/text_lines.cpp", {"\\xFF\\xFE", "\\xFE\\xFF", "\\xEF\\xBB\\xBF"}},
    {"base/process/program_questions.cpp",
     {"language.cfg", "texts01.txt", "texts06.txt", "texts32.txt"}},
    {"base/process/program_questions.hpp", {"PROGETTO.kvd", "PROJECT.kvd"}},
    {"base/version.cpp", {"KORVEN 32"}},
    {"base/folders/program_folder.cpp", {"KORVEN32_HOME", "/proc/self/exe"}},
    {"base/folders/user_data.cpp",
     {"XDG_DATA_HOME", "korven32", "HOME", "/tmp", ".local", "share"}},
    {"batch/run/console.cpp", {"iter.=", "Ymax=", "Mmax="}},
    {"batch/main.cpp", {"korven32c:"}},
    {"batch/console_program.cpp", {"korven32c:"}},
    {"batch/run/failure.cpp", {"korven32c:"}},
    {"batch/all.cpp", {"pdf", "dxf", "svg", "png", "pdf,dxf,svg,png", "[pdf,dxf]", "tutto", "all"}},
    {"batch/calculate.cpp", {"calcola", "calculate"}},
    {"batch/check.cpp", {"verifica", "check"}},
    {"batch/diagram.cpp", {"diagramma", "diagram"}},
    {"batch/hatches.cpp", {"campiture", "hatches"}},
    {"batch/stratigraphic_log.cpp", {"stratigrafia", "log"}},
    {"batch/report.cpp", {"relazione", "report", "FILE", "NOME", "NAME"}},
    {"batch/section.cpp", {"sezione", "section"}},
    {"batch/options/command_line.cpp",
     {"Usage", "OPTIONS", "SUBCOMMAND", "Positionals", "REQUIRED", "KORVEN 32 -", "korven32c",
      "korven32c:", ": korven32c --help\\n"}},
    {"batch/options/common_options.cpp",
     {"DIR", "FILE", "ita", "deu", "fra", "esp", "eng", "por", "progetto", "project", "bell",
      "coulomb", "rankine", "mantieni", "keep", "ricalcola", "recalculate"}},
    {"batch/options/language_in_use.cpp",
     {"language.cfg", "texts01.txt", "texts06.txt", "texts32.txt", "LC_ALL", "LC_MESSAGES", "LANG",
      "ita", "deu", "fra", "esp", "eng", "por"}},
    {"base/process/processi.cpp", {"xdg-open"}},
    {"commands/report_files.cpp", {"txt", "pdf"}},
    {"commands/report_export.cpp", {"windir", "/notepad.exe", "/outdoc", ".txt", "editor.cfg"}},
    {"commands/output_title.cpp", {"KORVEN 32 -"}},
    {"commands/report_export.hpp", {"NotePad|*.txt", "txt"}},
    {"outdoc/document_renderer.cpp", {"PAGE", "NUMPAGES"}},
    {"outdoc/main.cpp", {"outdoc FILE.TAB", ": outdoc --help\\n", "outdoc:"}},
    {"outdoc/earlier_document.cpp", {"outdoc-", ".bak"}},
    {"outdoc/earlier_document.hpp", {"docProps/core.xml"}},
    {"commands/start/desktop_arguments.cpp",
     {"platform",
      "platformpluginpath",
      "platformtheme",
      "plugin",
      "qwindowgeometry",
      "qwindowicon",
      "qwindowtitle",
      "session",
      "style",
      "stylesheet",
      "display",
      "geometry",
      "title",
      "icon",
      "fontengine",
      "reverse",
      "nograb",
      "dograb",
      "sync",
      "widgetcount",
      "korven32:",
      ": korven32 --help\\n",
      "korven32 ["}},
    {"commands/document_names.hpp", {"*.kvd", "kvd"}},
    {"commands/document_names.cpp", {"KORVEN 32 -", "_recuperato", "_righe", "txt"}},
    {"commands/start/example_folders.cpp",
     {"esem", "ita", "exam", "eng", "exem", "fra", "ejem", "esp", "language.cfg", "path", "data"}},
    {"commands/start/language_start.cpp",
     {"language.cfg", "module", "hlp", "eng", "fra", "deu", "ita", "esp", "por", "cfg",
      "testmode.tra", "texts01.txt", "texts32.txt", "texts", ".txt"}},
    {"help/pages.cpp", {"@capitolo", "@pagina", "<a name=\\\""}},
    {"help/search.cpp", {"…"}},
    {"help/pages.hpp", {"KORVEN 32 HLP 1"}},
    {"help/places.cpp",
     {"GRAFICA", "Editacfg", "ConfStampa", "TempCalc", "guida", "INFORMAZIONI", "selezling",
      "DefinEJ", "Form1", "apri", "salva", "base1", "campo"}},
    {"commands/last_folder.cpp", {"path", "data"}},
    {"commands/menu_tree.cpp",
     {"archivi",
      "FileApri",
      "FileSalva",
      "PrintSetup",
      "AiutoFile",
      "edizione",
      "EditStratigrafia",
      "EditParatia",
      "EditRigidezza",
      "EditTiranti",
      "EditFasi",
      "EditTitoli",
      "AiutoEdit",
      "Stampa",
      "StampaGrafica",
      "GraficaMomenti",
      "GraficaSpostamenti",
      "GraficaTaglio",
      "GraficaPressioni",
      "GraficaStruttura",
      "GraficaStratigrafia",
      "statab",
      "StampaVideo",
      "StampaTabulati",
      "espotab",
      "espotabtxt",
      "configura",
      "AiutoStampa",
      "fine",
      "menuhelp",
      "sommario",
      "about"}},
    {"commands/start/user_folder.cpp", {".rtn", ".mav", ".hlp", "texts", ".txt", "data"}},
    {"desktop/main.cpp", {"korven32", "/korven32.svg", "about"}},
    {"shell/section/definej.cpp",
     {"DefinEJ", "contestoGuida", "schizzo", "Labelhelp", "EditRigidezza"}},
    {"shell/section/definej_fields.cpp", {"Fyk", "Fck"}},  // with their unit, see below
    {"shell/masks/base1.cpp", {"base1", "Label1", "Combo1", "Labelhelp"}},
    {"shell/masks/base2_32.cpp", {"base2_32", "Label1"}},
    {"shell/masks/grid_view.cpp", {"MSFlexGrid1", "angolo"}},
    {"shell/masks/form_frame.cpp", {"contestoGuida"}},
    {"shell/dialogo_qt.cpp", {"messaggio", "annulla"}},
    {"shell/file_dialogs_qt.cpp",
     {"apri", "salva", "Korven 32 (*.[kK][vV][dD])", "lookInLabel", "lookInCombo", "fileTypeLabel",
      "fileTypeCombo"}},
    {"shell/help/guida.cpp",
     {"guida/caratteri", "guida", "KORVEN 32 -", "pagina", "indietro", "avanti", "sommario",
      "piccoli", "grandi", "A−", "Alt+←", "Alt+→", "Alt+Home", "Ctrl+−", "Ctrl++", "cerca",
      "albero", "conto", "trovate"}},
    {"shell/help/porta.cpp", {"contestoGuida", "campoGuida", "voceGuida"}},
    {"shell/main/informazioni.cpp",
     {"INFORMAZIONI", "KORVEN 32", "nome", "sottotitolo", "versione", "descrizione", "autori",
      "fileCorrente"}},
    {"shell/main/menu1.cpp",
     {"voceGuida", "menu1", "KORVEN 32", "Image1", "stato", "modifiche", "FileApri", "FileSalva",
      "fine", "sommario", "about"}},
    {"shell/main/selezling.cpp",
     {"Picture1", "Picture2", "Picture3", "Picture4", "Picture5", "Picture6", "Italiano", "Deutsch",
      "Français", "Español", "English", "Português", "selezling", "Select your language..."}},
    {"shell/run/progress_qt.cpp", {"attesa"}},
    {"shell/run/temp_calc.cpp", {"TempCalc", "Command1"}},
    {"shell/main/wall_picture.cpp", {"KORVEN 32"}},
    {"shell/viewer/drawing_watch_qt.cpp", {"DisegnoInCorso", "KORVEN 32"}},
    {"device/drawing_files.cpp", {"KORVEN 32"}},
    {"device/graphics_session.hpp", {"korven32", "offscreen"}},
    {"device/page_printer.cpp", {"KORVEN 32"}},
    {"device/print_outcome.cpp", {"%%EOF"}},
    {"device/report_pages.cpp", {"KORVEN 32"}},
    {"markup/report_printer.hpp", {"Arial"}},
    {"shell/report/form1.cpp", {"Form1", "Liberation Mono"}},
    {"shell/report/conf_stampa.cpp", {"ConfStampa", "printer.cfg"}},
    {"shell/pens/editacfg.cpp", {"Editacfg", "Labelhelp"}},
    {"shell/viewer/grafica.cpp", {"GRAFICA"}},
    {"shell/viewer/export.cpp",
     {"PDF (*.pdf)", "pdf", "SVG (*.svg)", "svg", "PNG (*.png)", "png", "AutoCAD(*.DXF)", "DXF"}},
    {"shell/viewer/strip.cpp",
     {"striscia", "ingrandisci", "tutto", "stampa", "stampaAdattata", "dxf", "esporta", "sinistra",
      "destra", "alto", "basso", "moltoSinistra", "moltoDestra", "moltoAlto", "moltoBasso",
      "esci"}},
    {"plot/dxf/writer.cpp", {"LINE", "TEXT", "ENDSEC", "EOF"}},
    {"plot/plot_configuration.cpp", {"module06", ".cfg"}},
    {"plot/dxf/export.cpp", {"MONOTXT", "dxf.cfg", ".DXF"}},
    {"plot/plot_print.cpp", {"forcecol", "overlap.cfg"}},
    {"plot/print_setup.cpp", {"Courier New"}},
    {"plot/text_width.hpp", {"Arial"}},
    {"plot/print_setup.hpp", {"Courier New"}},
    {"plot/spill_files.cpp", {"XXXXXX", "plttmp", ".tmp", "windir"}},
    {"plot/text_width.cpp",
     {"courier", "mono", "arial", "helvetica", "liberation sans", "courier new",
      "liberation mono"}},
    {"masks/values.hpp",
     {"EDITT.MAV", "EDITDIA.MAV", "EDITSTRA.MAV", "EDITTIR.MAV", "EDITFASI.MAV"}},
    {"drawings/diagram_rows.cpp",
     {"pressioni", "pressures", "spostamenti", "displacements", "momenti", "moments", "taglio",
      "shear"}},
    {"drawings/hatch_library.cpp", {"set1.rtn", "set2.rtn", "set3", ".rtn", "set4.rtn"}},
    {"markup/reader.cpp", {"TRUE"}},
    {"project/field_table.cpp", {"sezione."}},
    {"results/report_data.cpp", {"nseg.txt"}},
    {"safety/diagnosis.cpp",
     {"eseguito", "rifiutato", "meccanismo", "oscilla", "fermato", "non_definito",
      "nessun_numero"}},
    {"report/footer.cpp", {"…", "–"}},
    {"report/footer.hpp", {"2,2,2,2,2,2,12,Arial"}},
    {"markup/syllable_rule.cpp", {"BCDFGLMNPQRSTVZbcdfglmnpqrstvz", "AEIOUaeiou"}},
};

bool letter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || static_cast<unsigned char>(c) > 127;
}

// Three letters in a row make a word; directives of the report and options say what they are.
bool speaks(std::string_view text) {
    if (text.starts_with('#') || text.starts_with('-')) return false;
    int run = 0;
    for (const char c : text) {
        run = letter(c) ? run + 1 : 0;
        if (run == 3) return true;
    }
    return false;
}

// The literals with words of each file, by its path below src/, without outer blanks.
std::map<std::string, Texts> spokenLiterals() {
    std::map<std::string, Texts> found;
    const fs::path root = KORVEN_SOURCE_FOLDER;
    for (const auto& entry : fs::recursive_directory_iterator(root)) {
        const auto extension = entry.path().extension();
        if (extension != ".cpp" && extension != ".hpp") continue;
        Texts& texts = found[fs::relative(entry.path(), root).generic_string()];
        for (const auto& literal : tools::stringLiterals(base::leggiFile(entry.path().string())))
            if (const auto text = base::senzaSpaziEsterni(literal); speaks(text))
                texts.emplace_back(text);
    }
    return found;
}

// Controls of forms have names of their own: "Picture12".
bool namesControl(const std::string& text) {
    for (const std::string_view kind : {"Picture", "Text", "List", "Command", "Option", "Frame"})
        if (text.starts_with(kind))
            return text.find_first_not_of("0123456789_%", kind.size()) == std::string::npos;
    return false;
}

bool listed(const Texts& texts, const std::string& text) {
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}

// In the table of fields: captions that are looked up with their unit and items that are looked up
// as a line of all, see below.
bool isPartOfField(const std::string& file, const std::string& text) {
    if (file != "project/field_table.cpp") return false;
    for (const auto& field : project::campi()) {
        if (text == field.didascalia) return true;
        for (const auto& code : field.codici)
            if (text == code.voce) return true;
    }
    return false;
}

// The units of project/units.hpp as they are shown, by their names there.
std::map<std::string, std::string> shownUnits() {
    const std::string source = base::leggiFile(KORVEN_SOURCE_FOLDER "/project/units.hpp");
    const std::regex row("Unita (\\w+)\\{\"[^\"]*\",\\s*\"([^\"]*)\"");
    std::map<std::string, std::string> units;
    for (std::sregex_iterator at(source.begin(), source.end(), row), end; at != end; ++at)
        units[(*at)[1]] = (*at)[2];
    return units;
}

// The unit of a field as it is shown, empty for what is no field.
std::string shownUnit(const std::string& member) {
    for (const auto& field : project::campi())
        if (field.nome == member) return std::string(field.unita.mostrata);
    return {};
}

// The literals of a source that have a unit of that table beside them, or a field whose unit they
// go with, without and with it: a caption is looked up together with its unit.
std::map<std::string, std::string> captionsWithUnit(const std::string& source) {
    static const auto units = shownUnits();
    static const std::regex pair("\"([^\"]*)\",\\s*&?(?:project::)?(unita|DatiProgetto)::(\\w+)");
    std::map<std::string, std::string> captions;
    for (std::sregex_iterator at(source.begin(), source.end(), pair), end; at != end; ++at)
        if (const auto unit = (*at)[2] == "unita" ? units.at((*at)[3]) : shownUnit((*at)[3]);
            !unit.empty())
            captions[(*at)[1]] = std::string((*at)[1]) + " [" + unit + "]";
    return captions;
}

bool isNoText(const std::string& file, const std::string& text) {
    const auto exempt = noTexts.find(file);
    return silentFiles.contains(file) || namesControl(text) || isPartOfField(file, text) ||
           (exempt != noTexts.end() && listed(exempt->second, text));
}

std::set<std::string> keys() {
    const std::string source = KORVEN_DATA_FOLDER "/texts.txt";
    std::set<std::string> all;
    for (const auto& record : tools::readTextSource(source, base::leggiFile(source)))
        all.insert(base::chiaveTesto(record.text[0]));
    return all;
}

TEST(TextKeys, AreInTheTableForEveryLiteralThatMayBeShown) {
    const auto known = keys();
    int looked = 0;
    for (const auto& [file, texts] : spokenLiterals()) {
        const auto captions = captionsWithUnit(base::leggiFile(KORVEN_SOURCE_FOLDER "/" + file));
        for (const auto& text : texts) {
            if (isNoText(file, text) || captions.contains(text)) continue;
            ++looked;
            EXPECT_TRUE(known.contains(base::chiaveTesto(text)))
                << "src/" << file << " has \"" << text
                << "\", which has no record in data/texts.txt; if it is never shown, name it in "
                   "this test";
        }
    }
    EXPECT_GT(looked, 200) << "the sources were not found";
}

TEST(TextKeys, AreInTheTableForEachCaptionWithTheUnitThatIsBesideIt) {
    const auto known = keys();
    std::set<std::string> looked;
    for (const auto& [file, texts] : spokenLiterals()) {
        if (file == "project/field_table.cpp") continue;  // looked at below, by its rows
        const auto source = base::leggiFile(KORVEN_SOURCE_FOLDER "/" + file);
        for (const auto& [caption, text] : captionsWithUnit(source)) {
            looked.insert(text);
            EXPECT_TRUE(known.contains(base::chiaveTesto(text))) << "src/" << file << ": " << text;
        }
    }
    EXPECT_TRUE(looked.contains("Tensione max. [kN]"));
    EXPECT_TRUE(looked.contains("Spostamento max. [cm]"));
    EXPECT_TRUE(looked.contains("c' [kN/m²]"));
    EXPECT_TRUE(looked.contains("falda [m]"));
    EXPECT_TRUE(looked.contains("F.S. parziale delle azioni [-]"));
}

TEST(TextKeys, AreInTheTableForEachCaptionOfAFieldAndItsUnit) {
    const auto known = keys();
    const auto has = [&](const auto& text) { return known.contains(base::chiaveTesto(text)); };
    std::set<std::string_view> withoutUnit;
    for (const auto& field : project::campi()) {
        EXPECT_TRUE(has(std::string(field.cosa))) << field.cosa;
        if (field.didascalia.empty() || has(project::etichetta(field))) continue;
        withoutUnit.insert(field.nome);
        EXPECT_TRUE(has(std::string(field.didascalia))) << field.didascalia;
    }
    // Neither report nor remarks say these captions, only forms, which look them up without unit.
    EXPECT_EQ(withoutUnit,
              (std::set<std::string_view>{"sforzoNormale", "gammaAcqua",
                                          "sezione.spessoreDiaframma", "sezione.paliInterasse",
                                          "sezione.palancolaBase", "sezione.armInterasse"}));
}

TEST(TextKeys, AreInTheTableForTheHeadingsOfTheSectionFormWithTheirUnits) {
    const auto known = keys();
    for (const auto type : project::tipiSezione) {
        if (type == &project::Sezione::tipoPalancola) continue;  // its frame has a title of its own
        const auto title =
            project::etichetta(project::campo(type).didascalia, project::unita::misura);
        EXPECT_TRUE(known.contains(base::chiaveTesto(title))) << title;
    }
    for (const auto column : {"Fyk", "Fck", "E"}) {
        const auto title = project::etichetta(column, project::unita::tensione);
        EXPECT_TRUE(known.contains(base::chiaveTesto(title))) << title;
    }
}

// The foot of the report names the method of a run, its table the kind of an anchor.
TEST(TextKeys, AreInTheTableForEachCodeThatTheReportSaysAlone) {
    const auto known = keys();
    for (const auto* field : {&project::campo(&project::DatiProgetto::metodoSpinte),
                              &project::campo(&project::DatiProgetto::tipoTirante)})
        for (const auto& code : field->codici)
            EXPECT_TRUE(known.contains(base::chiaveTesto(std::string(code.voce)))) << code.voce;
}

// A short literal has no word in it; where it goes straight into the translation it is a text.
TEST(TextKeys, AreInTheTableForEveryLiteralThatIsTranslatedHoweverShort) {
    const auto known = keys();
    const std::regex direct("\\b(?:tradotto|traduttore)\\(\"([^\"]*)\"");
    std::set<std::string> looked;
    for (const auto& entry : fs::recursive_directory_iterator(KORVEN_SOURCE_FOLDER)) {
        if (!entry.is_regular_file() || entry.path().filename() == "CMakeLists.txt") continue;
        const std::string source = base::leggiFile(entry.path().string());
        for (std::sregex_iterator at(source.begin(), source.end(), direct), end; at != end; ++at) {
            const std::string text = (*at)[1];
            if (speaks(text)) continue;  // looked at above
            looked.insert(text);
            EXPECT_TRUE(known.contains(base::chiaveTesto(text)))
                << entry.path() << " has \"" << text << '"';
        }
    }
    EXPECT_TRUE(looked.contains("&No")) << "the sources were not found";
}

TEST(TextKeys, ExemptNothingThatIsNotThere) {
    const auto spoken = spokenLiterals();
    for (const auto& [file, reason] : silentFiles)
        EXPECT_TRUE(spoken.contains(file)) << file << ": " << reason;
    for (const auto& [file, texts] : noTexts) {
        ASSERT_TRUE(spoken.contains(file)) << file;
        for (const auto& text : texts)
            EXPECT_TRUE(listed(spoken.at(file), text)) << file << ": " << text;
    }
}

}  // namespace
}  // namespace korven
