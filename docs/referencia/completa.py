# SPDX-License-Identifier: MIT
"""Checks that the reference that was made holds every member and event with its contract.

Usage: completa.py XML-FOLDER. The names are those of control/miembros.h; all accessors of a property count.
"""
import re
import sys
import xml.etree.ElementTree as ET
from pathlib import Path

RAIZ = Path(__file__).resolve().parents[2]
tabla = (RAIZ / "control/miembros.h").read_text(encoding="utf-8")
accesos = {"LeePone": 2, "PoneLee": 2}
esperados = {n: accesos.get(clase, 1) for n, clase in re.findall(r'\{\d+, "(\w+)", 0x\w+, (\w+)', tabla)}
eventos = {n: 1 for n in re.findall(r'\{\d+, "(\w+)"', tabla.split("EVENTOS{{", 1)[1].split("}};", 1)[0])}


def contados(clase):
    """{member: how many of its declarations have a contract} of the page of that class."""
    cuenta = {}
    for fichero in Path(sys.argv[1]).glob("class*.xml"):
        compuesto = ET.parse(fichero).getroot().find("compounddef")
        if compuesto.findtext("compoundname") != f"Qlt4_Tabla::{clase}":
            continue
        for m in compuesto.iter("memberdef"):
            texto = "".join(m.find("briefdescription").itertext()) + "".join(m.find("detaileddescription").itertext())
            if len(texto.split()) > 4:
                cuenta[m.findtext("name")] = cuenta.get(m.findtext("name"), 0) + 1
    return cuenta


faltas = []
for clase, nombres in (("_Tabla0", esperados), ("__Tabla0", eventos)):
    hay = contados(clase)
    faltas += [f"{clase}: {n} has {hay.get(n, 0)} pages with a contract, not {v}" for n, v in nombres.items() if hay.get(n, 0) != v]
print("\n".join(faltas + [f"reference: {len(esperados)} members, {len(eventos)} events, {len(faltas)} without contract"]))
sys.exit(1 if faltas or not esperados or not eventos else 0)
