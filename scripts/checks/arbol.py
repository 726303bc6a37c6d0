# SPDX-License-Identifier: MIT
"""The tree as the checks see it: the layers, the files, the string literals of a C++ source.

Main names: RAIZ, capas, publicas, del_sistema, ficheros, carpeta_de, literales, acaba.
"""
import functools
import re
import sys
from pathlib import Path

RAIZ = Path(__file__).resolve().parents[2]
# Folders that hold no source of ours.
AJENAS = {".git", "build", ".cache", "__pycache__"}
CODIGO = {".h", ".cpp"}


@functools.cache
def capas():
    """The rows of capas.txt: {folder: set of folders it may include}."""
    filas = {}
    for linea in (RAIZ / "cmake/capas.txt").read_text(encoding="utf-8").splitlines():
        fila = re.match(r"([a-z_/]+) *:(.*)$", linea)
        if fila:
            filas[fila[1]] = set(fila[2].split())
    return filas


def cabeceras_contadas():
    """The rows "only A B : headers" of capas.txt: {(A, B): the headers of B that A may include}."""
    filas = {}
    for linea in (RAIZ / "cmake/capas.txt").read_text(encoding="utf-8").splitlines():
        fila = re.match(r"only ([a-z_]+) ([a-z_]+) *:(.*)$", linea)
        if fila:
            filas[fila[1], fila[2]] = set(fila[3].split())
    return filas


def publicas():
    """The rows "public LIBRARY : headers" of capas.txt: {LIBRARY: its headers}."""
    filas = {}
    for linea in (RAIZ / "cmake/capas.txt").read_text(encoding="utf-8").splitlines():
        fila = re.match(r"public (\w+) *:(.*)$", linea)
        if fila:
            filas[fila[1]] = fila[2].split()
    return filas


def del_sistema():
    """The rows "system FILE : headers" of capas.txt: {FILE: the headers of the system it may include}."""
    filas = {}
    for linea in (RAIZ / "cmake/capas.txt").read_text(encoding="utf-8").splitlines():
        fila = re.match(r"system ([a-z_0-9/.]+) *:(.*)$", linea)
        if fila:
            filas[fila[1]] = set(fila[2].split())
    return filas


def ficheros(sufijos=None):
    """All files of the tree (paths relative to RAIZ, sorted), or those with one of the suffixes."""
    hallados = []
    pendientes = [RAIZ]
    while pendientes:
        for f in pendientes.pop().iterdir():
            if f.is_dir() and not f.is_symlink():
                if f.name not in AJENAS:
                    pendientes.append(f)
            elif sufijos is None or f.suffix in sufijos:
                hallados.append(f.relative_to(RAIZ))
    return sorted(hallados)


def carpeta_de(ruta):
    """"core" for core/x.h, the row's own name for a folder within one, "" for a file at the top."""
    if "/".join(ruta.parts[:2]) in capas() and len(ruta.parts) > 2:
        return "/".join(ruta.parts[:2])
    return ruta.parts[0] if len(ruta.parts) > 1 else ""


PIEZA = re.compile(
    r"""(?P<linea>//[^\n]*)|(?P<bloque>/\*.*?\*/)"""
    r"""|(?:u8|[LuU])?R"(?P<marca>[^()\\\s]*)\((?P<crudo>.*?)\)(?P=marca)\""""
    r"""|(?:u8|[LuU])?"(?P<texto>(?:\\.|[^"\\\n])*)\""""
    r"""|(?P<caracter>(?<![0-9A-Za-z])(?:u8|[LuU])?'(?:\\.|[^'\\\n])+')""",
    re.S | re.X,
)


def literales(codigo):
    """The string literals of a source outside comments: (line number, text as written, the statement
    up to the literal; of a preprocessor line the whole line)."""
    lineas = codigo.splitlines()
    for p in PIEZA.finditer(codigo):
        texto = p["texto"] if p["texto"] is not None else p["crudo"]
        if texto is None:
            continue
        n = codigo.count("\n", 0, p.start())
        directiva = lineas[n].lstrip().startswith("#")
        principio = max(codigo.rfind(c, 0, p.start()) for c in ";{}") + 1
        yield n + 1, texto, lineas[n] if directiva else codigo[principio:p.start()]


def acaba(nombre, faltas, mirados):
    """Prints the findings and ends the program: 0 when there are none and something was looked at."""
    for f in faltas:
        print(f)
    if not mirados:
        print(f"{nombre}: nothing to look at")
    print(f"{nombre}: {len(faltas)} findings in {mirados} files")
    sys.exit(1 if faltas or not mirados else 0)
