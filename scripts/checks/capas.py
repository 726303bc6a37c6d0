# SPDX-License-Identifier: MIT
"""Checks every #include against the table of cmake/capas.txt.

A folder includes itself and the folders of its row; qt/ also Qt; the rest only the C++ standard
library, and a few named sources headers of the system. A source includes its own header first. Tests of a folder see what the folder sees, plus
headless/, tests/ and GoogleTest.
"""
import re

from arbol import CODIGO, RAIZ, acaba, cabeceras_contadas, capas, carpeta_de, del_sistema, ficheros

INCLUYE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*(?:"([^"]+)"|<([^>]+)>)', re.M)
ESTANDAR = re.compile(r"^[a-z_0-9]+$")
QT = re.compile(r"^(Qt[A-Za-z]*/)?Q[A-Za-z0-9]+$|^qt[a-z0-9]*\.h$")
PRUEBAS = re.compile(r"^(gtest|gmock|benchmark)/")
GENERADO = re.compile(r'^(moc_\w+\.cpp|\w+\.moc|ui_\w+\.h)$')

FILAS = capas()
CONTADAS = cabeceras_contadas()
DEL_SISTEMA = del_sistema()


def permisos(ruta):
    """(folder, folders it may include, Qt allowed, test headers allowed), or None: not checked."""
    carpeta = carpeta_de(ruta)
    if carpeta in FILAS:
        return carpeta, FILAS[carpeta] | {carpeta}, carpeta == "qt", False
    if carpeta != "tests":
        return None
    probada = ruta.parts[1] if len(ruta.parts) > 2 else ""
    todas = set(FILAS) | {"tests"}
    if probada in ("qt", "guion_qt"):
        return f"tests/{probada}", todas, True, True
    if probada == "tools":
        return "tests/tools", todas - {"qt"} | {"tools"}, False, True
    if probada in FILAS:
        return f"tests/{probada}", FILAS[probada] | {probada, "headless", "platform", "base", "tests"}, False, True
    return f"tests/{probada}", todas - {"qt"}, False, True


def faltas_de(ruta):
    permiso = permisos(ruta)
    if permiso is None:
        return
    quien, abiertas, con_qt, con_pruebas = permiso
    codigo = (RAIZ / ruta).read_text(encoding="utf-8")
    primera = True
    propia = RAIZ / ruta.with_suffix(".h")
    for p in INCLUYE.finditer(codigo):
        aqui = f"{ruta}:{codigo.count(chr(10), 0, p.start()) + 1}:"
        nuestra, fuera = p[1], p[2]
        if primera and ruta.suffix == ".cpp" and carpeta_de(ruta) != "tests" and propia.exists():
            if nuestra != ruta.with_suffix(".h").as_posix():
                yield f'{aqui} the own header "{ruta.with_suffix(".h").as_posix()}" comes first'
        primera = False
        if nuestra and GENERADO.match(nuestra) and con_qt:
            continue
        if nuestra:
            carpeta = nuestra.split("/")[0]
            if "/" not in nuestra or ".." in nuestra:
                yield f'{aqui} write "{carpeta_de(ruta)}/..." instead of "{nuestra}"'
            elif carpeta not in abiertas:
                yield f"{aqui} {quien} may not include {carpeta}/ ({nuestra}); cmake/capas.txt says what it may"
            elif not (RAIZ / nuestra).exists():
                yield f"{aqui} {nuestra} does not exist"
            elif nuestra.split("/", 1)[1] not in CONTADAS.get((quien, carpeta), {nuestra.split("/", 1)[1]}):
                yield f"{aqui} {nuestra} is not one of the headers of {carpeta}/ that {quien} may include"
        elif fuera in DEL_SISTEMA.get(ruta.as_posix(), ()):
            continue
        elif not (ESTANDAR.match(fuera) or (con_qt and QT.match(fuera)) or (con_pruebas and PRUEBAS.match(fuera))):
            yield f"{aqui} {quien} may not include <{fuera}>: only the standard library" + (", Qt" if con_qt else "")


mirados = [f for f in ficheros(CODIGO) if permisos(f)]
acaba("layers", [falta for f in mirados for falta in faltas_de(f)], len(mirados))
