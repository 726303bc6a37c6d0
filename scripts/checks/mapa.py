# SPDX-License-Identifier: MIT
"""CODE-MAP: one line for every source file, the first sentence of its banner.

mapa.py --escribe writes it; mapa.py checks that it is the one the sources give now, and that
ARCHITECTURE.md names every folder and none that does not exist (unless its line says "later").
"""
import re
import sys

from arbol import CODIGO, RAIZ, acaba, capas, carpeta_de, ficheros

MAPA = RAIZ / "CODE-MAP"
SUELTOS = {"CMakeLists.txt", ".ci/run"}
DOS_PAGINAS = 120
CABECERA = """CODE-MAP: every source file and what it is for. Written by scripts/mapa from the first
sentence of each file's banner: to change a line, change the banner and run scripts/mapa.
"""


def lleva_linea(ruta):
    if ruta.as_posix() in SUELTOS or ruta.suffix in CODIGO | {".cmake", ".py", ".sh"}:
        return True
    return carpeta_de(ruta) == "scripts" and ruta.suffix == ""


def cartel(ruta):
    """The first sentence of the comment below the SPDX line, or None."""
    texto = (RAIZ / ruta).read_text(encoding="utf-8")
    if ruta.suffix == ".py":
        doc = re.search(r'"""(.*?)"""', texto, re.S)
        return primera_frase(doc[1]) if doc else None
    marca = "//" if ruta.suffix in CODIGO else "#"
    lineas = []
    for linea in texto.split("\n"):
        if linea.startswith("#!") or "SPDX-License-Identifier" in linea:
            continue
        if not linea.startswith(marca):
            if lineas or linea.strip():
                break
            continue
        lineas.append(linea[len(marca):].lstrip("/!").strip())
    return primera_frase("\n".join(lineas), ruta.name)


def primera_frase(texto, nombre=""):
    """The first sentence of the first paragraph, without the usage "name arguments:" before it."""
    parrafo = re.sub(r"\s+", " ", re.split(r"\n\s*\n", texto.strip())[0])
    parrafo = re.sub(rf"^{re.escape(nombre)}( [^:]*)?: ", "", parrafo) if nombre else parrafo
    frase = re.match(r"(.*?[.])(?=\s+[^a-z]|$)", parrafo)
    return (frase[1] if frase else parrafo) or None


def mapa():
    """(text of the map, files without a banner)."""
    sin_cartel = []
    grupos = {}
    for ruta in ficheros():
        if not lleva_linea(ruta):
            continue
        frase = cartel(ruta)
        if frase is None:
            sin_cartel.append(f"{ruta}: no banner below the SPDX line (what it is for, main names)")
            frase = "?"
        grupos.setdefault(ruta.parent.as_posix(), []).append(f"{ruta.name}: {frase}")
    orden = [*capas(), *sorted(g for g in grupos if g not in capas())]
    texto = CABECERA
    for grupo in orden:
        if grupo in grupos:
            nombre = "top" if grupo == "." else grupo + "/"
            texto += f"\n{nombre}\n" + "".join(f"  {linea}\n" for linea in grupos[grupo])
    return texto, sin_cartel


def faltas_del_mapa(nuevo):
    viejo = MAPA.read_text(encoding="utf-8") if MAPA.exists() else ""
    if viejo == nuevo:
        return []
    antes, ahora = set(viejo.split("\n")), set(nuevo.split("\n"))
    return (["CODE-MAP is not current: run scripts/mapa"]
        + [f"  gone or changed: {l.strip()}" for l in viejo.split("\n") if l not in ahora][:10]
        + [f"  new or changed:  {l.strip()}" for l in nuevo.split("\n") if l not in antes][:10])


def faltas_de_arquitectura():
    texto = (RAIZ / "ARCHITECTURE.md").read_text(encoding="utf-8")
    lineas = texto.split("\n")
    faltas = []
    if len(lineas) > DOS_PAGINAS:
        faltas.append(f"ARCHITECTURE.md: {len(lineas)} lines (two pages are {DOS_PAGINAS})")
    for n, linea in enumerate(lineas, 1):
        for carpeta in re.findall(r"`([a-z_/]+)/`", linea):
            if not (RAIZ / carpeta).is_dir() and "later" not in linea:
                faltas.append(f'ARCHITECTURE.md:{n}: {carpeta}/ does not exist, and the line does not say "later"')
            if (RAIZ / carpeta).is_dir() and any((RAIZ / carpeta).glob("*.h")) and "(later)" in linea:
                faltas.append(f"ARCHITECTURE.md:{n}: {carpeta}/ is there: no more (later)")
    for carpeta in capas():
        if f"`{carpeta}/`" not in texto:
            faltas.append(f"ARCHITECTURE.md: says nothing of {carpeta}/")
    return faltas


texto, faltas = mapa()
if sys.argv[1:] == ["--escribe"]:
    MAPA.write_text(texto, encoding="utf-8")
    print("\n".join(faltas + [f"CODE-MAP: {texto.count(chr(10) + '  ')} files"]))
    sys.exit(1 if faltas else 0)
faltas += faltas_del_mapa(texto) + faltas_de_arquitectura()
acaba("map", faltas, texto.count("\n  "))
