# SPDX-License-Identifier: MIT
"""Checks that the documents say what the sources hold, and that no member goes without contract or example.

guia.py --escribe puts what the sources hold into the documents.
Every fenced C++ or CMake block stands below a mark "<!-- file : region -->" and is, but for its indent, what that
source has between "// begin: region" and "// end: region" (CMake: "#"). Every member and event of
control/miembros.h has a contract comment that names the errors of its row, is used in a source of examples/, and
is named in the host guide. Relative links lead somewhere; the pictures of docs/figuras/ are shown and small.
"""
import re
import sys
import textwrap

from arbol import RAIZ, acaba, ficheros

GUIA = "docs/guia_anfitrion.md"
MAX_FIGURA = 60_000
PALABRAS = 4  # a contract has at least as many


def lee(ruta):
    fichero = RAIZ / ruta
    return fichero.read_text(encoding="utf-8") if fichero.exists() else ""


def region(ruta, nombre):
    trozo = re.search(rf"^ *(?://|#) begin: {re.escape(nombre)}\n(.*?)^ *(?://|#) end: {re.escape(nombre)}$", lee(ruta), re.S | re.M)
    return textwrap.dedent(trozo[1]) if trozo else None


def faltas_de_citas(ruta):
    lineas = lee(ruta).split("\n")
    for n, linea in enumerate(lineas):
        if not linea.startswith(("```cpp", "```cmake")):
            continue
        marca = re.fullmatch(r"<!-- (\S+) : (\S+) -->", lineas[n - 1]) if n else None
        if marca is None:
            yield f"{ruta}:{n + 1}: no mark <!-- file : region --> above the block"
            continue
        fin = lineas.index("```", n + 1) if "```" in lineas[n + 1:] else len(lineas)
        texto = region(marca[1], marca[2])
        if texto is None:
            yield f"{ruta}:{n}: {marca[1]} has no region {marca[2]}"
        elif texto != "".join(l + "\n" for l in lineas[n + 1:fin]):
            yield f"{ruta}:{n}: the block is not what {marca[1]} has as {marca[2]}"


def pon_citas(ruta):
    """Every marked block anew from its source."""
    def cita(m):
        texto = region(m[2], m[3])
        return m[0] if texto is None else f"{m[1]}{texto}```\n"
    viejo = lee(ruta)
    nuevo = re.sub(r"(^<!-- (\S+) : (\S+) -->\n```(?:cpp|cmake)\n).*?^```\n", cita, viejo, flags=re.S | re.M)
    if nuevo != viejo:
        (RAIZ / ruta).write_text(nuevo, encoding="utf-8")


def faltas_de_enlaces(ruta):
    carpeta = (RAIZ / ruta).parent
    for destino in re.findall(r"\]\(([^)#:\s]+)(?:#[^)]*)?\)", lee(ruta)):
        if not (carpeta / destino).exists():
            yield f"{ruta}: {destino} does not exist"


def faltas_de_figuras():
    textos = "".join(lee(f) for f in ficheros({".md"}))
    for figura in (f for f in ficheros({".png"}) if f.as_posix().startswith("docs/figuras/")):
        tamano = (RAIZ / figura).stat().st_size
        if tamano > MAX_FIGURA:
            yield f"{figura}: {tamano} bytes (at most {MAX_FIGURA})"
        if figura.name not in textos:
            yield f"{figura}: no document shows it"


def miembros():
    """(name, its error numbers or ["every error"]) of the rows of the table."""
    filas = lee("control/miembros.h").split("MIEMBROS{{", 1)[-1].split("}};", 1)[0]
    for fila in re.split(r"\n(?=    \{\d+, )", filas):
        nombre = re.search(r'\{\d+, "(\w+)"', fila)
        if nombre:
            numeros = re.search(r"\{([\d, ]+)\}\},?\s*$", fila)
            todos = re.search(r"TODOS\},?\s*$", fila)
            yield nombre[1], ["Every error"] if todos else re.findall(r"\d+", numeros[1]) if numeros else []


def eventos():
    filas = lee("control/miembros.h").split("EVENTOS{{", 1)[-1].split("}};", 1)[0]
    return re.findall(r'\{\d+, "(\w+)"', filas)


def contrato(cabecera, nombre):
    """The comment above the first declaration of that name."""
    arriba = re.split(rf"^ +(?:\[\[nodiscard\]\] )?virtual [\w:<> ]+ {nombre}\(", lee(cabecera), maxsplit=1, flags=re.M)
    if len(arriba) < 2:
        return ""
    lineas = []
    for linea in reversed(arriba[0].rstrip("\n").split("\n")):
        if not re.match(r" +//", linea):
            break
        lineas.insert(0, re.sub(r"^ +//+ ?", "", linea))
    return " ".join(l for l in lineas if "NOLINT" not in l)


def faltas_de_miembros():
    fuentes = (lee(f) for f in ficheros({".cpp"}) if f.parts[0] == "examples")
    ejemplos = re.sub(r"//[^\n]*", "", "".join(fuentes))
    guia = lee(GUIA)
    todos = [("control/_tabla0.h", nombre, errores) for nombre, errores in miembros()]
    todos += [("platform/eventos.h", nombre, []) for nombre in eventos()]
    for cabecera, nombre, errores in todos:
        texto = contrato(cabecera, nombre)
        if len(texto.split()) < PALABRAS:
            yield f"{cabecera}: no contract above {nombre}"
        for error in errores:
            if not re.search(rf"\b{error}\b", texto):
                yield f"{cabecera}: the contract of {nombre} does not name its error {error}"
        if not re.search(rf"(\.|->|TablaWidget::){nombre}\b", ejemplos):
            yield f"{nombre}: no source of examples/ uses it"
        if f"`{nombre}`" not in guia and f"`{nombre}(" not in guia:
            yield f"{GUIA}: does not name {nombre}"
    if not todos:
        yield "control/miembros.h: no members found"


mirados = [f.as_posix() for f in ficheros({".md"})]
if sys.argv[1:] == ["--escribe"]:
    for documento in mirados:
        pon_citas(documento)
faltas = [f for ruta in mirados for busca in (faltas_de_citas, faltas_de_enlaces) for f in busca(ruta)]
faltas += [*faltas_de_figuras(), *faltas_de_miembros()]
acaba("guides", faltas, len(mirados))
