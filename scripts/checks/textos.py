# SPDX-License-Identifier: MIT
"""Checks that every text a user sees sits in its folder's textos.h (or textos.cpp).

In the other files of the shipped folders a string literal is a finding when it is not ASCII or
reads like a sentence (two words with a blank between). Exceptions need a reason: a line
"file | regular expression of the whole literal | reason" in textos-permitidos.txt, which is itself
a finding once nothing needs it.
"""
import re
from fnmatch import fnmatch

from arbol import CODIGO, RAIZ, acaba, capas, carpeta_de, ficheros, literales

FRASE = re.compile(r"[^\W\d_]{2,}[.,:;]? +[^\W\d_]{2,}")
# Told to the compiler, never to a user.
AL_COMPILADOR = re.compile(
    r"^\s*#\s*(include|error|pragma)|\bstatic_assert\s*\(|\[\[(deprecated|nodiscard)\s*\($|\bassert\s*\(")
LISTA = RAIZ / "scripts/checks/textos-permitidos.txt"


def permitidos():
    filas = []
    for n, linea in enumerate(LISTA.read_text(encoding="utf-8").splitlines(), 1):
        if not linea.strip() or linea.startswith("#"):
            continue
        partes = [p.strip() for p in linea.split(" | ")]
        if len(partes) != 3 or len(partes[2]) < 8:
            faltas.append(f"{LISTA.name}:{n}: needs: file | regular expression | reason")
            continue
        filas.append({"n": n, "fichero": partes[0], "literal": re.compile(partes[1]), "usada": False})
    return filas


def con_permiso(ruta, texto):
    for fila in filas:
        if fnmatch(ruta.as_posix(), fila["fichero"]) and fila["literal"].fullmatch(texto):
            fila["usada"] = True
            return True
    return False


faltas = []
filas = permitidos()
enviadas = set(capas())
mirados = [f for f in ficheros(CODIGO) if carpeta_de(f) in enviadas and f.stem != "textos"]
for ruta in mirados:
    for n, texto, antes in literales((RAIZ / ruta).read_text(encoding="utf-8")):
        if AL_COMPILADOR.search(antes) or (texto.isascii() and not FRASE.search(texto)):
            continue
        if not con_permiso(ruta, texto):
            faltas.append(f'{ruta}:{n}: "{texto}" belongs into {carpeta_de(ruta)}/textos.h')
faltas += [f'{LISTA.name}:{fila["n"]}: nothing needs this line' for fila in filas if not fila["usada"]]
acaba("texts", faltas, len(mirados))
