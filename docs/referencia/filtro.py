# SPDX-License-Identifier: MIT
"""Adds to the headers of members and events what their table knows, before Doxygen reads them.

Under each contract come place, identifier, accessors and the errors that reach the caller, from
control/miembros.h; an accessor without a comment of its own gets that of its property; each member
leads to the sources of examples/ that use it. Usage: filtro.py HEADER, the result goes to standard output.
"""
import re
import sys
from pathlib import Path

RAIZ = Path(__file__).resolve().parents[2]
ACCESOS = {"Metodo": "method", "Lee": "get", "Pone": "put", "LeePone": "get, put", "PoneLee": "put, get"}


def datos():
    """{name: the line of its table row} of members and events."""
    texto = (RAIZ / "control/miembros.h").read_text(encoding="utf-8")
    filas = {}
    for fila in re.split(r"\n(?=    \{\d+, )", texto.split("MIEMBROS{{", 1)[1].split("}};", 1)[0]):
        m = re.search(r'\{(\d+), "(\w+)", (0x\w+), (\w+)', fila)
        if not m:
            continue
        numeros = re.search(r"\{([\d, ]+)\}\},?\s*$", fila)
        errores = "all of the store" if re.search(r"TODOS\},?\s*$", fila) else numeros[1] if numeros else "none"
        filas[m[2]] = f"Place {m[1]}, identifier {m[3]}, {ACCESOS[m[4]]}. Errors that reach the caller: {errores}."
    for numero, nombre in re.findall(r'\{(\d+), "(\w+)"', texto.split("EVENTOS{{", 1)[1].split("}};", 1)[0]):
        filas[nombre] = f"Event {numero}."
    return filas


def ejemplos():
    return {f.relative_to(RAIZ).as_posix(): f.read_text(encoding="utf-8") for f in sorted((RAIZ / "examples").rglob("*.cpp"))}


def usos(nombre, fuentes):
    return [r for r, texto in fuentes.items() if re.search(rf"(\.|->|TablaWidget::){nombre}\b", re.sub(r"//[^\n]*", "", texto))]


def filtra(texto):
    filas, fuentes = datos(), ejemplos()
    salida, ultimo, comentario = [], None, []
    for linea in texto.split("\n"):
        m = re.match(r" +(?:\[\[nodiscard\]\] )?virtual [\w:<> ]+ (\w+)\(", linea)
        if m and m[1] in filas:
            if not comentario and ultimo and ultimo[0] == m[1]:
                salida += ultimo[1]
            elif comentario:
                donde = usos(m[1], fuentes)
                salida.append(f"    /// @par In the table of members\n    /// {filas[m[1]]}")
                if donde:
                    salida.append("    /// @par Example\n    /// " + ", ".join(f"`{r}`" for r in donde))
                ultimo = (m[1], salida[inicio:])
            comentario = []
        elif re.match(r" +///", linea):
            if not comentario:
                inicio = len(salida)
            comentario.append(linea)
        salida.append(linea)
    return "\n".join(salida)


sys.stdout.reconfigure(encoding="utf-8")
print(filtra(Path(sys.argv[1]).read_text(encoding="utf-8")), end="")
