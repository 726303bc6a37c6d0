# SPDX-License-Identifier: MIT
"""Checks the files themselves: UTF-8 in composed form, line ends, blanks, SPDX line, names, sizes.

Sizes: a source outside tests has at most 500 lines, a header of control/ or platform/ 250, and a
port in platform/ ten pure functions a class.
"""
import re
import unicodedata

from arbol import CODIGO, RAIZ, acaba, capas, carpeta_de, ficheros

TEXTO = CODIGO | {".py", ".sh", ".cmake", ".txt", ".md", ".json", ".guion", ".qrc", ".supp", ".ui", ".in"}
CON_SPDX = CODIGO | {".py", ".sh", ".cmake", ".supp", ".guion"}
NOMBRE = re.compile(r"^[a-z0-9_.-]+$")
SUELTOS = {"CMakeLists.txt", "README.md"}
CASAS = set(capas()) | {"tests", "examples", "benchmarks", "fuzz", "tools", "cmake", "scripts"}


def es_guion_de_ordenes(ruta):
    return ruta.suffix == "" and carpeta_de(ruta) in {"scripts", ".ci"}


def de_la_casa(ruta):
    """Golden files and data are kept byte for byte and are not looked at."""
    return ruta.suffix in TEXTO or es_guion_de_ordenes(ruta) or ruta.name in {
        "CODE-MAP", ".clang-format", ".clang-tidy", ".editorconfig", ".gitignore", ".gitattributes"}


def faltas_de_texto(ruta, bytes_):
    try:
        texto = bytes_.decode("utf-8")
    except UnicodeDecodeError as e:
        yield f"{ruta}: not UTF-8 at byte {e.start}"
        return
    if bytes_.startswith(b"\xef\xbb\xbf"):
        yield f"{ruta}: starts with a byte order mark"
    if "\r" in texto:
        yield f"{ruta}: has a carriage return"
    if bytes_ and not texto.endswith("\n"):
        yield f"{ruta}: no newline at the end"
    if texto.endswith("\n\n"):
        yield f"{ruta}: empty lines at the end"
    for n, linea in enumerate(texto.split("\n"), 1):
        if "\t" in linea:
            yield f"{ruta}:{n}: a tab"
        if linea != linea.rstrip():
            yield f"{ruta}:{n}: blanks at the end of the line"
        if not unicodedata.is_normalized("NFC", linea):
            yield f"{ruta}:{n}: not in the composed form (NFC)"
    if ruta.suffix in CON_SPDX or es_guion_de_ordenes(ruta) or ruta.name == "CMakeLists.txt":
        if not any("SPDX-License-Identifier: MIT" in l for l in texto.split("\n")[:2]):
            yield f"{ruta}:1: no SPDX-License-Identifier: MIT"


def nombre_de(clase):
    return next(palabra for palabra in clase.split()[1:] if palabra != "TABLA_API")


def faltas_de_codigo(ruta, texto):
    lineas = texto.count("\n")
    carpeta = carpeta_de(ruta)
    if carpeta != "tests" and lineas > 500:
        yield f"{ruta}: {lineas} lines (at most 500): probably more than one thing"
    if ruta.suffix != ".h":
        return
    if "#pragma once" not in texto:
        yield f"{ruta}: no #pragma once"
    if carpeta in {"control", "platform"} and lineas > 250:
        yield f"{ruta}: {lineas} lines (a public header has at most 250)"
    if carpeta == "platform":
        for clase in re.split(r"^(?=class |struct )", texto, flags=re.M)[1:]:
            metodos = len(re.findall(r"\)[^;{}]*=\s*0\s*;", clase))
            if metodos > 10:
                yield f"{ruta}: {nombre_de(clase)} has {metodos} methods (a port has at most 10)"


faltas = []
mirados = [f for f in ficheros() if de_la_casa(f)]
for ruta in mirados:
    bytes_ = (RAIZ / ruta).read_bytes()
    faltas += faltas_de_texto(ruta, bytes_)
    if carpeta_de(ruta) in CASAS and not all(NOMBRE.match(p) for p in ruta.parts) and ruta.name not in SUELTOS:
        faltas.append(f"{ruta}: file names are ASCII lower case")
    if ruta.suffix in CODIGO:
        faltas += faltas_de_codigo(ruta, bytes_.decode("utf-8", errors="replace"))
acaba("files", faltas, len(mirados))
