"""The project record and its one-value-a-line file."""

from number_text import formatta_numero, read_number

LAYER_FIELDS = ("profStrato", "gammaN", "gammaSat", "phiStrato", "coesione",
                "suStrato", "ksStrato", "descrStrato")
WALL_FIELDS = ("vincoloTesta", "vincoloPiede", "modoSpinte", "modoKs", "modoTensioni",
               "opzioneRiservata", "metodoSpinte", "metodoKs", "lunghezzaParatia",
               "rigidezzaEJ", "coeffM", "pressioneOrizz", "sovraccMonte", "momentoTesta",
               "forzaTesta", "inclinazioneMonte", "faldaMonte", "faldaValle", "gammaAcqua")
ANCHOR_FIELDS = ("profTirante", "rigTirante", "pretTirante", "tipoTirante")
STAGE_FIELDS = ("profFase", "tirantiFase", "sovraccFase", "faldaFase")
SECTION_BASE = ("copriferroMonte", "copriferroValle", "interasseMonte", "interasseValle",
                "diametroMonte", "diametroValle", "spessoreDiaframma", "modEacciaio",
                "modEcls", "fyk", "fck", "tipoDiaframma", "tipoPali", "paliDiamEst",
                "paliDiamInt", "paliInterasse")
SECTION_SHEET = ("tipoPalancola", "palancolaBase", "palancolaLargAla", "palancolaAltAla",
                 "palancolaSpessore", "palancolaSpessAla")
SECTION_REINFORCED = ("tipoPaliArmati", "armInterasse", "armDiamLong", "armDiamPalo",
                      "armPassoStaffe", "armDiamStaffe", "armNumLong", "armCopriferro")
AXIAL = ("sforzoNormale",)
FLAGS = ("tipoDiaframma", "tipoPali", "tipoPalancola", "tipoPaliArmati")
TABLES = (("nStrati", LAYER_FIELDS, 100), ("nTiranti", ANCHOR_FIELDS, 20),
          ("nFasi", STAGE_FIELDS, 20))


class BrokenInput(Exception):
    """A line that is missing or holds no number where one is due."""


class Project:
    """All data of one wall; tables are lists whose row 0 stays zero."""

    def __init__(self):
        for count, fields, capacity in TABLES:
            setattr(self, count, 0)
            for name in fields:
                empty = "" if name == "descrStrato" else 0.0
                setattr(self, name, [empty] * (capacity + 1))
        for name in WALL_FIELDS + SECTION_BASE + SECTION_SHEET + SECTION_REINFORCED + AXIAL:
            setattr(self, name, name in FLAGS and False or 0.0)
        self.titoli = [""] * 7


class LineReader:
    """Lines of a text file, handed out one by one."""

    def __init__(self, path):
        with open(path, "rb") as file:
            text = file.read().decode("latin-1")
        self.lines = [line[:-1] if line.endswith("\r") else line for line in text.split("\n")]
        if self.lines[-1] == "":
            self.lines.pop()
        self.at = 0

    def ended(self):
        """Nothing but empty lines and the end mark of DOS follow."""
        return all(line.strip(" \t\x1a") == "" for line in self.lines[self.at:])

    def text(self):
        if self.at >= len(self.lines):
            raise BrokenInput(f"line {self.at + 1}: the file ends too early")
        self.at += 1
        return self.lines[self.at - 1]

    def number(self):
        value = read_number(self.text())
        if value is None:
            raise BrokenInput(f"line {self.at}: a number was expected")
        return value


def _read_fields(reader, project, names):
    for name in names:
        value = reader.number()
        setattr(project, name, value != 0 if name in FLAGS else value)
        if name == "metodoSpinte" and value > 1:
            project.metodoSpinte = 1.0  # a saved file always reopens with Coulomb


def _read_table(reader, project, count_name, fields, capacity):
    count = reader.number()
    if count < 0 or count > capacity or count != int(count):
        raise BrokenInput(f"line {reader.at}: count out of range")
    setattr(project, count_name, int(count))
    for row in range(1, int(count) + 1):
        for name in fields:
            value = reader.text() if name == "descrStrato" else reader.number()
            getattr(project, name)[row] = value


def leggi_dati(reader, project):
    """Read one project; the reader is left after its last value."""
    _read_table(reader, project, *TABLES[0])
    _read_fields(reader, project, WALL_FIELDS)
    _read_table(reader, project, *TABLES[1])
    _read_table(reader, project, *TABLES[2])
    for row in range(1, 7):
        project.titoli[row] = reader.text()
    _read_fields(reader, project, SECTION_BASE)
    for block in (SECTION_SHEET, SECTION_REINFORCED, AXIAL):
        if not reader.ended():
            _read_fields(reader, project, block)


def project_lines(project):
    """The lines of the project file, without line ends."""
    lines = []

    def table(count_name, fields):
        count = getattr(project, count_name)
        lines.append(formatta_numero(count))
        for row in range(1, count + 1):
            for name in fields:
                value = getattr(project, name)[row]
                lines.append(value if name == "descrStrato" else formatta_numero(value))

    def scalars(names):
        for name in names:
            lines.append(formatta_numero(getattr(project, name)))

    table("nStrati", LAYER_FIELDS)
    scalars(WALL_FIELDS)
    table("nTiranti", ANCHOR_FIELDS)
    table("nFasi", STAGE_FIELDS)
    lines.extend(project.titoli[1:7])
    for block in (SECTION_BASE, SECTION_SHEET, SECTION_REINFORCED, AXIAL):
        scalars(block)
    return lines


def write_lines(path, lines):
    """Single-byte text, lines ended by CR LF."""
    with open(path, "wb") as file:
        file.write("".join(line + "\r\n" for line in lines).encode("latin-1"))
