# SPDX-License-Identifier: MIT
"""Runs the measuring programs in rounds and prints their figures side by side; scripts/mide calls it.

One process a contestant, group of works, size and round, the contestants taking turns within a round. A figure
is the median of the rounds, behind +- half the distance between the quarters, of processor time: on a busy
machine the clock measures the others. Clock times stand in the JSON too. Only a start is given by the clock as
well: most of it is spent by the window system.
"""
import argparse
import datetime
import json
import os
import pathlib
import statistics
import subprocess
import sys
import time

RAIZ = pathlib.Path(__file__).resolve().parent.parent
MARCA = "<!-- figures of the last run -->\n"

# name of the figure, what it is called, unit, how much of it a millisecond is
OBRAS = [
    ("bytes_por_celda", "peak bytes a cell", "B", 1),
    ("vacia_kb", "memory of an empty table", "KB", 1),
    ("llena", "fill every cell by the member", "ms", 1),
    ("lee", "read every cell as a view", "ms", 1),
    ("pega", "paste the block, commas to points, reals formatted", "ms", 1),
    ("copia", "copy the whole table to one text", "ms", 1),
    ("copia_comas", "the same with decimal commas", "ms", 1),
    ("suma", "sum of two columns into a third, formatted", "ms", 1),
    ("resta", "difference of two columns into a third", "ms", 1),
    ("parcial", "difference of each row to the one above", "ms", 1),
    ("numeros", "a column of reals out as an array", "ms", 1),
    ("pon_numeros", "an array of numbers into a column", "ms", 1),
    ("colorea", "colour a column", "ms", 1),
    ("graba", "save, without waiting for the disk", "ms", 1),
    ("carga", "load", "ms", 1),
    ("formatos_carga", "load, with formats of numbers applied", "ms", 1),
    ("anade", "append a row", "us", 1000),
    ("inserta_borra", "insert and delete a row in the middle", "us", 1000),
    ("renumera", "renumber after an overwritten number", "us", 1000),
    ("borra_100000", "delete 100,000 rows", "ms", 1),
    ("escribe", "type a cell: key, text, Enter", "us", 1000),
    ("formatea", "formats: one column gets other decimals", "ms", 1),
    ("formatea_otra_vez", "formats applied again, as the column editor does", "ms", 1),
    ("pega_una", "paste one cell", "us", 1000),
    ("sin_color", "take all colours away", "ms", 1),
    ("elige_todo", "select all rows", "us", 1000),
    ("funde", "merge a column and back", "us", 1000),
    ("arrastra_ancho", "drag a width", "us", 1000),
    ("anade_pintado", "append a row, followed and painted", "ms", 1),
    ("inserta_borra_pintado", "insert and delete in the middle, painted", "ms", 1),
    ("repinta", "repaint 1200 x 800", "ms", 1),
    ("rueda_pintada", "scroll by 3 rows, painted", "ms", 1),
    ("arrastra_pintado", "drag a width, painted", "ms", 1),
    ("arranque_espera", "start to the first painted window, by the clock", "ms", 1),
    ("arranque_letra_espera", "the same, limit: a window with one letter", "ms", 1),
    ("arranque", "start, processor time", "ms", 1),
    ("arranque_letra", "the same, limit: a window with one letter", "ms", 1),
]

# heading, program, its first argument, groups
CONCURSANTES = [
    ("this table", "celdas", "tabla", ["celdas", "columnas", "pega", "fichero", "propias"]),
    ("this table", "ventanas_qt", "tabla", ["ventana", "arranque"]),
    ("QTableWidget", "ventanas_qt", "qtablewidget", ["celdas", "columnas", "pega", "fichero", "ventana", "arranque"]),
    ("QStandardItemModel", "ventanas_qt", "qstandarditemmodel", ["celdas", "columnas", "pega", "fichero", "ventana", "arranque"]),
    ("wxGrid", "rejilla_wx", "wxgrid", ["celdas", "columnas", "pega", "fichero"]),
    ("vectors", "celdas", "vectores", ["celdas", "columnas", "pega", "fichero"]),
    ("limit", "celdas", "limite", ["celdas", "columnas", "pega", "fichero"]),
    ("limit", "ventanas_qt", "limite", ["ventana", "arranque", "arranque_letra"]),
]
PARES = ["QTableWidget", "QStandardItemModel", "wxGrid", "vectors"]
NOMBRES = ["this table", *PARES, "limit"]


def corre(programa, quien, grupo, filas):
    """Figures of one process: name -> (processor, clock); those up to where it failed, which is told."""
    entorno = os.environ | {"MEDIDA_DESDE": str(time.monotonic() * 1000)}
    hecho = subprocess.run([programa, quien, grupo, str(filas)], capture_output=True, text=True, check=False, env=entorno)
    if hecho.returncode != 0:
        print(f"\nFAILED: {programa.name} {quien} {grupo} {filas}: {hecho.stderr.strip() or hecho.returncode}", file=sys.stderr)
    lineas = (linea.split() for linea in hecho.stdout.splitlines())
    return {nombre: (float(cpu), float(reloj)) for nombre, cpu, reloj in lineas}


def mide(carpeta, tamanos, vueltas, vueltas_pares):
    """filas -> contestant -> work -> list of (processor, clock)."""
    todo = {filas: {} for filas in tamanos}
    for filas in tamanos:
        for vuelta in range(vueltas):
            for nombre, programa, quien, grupos in CONCURSANTES:
                fichero = carpeta / f"medicion_{programa}"
                lento = programa != "celdas" and quien not in ("tabla", "limite")
                if not fichero.exists() or (lento and vuelta >= vueltas_pares):
                    continue
                for grupo in grupos:
                    print(f"\r{filas} rows, round {vuelta + 1}: {nombre} {grupo}\033[K", end="", file=sys.stderr)
                    for obra, par in corre(fichero, quien, grupo, filas).items():
                        todo[filas].setdefault(nombre, {}).setdefault(obra, []).append(par)
    print("\r\033[K", end="", file=sys.stderr)
    return todo


def mediana(pares):
    """(median, half the distance between the quarters) of the processor times."""
    valores = sorted(cpu for cpu, _ in pares)
    if len(valores) < 3:
        return statistics.median(valores), 0.0
    cuartos = statistics.quantiles(valores, n=4, method="inclusive")
    return cuartos[1], (cuartos[2] - cuartos[0]) / 2


def cifra(x):
    return f"{x:.0f}" if x >= 100 else f"{x:.3g}"


def razon(a, b):
    return "" if not a or not b else f"{a / b:.2f}" if a / b < 100 else f"{a / b:.0f}"


def fila_de(obra, que, unidad, escala, medidas):
    valores = {n: mediana(medidas[n][obra]) for n in NOMBRES if medidas.get(n, {}).get(obra)}
    if "this table" not in valores:
        return None
    celdas = []
    for n in NOMBRES:
        if n not in valores:
            celdas.append("")
            continue
        valor, ancho = (x * escala for x in valores[n])
        celdas.append(cifra(valor) + (f" ± {cifra(ancho)}" if ancho >= valor / 20 else ""))
    nuestro = valores["this table"][0]
    mejor = min((valores[n][0] for n in PARES if n in valores), default=None)
    limite = valores.get("limit", (None,))[0]
    return f"| {que}, {unidad} | " + " | ".join([*celdas, razon(nuestro, mejor), razon(nuestro, limite)]) + " |"


def cuadro(filas, medidas):
    nombres = [*NOMBRES, "to the best other", "to the limit"]
    lineas = [f"### {filas:,} rows by 10 columns", "", "| work | " + " | ".join(nombres) + " |", "|---" * (len(nombres) + 1) + "|"]
    lineas += [f for f in (fila_de(*o, medidas) for o in OBRAS) if f]
    return "\n".join(lineas) + "\n"


def cabecera(vueltas, vueltas_pares, carga):
    modelo = next((l.split(":")[1].strip() for l in open("/proc/cpuinfo") if l.startswith("model name")), "?")
    return (f"Run of {datetime.date.today()}, {os.cpu_count()} cores, {modelo}, {os.environ.get('QT_QPA_PLATFORM', 'screen')} "
            f"platform; load of the machine {carga:.1f} before and {os.getloadavg()[0]:.1f} after, so that it was "
            f"{'busy with other work: trust the ratios' if carga > 1.5 else 'quiet'}. Median of {vueltas} rounds "
            f"({vueltas_pares} of Qt's and wxWidgets' tables).\n")


def main():
    p = argparse.ArgumentParser(prog="scripts/mide", description="Measures this table beside others and the machine's limit.")
    p.add_argument("--carpeta", type=pathlib.Path, default=RAIZ / "build/release", help="where the programs are")
    p.add_argument("--filas", type=int, nargs="+", default=[10_000, 100_000, 1_000_000])
    p.add_argument("--vueltas", type=int, default=5, help="rounds")
    p.add_argument("--vueltas-pares", type=int, default=2, help="rounds of the slow contestants")
    p.add_argument("--documento", action="store_true", help="put the figures into docs/rendimiento.md too")
    a = p.parse_args()
    carga = os.getloadavg()[0]
    todo = mide(a.carpeta, a.filas, a.vueltas, a.vueltas_pares)
    texto = cabecera(a.vueltas, a.vueltas_pares, carga) + "\n" + "\n".join(cuadro(f, m) for f, m in todo.items())
    print(texto)
    salida = a.carpeta / "rendimiento.json"
    salida.write_text(json.dumps({"carga": carga, "medidas": todo}, indent=1))
    print(f"All rounds, processor and clock in milliseconds: {salida}")
    if a.documento:
        documento = RAIZ / "docs/rendimiento.md"
        antes = documento.read_text(encoding="utf-8").split(MARCA)[0]
        documento.write_text(antes + MARCA + "\n" + texto, encoding="utf-8")


main()
