# SPDX-License-Identifier: MIT
"""Checks every #include against the table of cmake/capas.txt.

A folder includes itself and the folders of its row; qt/ and what is below it also Qt; the rest only the
C++ standard library, and a few named sources headers of the system. A source includes its own header first.
Tests of a folder see what the folder sees, plus headless/, tests/ and GoogleTest. What TABLA_API marks stands
in a public header, or in one that those include; and those headers exist.
"""
import re
from pathlib import Path

from arbol import CODIGO, RAIZ, acaba, cabeceras_contadas, capas, carpeta_de, del_sistema, ficheros, publicas

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
        return carpeta, FILAS[carpeta] | {carpeta}, carpeta.split("/")[0] == "qt", False
    if carpeta != "tests":
        return None
    if ruta.parts[1] == "consumidores":
        return None  # hosts, as the examples are
    probada = ruta.parts[1] if len(ruta.parts) > 2 else ""
    todas = set(FILAS) | {"tests"}
    if probada in ("qt", "guion_qt", "disenador"):
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
            carpeta = carpeta_de(Path(nuestra))
            if "/" not in nuestra or ".." in nuestra:
                yield f'{aqui} write "{carpeta_de(ruta)}/..." instead of "{nuestra}"'
            elif carpeta not in abiertas:
                yield f"{aqui} {quien} may not include {carpeta}/ ({nuestra}); cmake/capas.txt says what it may"
            elif not (RAIZ / nuestra).exists():
                yield f"{aqui} {nuestra} does not exist"
            elif (nombre := nuestra[len(carpeta) + 1:]) not in CONTADAS.get((quien, carpeta), {nombre}):
                yield f"{aqui} {nuestra} is not one of the headers of {carpeta}/ that {quien} may include"
        elif fuera in DEL_SISTEMA.get(ruta.as_posix(), ()):
            continue
        elif not (ESTANDAR.match(fuera) or (con_qt and QT.match(fuera)) or (con_pruebas and PRUEBAS.match(fuera))):
            yield f"{aqui} {quien} may not include <{fuera}>: only the standard library" + (", Qt" if con_qt else "")


def alcanzadas(raices):
    """The headers and all of ours that they include."""
    vistas, pendientes = set(), list(raices)
    while pendientes:
        cabecera = pendientes.pop()
        if cabecera not in vistas and (RAIZ / cabecera).exists():
            vistas.add(cabecera)
            pendientes += [p[1] for p in INCLUYE.finditer((RAIZ / cabecera).read_text(encoding="utf-8")) if p[1]]
    return vistas


def faltas_de_lo_publico(mirados):
    raices = [cabecera for fila in publicas().values() for cabecera in fila]
    yield from (f"cmake/capas.txt: public: {r} does not exist" for r in raices if not (RAIZ / r).exists())
    instaladas = alcanzadas(raices)
    for ruta in mirados:
        marca = re.search(r"^(?![ \t]*(#|//)).*\bTABLA_API\b", (RAIZ / ruta).read_text(encoding="utf-8"), re.M)
        if marca and carpeta_de(ruta) in FILAS and ruta.as_posix() not in instaladas:
            yield f"{ruta}: marks names with TABLA_API and is not public (cmake/capas.txt)"


mirados = [f for f in ficheros(CODIGO) if permisos(f)]
faltas = [falta for f in mirados for falta in faltas_de(f)]
acaba("layers", faltas + list(faltas_de_lo_publico(mirados)), len(mirados))
