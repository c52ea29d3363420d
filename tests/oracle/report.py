"""The result file, and the report mark-up written from it alone."""

from number_text import formatta_numero
from number_text import formatta_relazione as num
from footer import footer_line
from project_file import LineReader, leggi_dati
from section import kind, sezione_valida, side_complete, verifica_taglio
from stages import FS_AZIONI, anchors_in_place
from wall import anchor_node

COLUMNS = ("sigmaVv", "Ehv", "k0v", "kav", "kpv", "sigmaVm", "Ehm", "k0m", "kam", "kpm",
           "Spostamenti", "Momenti")
CODES = (
    ("vincoloTesta", "Condizioni di vincolo della sommità diaframma: ", ("libera", "cerniera")),
    ("vincoloPiede", "Condizioni di vincolo del piede diaframma: ",
     ("libero", "cerniera", "incastro")),
    ("modoSpinte", "Spinte attive e passive ",
     ("ricalcolate ad ogni fase di scavo", "costantemente uguali al lato monte")),
    ("modoKs", "Coefficiente di rigidezza ks ",
     ("ricalcolato ad ogni fase di scavo", "costantemente uguale al lato monte")),
    ("modoTensioni", "Calcolo effettuato in termini di tensioni ", ("efficaci", "totali")),
    ("metodoSpinte", "Spinte attive e passive calcolate con il metodo di ",
     ("Coulomb", "Rankine", "Bell")),
    ("metodoKs", "Coefficiente di rigidezza ks ",
     ("calcolato con il metodo di Bowles", "calcolato con il metodo di Lancellotta",
      "costante in ogni strato di terreno", "variabile linearmente in ogni strato di terreno")),
)


def result_lines(head, run):
    """Lines of the result file; `head` is what was written before the first stage."""
    lines = list(head)
    names = "".join(name.ljust(14) for name in COLUMNS[:-1]) + COLUMNS[-1]
    for table in run.tables:
        lines.append(names)
        for row in table:
            lines.append(",".join(formatta_numero(value) for value in row))
    for value in (run.MRd[2], run.MRd[1], run.mMaxTotale, run.mMinTotale, FS_AZIONI):
        lines.append(formatta_numero(value))
    return lines


class Results:
    """What the report needs of a result file, gathered stage by stage."""

    def __init__(self, path, p, n_seg):
        titoli = list(p.titoli)
        reader = LineReader(path)
        leggi_dati(reader, p)
        p.titoli = titoli
        self.n = n_seg + 1
        self.step = p.lunghezzaParatia / n_seg
        self.yTirante = [0.0] * 21
        self.largest = [-1e300] * 21
        self.Vmax = 0.0
        self.stages = []
        y = [0.0] * (self.n + 1)
        for stage in range(1, p.nFasi + 1):
            active, before = anchors_in_place(p, stage), anchors_in_place(p, stage - 1)
            for a in range(before + 1, active + 1):
                self.yTirante[a] = self._at(y, anchor_node(p.profTirante[a], self.step))
            reader.text()
            rows = [None]
            for _ in range(self.n):
                rows.append([float(cell) for cell in reader.text().split(",")])
            y = [0.0] + [row[10] for row in rows[1:]]
            self.stages.append((y, [0.0] + [row[11] for row in rows[1:]]))
            for a in range(1, active + 1):
                here = self._at(y, anchor_node(p.profTirante[a], self.step))
                if here > self.largest[a]:
                    self.largest[a] = here
            low, high = self._shear_extremes(p, active, y, [0.0] + [row[12] for row in rows[1:]])
            self.Vmax = max(abs(low), abs(high))
            p.faldaValle = p.faldaFase[stage]
        self.active = anchors_in_place(p, p.nFasi)
        closing = [reader.number() for _ in range(5)]
        self.MRd = [0.0, closing[1], closing[0]]
        self.mMax, self.mMin, self.fs = closing[2], closing[3], closing[4]

    def _at(self, array, node):
        return array[node] if node <= self.n else 0.0

    def _shear_extremes(self, p, active, y, shear):
        for a in range(1, active + 1):
            node = anchor_node(p.profTirante[a], self.step)
            if p.profTirante[a] != 0 and node <= self.n:
                shear[node] = 2 * self._at(shear, node + 1) - self._at(shear, node + 2)
        low, high = 1e30, -1e30
        for i in range(1, self.n + 1):
            values = [shear[i]]
            for a in range(1, active + 1):
                if p.profTirante[a] == (i - 1) * self.step:
                    pull = p.pretTirante[a] + p.rigTirante[a] * (y[i] - self.yTirante[a])
                    values.append(shear[i] - pull)
            low = min([low] + values)
            high = max([high] + values)
        return low, high

    def pull(self, p, a):
        """Largest force of anchor a, t."""
        if self.largest[a] > self.yTirante[a]:
            return p.pretTirante[a] + p.rigTirante[a] * (self.largest[a] - self.yTirante[a])
        return p.pretTirante[a]


def table(header, rows):
    return ["#STARTTABLE", "\t".join(header)] + ["\t".join(row) for row in rows] + ["#ENDTABLE", ""]


def listing(rows):
    return ["#STARTLIST"] + [label + "\t" + num(value) for label, value in rows] + ["#ENDLIST", ""]


def code_line(p, field, start, endings):
    value = getattr(p, field)
    for code, ending in enumerate(endings, 1):
        if value == code:
            return start + ending
    return ""


def report_lines(path, p, n_seg, project_name):
    """Mark-up of the whole report; `p` takes over what the file says."""
    r = Results(path, p, n_seg)
    out = ["#RESET 2,2,2,2,2,2,12,Arial", "#HEADER Program KORVEN 32",
           "#FOOTER " + footer_line(project_name, path, n_seg), "#FONTSIZE 16",
           "#CENTER", "CALCOLO DIAFRAMMA", "#LEFT", "", "#FONTSIZE 10"]
    out += [line for line in p.titoli[1:] if line.strip(" ") != ""] + [""]
    out += _soil_and_wall(p)
    if p.nTiranti > 0:
        out.append("DESCRIZIONE TIRANTI")
        out += table(("Prof. [m]", "Rigidezza [kN/m]", "Pretens. [kN]", "Tipologia"),
                     [(num(p.profTirante[a]), num(p.rigTirante[a] * 10),
                       num(p.pretTirante[a] * 10),
                       "Solo traz." if p.tipoTirante[a] == 0 else "Traz./compr.")
                      for a in range(1, p.nTiranti + 1)])
    out.append("DESCRIZIONE FASI DI SCAVO")
    out += table(("Prof. [m]", "Numero tot. tiranti", "Sovracc. [kN/m²]", "Prof. falda [m]"),
                 [(num(p.profFase[k]), num(p.tirantiFase[k]), num(p.sovraccFase[k] * 10),
                   num(p.faldaFase[k])) for k in range(1, p.nFasi + 1)])
    for stage, (y, moments) in enumerate(r.stages, 1):
        out.append(f"RISULTATI FASE {stage}")
        out += table(("Profondità [m]", "Spostamento [cm]", "Momento [kN m]"),
                     [(num((i - 1) * r.step), num(y[i] * 100), num(moments[i] * 10))
                      for i in range(1, r.n + 1)])
    if r.active > 0:
        out += ["MASSIME TENSIONI APPLICATE AI TIRANTI", ""]
        out += table(("Prof. tirante [m]", "Tensione max. [kN]"),
                     [(num(p.profTirante[a]), num(r.pull(p, a) * 10))
                      for a in range(1, r.active + 1)])
    if sezione_valida(p, not_asked=("paliDiamInt",) if kind(p) == "tipoPali" else ()):
        out += _section(p) + _materials(p) + _bending(r)
        if kind(p) == "tipoPaliArmati" and p.armPassoStaffe > 0 and p.armDiamStaffe > 0:
            out += _shear(p, r)
    out.append("#ENDDOCUMENT")
    return out


def _soil_and_wall(p):
    out = ["DESCRIZIONE LITOSTRATIGRAFICA"]
    out += table(("Prof. [m]", "Gamma [kN/m³]", "Gamma Sat. [kN/m³]", "Phi [°]", "Coes. [kN/m²]",
                  "ks [kN/m³]"),
                 [(num(p.profStrato[j]), num(p.gammaN[j] * 10), num(p.gammaSat[j] * 10),
                   num(p.phiStrato[j]), num(p.coesione[j] * 10), num(p.ksStrato[j] * 10))
                  for j in range(1, p.nStrati + 1)])
    out.append("PARAMETRI DEL DIAFRAMMA")
    out += [code_line(p, *row) for row in CODES]
    rows = [("Lunghezza diaframma [m]", p.lunghezzaParatia),
            ("Rigidezza EJ diaframma [kN m²]", p.rigidezzaEJ * 10)]
    if p.metodoKs == 2:
        rows.append(("Coefficiente 'm' per il calcolo di ks [-]", p.coeffM))
    if p.pressioneOrizz != 0:
        rows.append(("Pressione orizzontale costante [kN/m²]", p.pressioneOrizz * 10))
    rows += [("Sovraccarico verticale lato monte [kN/m²]", p.sovraccMonte * 10),
             ("Momento esterno applicato alla sommità del diaframma [kN m]", p.momentoTesta * 10),
             ("Forza orizzontale esterna applicata alla sommità del diaframma [kN]",
              p.forzaTesta * 10),
             ("Inclinazione del terreno a monte del diaframma [°]", p.inclinazioneMonte),
             ("Profondità falda a monte del diaframma [m]", p.faldaMonte)]
    return out + listing(rows)


def _section(p):
    name = kind(p)
    if name == "tipoDiaframma":
        out = ["CALCOLO STRUTTURALE DIAFRAMMA"]
        for side in ("Monte", "Valle"):
            if side_complete(p, side):
                out += ["ARMATURA LATO " + side.upper(), ""]
                out += listing([
                    ("Diametro armature [mm]", getattr(p, "diametro" + side) * 10),
                    ("Interasse armature [mm]", getattr(p, "interasse" + side) * 10),
                    ("Copriferro [mm]", getattr(p, "copriferro" + side) * 10)])
        return out
    if name == "tipoPali":
        title = "CALCOLO STRUTTURALE PALIFICATA"
        rows = [("Diametro esterno [mm]", p.paliDiamEst * 10),
                ("Diametro interno [mm]", p.paliDiamInt * 10),
                ("Interasse armature [mm]", p.paliInterasse * 10)]
    elif name == "tipoPalancola":
        title = "CALCOLO STRUTTURALE PALANCOLA"
        rows = [("Larghezza totale elemento [mm]",
                 (p.palancolaBase + 2 * p.palancolaLargAla) * 10),
                ("Larghezza ala [mm]", p.palancolaLargAla * 10),
                ("Altezza ala [mm]", p.palancolaAltAla * 10),
                ("Spessore palancola [mm]", p.palancolaSpessore * 10),
                ("Spessore ala [mm]", p.palancolaSpessAla * 10)]
    else:
        title = "CALCOLO STRUTTURALE PALI ARMATI"
        rows = [("Diametro pali [mm]", p.armDiamPalo * 10),
                ("Diametro armature longitudinali [mm]", p.armDiamLong * 10),
                ("Numero armature logitudinali [-]", p.armNumLong * 10),
                ("Copriferro armature logitudinali [mm]", p.armCopriferro * 10)]
        if p.armPassoStaffe > 0 and p.armDiamStaffe > 0:
            rows += [("Diametro staffe [mm]", p.armDiamStaffe * 10),
                     ("Passo staffe [mm]", p.armPassoStaffe * 10)]
    return [title, ""] + listing(rows)


def _materials(p):
    sheet = kind(p) == "tipoPalancola"
    rows = [("Modulo elastico acciaio [N/mm²]", p.modEacciaio)]
    if not sheet:
        rows.append(("Modulo elastico CLS [N/mm²]", p.modEcls))
    rows.append(("Resistenza limite acciaio Fyk [N/mm²]", p.fyk))
    if not sheet:
        rows.append(("Resistenza limite CLS Fck [N/mm²]", p.fck))
    return ["CARATTERISTICHE DEI MATERIALI", ""] + listing(rows)


def _bending(r):
    positive = -r.MRd[1] / 10000000
    negative = -r.MRd[2] / 10000000
    below = r.mMin < 0
    rows = [("Momento resistente di calcolo (pos.) [kN m]", positive * 10)]
    if below:
        rows.append(("Momento resistente di calcolo (neg.) [kN m]", negative * 10))
    rows.append(("Momento massimo applicato (pos) [kN m]", r.mMax * 10))
    if below:
        rows.append(("Momento massimo applicato (neg) [kN m]", r.mMin * 10))
    rows += [("F.S. parziale delle azioni [-]", r.fs),
             ("Momento massimo di calcolo applicato (pos) [kN m]", r.fs * r.mMax * 10)]
    if below:
        rows.append(("Momento massimo di calcolo applicato (neg) [kN m]", r.fs * r.mMin * 10))
    out = ["VERIFICA DEI MOMENTI FLETTENTI", ""] + listing(rows)
    good = "Condizioni di sicurezza verificate "
    bad = "CONDIZIONI DI SICUREZZA NON VERIFICATE "
    out.append((good if positive > r.fs * r.mMax else bad) + "(momento positivo)")
    if below:
        out.append((good if negative < r.fs * r.mMin else bad) + "(momento negativo)")
    return out


def _shear(p, r):
    vrd2, vrd3 = verifica_taglio(p)
    vrd2 = vrd2 / 1000 * 100 / p.armInterasse
    vrd3 = vrd3 / 1000 * 100 / p.armInterasse
    vsd = 1.4 * 10 * r.Vmax
    out = ["", "VERIFICA AL TAGLIO"]
    # no empty line comes between this list and the failure lines
    out += listing([("Diametro staffe [mm]", p.armDiamStaffe * 10),
                    ("Passo staffe [mm]", p.armPassoStaffe * 10),
                    ("Capacità portante bielle CLS - Vrd2 [kN]", vrd2),
                    ("Capacità portante armatura d'anima - Vrd3 [kN]", vrd3),
                    ("Taglio massimo agente sulla struttura [kN]", 10 * r.Vmax),
                    ("Coeff. di sicurezza parziale [-]", 1.4),
                    ("Taglio massimo di calcolo - Vsd [kN]", vsd)])[:-1]
    if vsd > vrd2:
        out.append("Rottura delle bielle di calcestruzzo compresse")
    if vsd > vrd3:
        out.append("Rottura dell'armatura d'anima")
    return out
