# SPDX-License-Identifier: MIT
"""Counts the instructions of each operation of medicion_coste in a small and in a large table, by callgrind.

Fails where the large table costs more than FACTOR times the small one and SUELO more: a cost that grows with the
rows grows by the factor of their numbers, a hundred. No clock is read, so a busy machine changes nothing.
"""
import re
import subprocess
import sys
import tempfile

CHICA, GRANDE = 1_000, 100_000
VECES = 32
FACTOR = 1.5
MINIMO = 100 # instructions: less is not the operation
SUELO = 1_000 # instructions: what an index of some hundred chunks may add
OPERACIONES = {
    "tecla": "a key that moves",
    "rueda": "a notch of the wheel",
    "confirma": "a cell typed and committed",
    "celda": "a cell written by the member",
    "formatos": "formats applied again",
    "inserta": "a row inserted in the middle",
    "borra": "a row deleted in the middle",
    "renumera": "a number overwritten and repaired",
    "anade": "a row appended",
}


def cuenta(programa, filas):
    """Instructions of one operation, by name."""
    with tempfile.NamedTemporaryFile(suffix=".callgrind") as salida:
        subprocess.run(
            ["valgrind", "--tool=callgrind", "--collect-atstart=no", "--toggle-collect=coste_*",
             f"--callgrind-out-file={salida.name}", programa, str(filas)],
            check=True, capture_output=True)
        informe = subprocess.run(["callgrind_annotate", "--inclusive=yes", "--threshold=100", "--auto=no", salida.name],
                                 check=True, capture_output=True, text=True).stdout
    cuentas = {}
    for n, nombre in re.findall(r"^ *([\d,]+) .*:coste_(\w+)", informe, re.M): # a line for each file it has code of
        cuentas[nombre] = max(cuentas.get(nombre, 0), int(n.replace(",", "")) / VECES)
    return cuentas


def main():
    chica, grande = cuenta(sys.argv[1], CHICA), cuenta(sys.argv[1], GRANDE)
    malas = 0
    print(f"{'instructions of':36}{CHICA:>10,} rows{GRANDE:>10,} rows")
    for clave, que in OPERACIONES.items():
        if min(chica.get(clave, 0), grande.get(clave, 0)) < MINIMO:
            print(f"{que:36} not counted")
            malas += 1
            continue
        a, b = chica[clave], grande[clave]
        mala = b > a * FACTOR + SUELO
        malas += mala
        print(f"{que:36}{a:>15,.0f}{b:>15,.0f}{'   GROWS' if mala else ''}")
    print(f"cost: {malas} of {len(OPERACIONES)} operations grow with the rows")
    return 1 if malas else 0


sys.exit(main())
