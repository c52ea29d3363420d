#include "tools/verification_page.hpp"

#include <string_view>

#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "scene/svg.hpp"
#include "verification/figure.hpp"
#include "verification/quantities.hpp"
#include "verification/table.hpp"
#include "verification/words.hpp"

namespace tools {

namespace {

using namespace korven;
using base::traduttore;
using verification::Caso;
using verification::EsitoGruppo;
using verification::EsitoVerifica;
using verification::Gruppo;

constexpr std::string_view introduction =
    R"(# Verification

What the program computes, against values that do not come from it: closed forms, printed tables, independent
calculations. `korven32c selfcheck` runs all of it, `--pdf FILE` makes a document of it, `--json` tells it to programs
(`json.md`). The exit code is 0 if every case is met, known differences apart, and 1 if one is not.

Each case goes through the run of the report ("Report") and through the equilibrium solution ("Equilibrium"), as far
as they know the quantity; what belongs to the section alone is "Section". Both sides of a case of the group "The
program against itself" are runs; all other expected values come from elsewhere, and the scripts that made those which
no book holds lie in `tests/oracle/verification` of the sources (`check.py` there compares them with the files; it
needs NumPy). Formulas and authors are cited from memory, as in `theory.md`; exercise 8.4 of G. N. Smith,
Elements of Soil Mechanics, is no case, since its data and its answer are not known here to the digit.

<!-- sources -->
This page is made from the files in `data/verifica` by `tools/make_verification`; a test holds the two together.
<!-- /sources -->

## A case of your own

A case is a text file in UTF-8; `korven32c selfcheck --cases FOLDER` runs the files `*.txt` of a folder and of the
folders in it.

```
# Hetényi, force in the middle
titolo: Beam on springs
fonte: M. Hetényi, Beams on Elastic Foundation (1946)
calcolo: y = P λ (cosh λL + cos λL + 2) / (2 k (sinh λL + sin λL))
tolleranza: Mesh error: it falls with the square of the step.

[parete]
segmenti = 200
lunghezzaParatia = 20
rigidezzaEJ = 1042
profStrato = 100
coesione = 10000
ksStrato = 5
sovraccMonte = 5000
profFase = 0
sovraccFase = 5000
profTirante = 10
pretTirante = 10
tirantiFase = 1

[attesi]
spostamento z 10 = -117.944 mm entro 0.02 %
```

- The head has `titolo`, `fonte` (one or more), `calcolo`, `tolleranza` (why it is what it is) and, for a difference
  that is known, `noto` with the reason: such a case is listed and does not count.
- `[parete]` sets fields by the names of the file format (`file_formats.md`), in the units of the editors: kN and mm. A
  column of a table takes its rows from the first on (`profFase = 2 4`), or one row (`profFase[2] = 4`); codes go by
  name (`metodoSpinte = rankine`). `base = NAME` begins with an example of the program; without it a wall has the first
  code of every choice, a constant ks and no water (all levels at 100 m). `segmenti` is the mesh, 200 if it is not
  given; more than 249 are for the equilibrium solution alone.
- `[variante]` changes the wall for a second one, to compare with.
- `[attesi]` has a line for each expected value: a quantity with its place (`fase`, the last if there is none; `z`, the
  depth of a node; `tirante`), the value with its unit, `entro` and the tolerance in % or in that unit. The other side
  may be `variante`, with a place and a factor (`variante fase 4 x -1`). `solo corsa` or `solo equilibrio` at the end asks
  one calculation.
- A file `gruppo.txt` gives a folder its `ordine`, `titolo` and `descrizione`.

Quantities:

)";

std::string quantities() {
    std::string text = "| Name | Unit | Is |\n| --- | --- | --- |\n";
    for (const auto& q : verification::grandezze())
        text += "| `" + std::string(q.nome) + "` | " + std::string(q.unita.mostrata) + " | " +
                traduttore(q.didascalia) + (q.conZ ? ", at `z`" : "") +
                (q.conTirante ? ", of `tirante`" : "") + " |\n";
    return text;
}

std::string table(const EsitoGruppo& group) {
    const auto prospetto = verification::prospetto(group);
    std::string head = "|", rule = "|", body;
    for (const auto& column : prospetto.colonne) {
        head += ' ' + column.testa() + " |";
        rule += column.numerica ? " ---: |" : " --- |";
    }
    for (const auto& row : prospetto.righe) {
        body += '|';
        for (const auto& cell : row) body += ' ' + cell.testo + " |";
        body += '\n';
    }
    return head + '\n' + rule + '\n' + body;
}

std::string sources(const Caso& c) {
    std::string text = "- `" + c.nome + "`: " + traduttore(c.titolo) + ". ";
    for (const auto& source : c.fonte) text += traduttore(source) + ". ";
    for (const auto& formula : c.calcolo) text += '`' + formula + "` ";
    if (!c.tolleranza.empty()) text += traduttore(c.tolleranza);
    if (!c.noto.empty())
        text += ' ' + base::riempito(traduttore("Differenza nota: %1"), {traduttore(c.noto)});
    return text + '\n';
}

std::string section(const EsitoGruppo& outcome) {
    const Gruppo& group = *outcome.gruppo;
    std::string text = "\n## " + traduttore(group.titolo) + "\n\n" + traduttore(group.descrizione) +
                       "\n\n" + group.teoria;
    if (const Caso* c = verification::casoInFigura(group))
        text += "\n![" + traduttore(c->titolo) + "](verification/" + group.nome + ".svg)\n\n`" +
                c->nome + "`: " + traduttore(c->titolo) + ".\n";
    text += '\n' + table(outcome) + '\n';
    for (const auto& c : outcome.casi) text += sources(*c.caso);
    return text;
}

std::string figure(const Gruppo& group, const Caso& c) {
    constexpr std::string_view font = "sans-serif";
    const std::string title = traduttore(c.titolo);
    return scene::svg(verification::figura(group, c, {760, 460}).scena, scene::Tavolozza::chiara,
                      font, title, title);
}

}  // namespace

std::string verificationPage(const EsitoVerifica& outcome) {
    std::string text =
        std::string(introduction) + quantities() + '\n' + verification::sommario(outcome) + '\n';
    for (const auto& group : outcome.gruppi) text += section(group);
    return text;
}

std::map<std::string, std::string> verificationFigures(const std::vector<Gruppo>& groups) {
    std::map<std::string, std::string> figures;
    for (const Gruppo& group : groups)
        if (const Caso* c = verification::casoInFigura(group))
            figures[group.nome + ".svg"] = figure(group, *c);
    return figures;
}

}  // namespace tools
