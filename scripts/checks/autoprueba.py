# SPDX-License-Identifier: MIT
"""Proves that the checks find what they look for: a small tree passes, each spoilt one fails.

scripts/comprueba runs it first. A case is (check, file, its content, a piece of the expected
finding); scripts/cuenta is tried on recorded results at the end.
"""
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

RAIZ = Path(__file__).resolve().parents[2]
CARTEL = "// SPDX-License-Identifier: MIT\n// A banner. And more.\n"
CABECERA = CARTEL + "#pragma once\n"

BUENOS = {
    "base/a.h": CABECERA + "\n#include <string>\n",
    "base/a.cpp": CARTEL + '#include "base/a.h"\n\nconst char* clave() { return "Left"; }\n',
    "core/b.h": CABECERA + '\n#include "base/a.h"\n\nTABLA_API void b();\n',
    "core/textos.h": CABECERA + '\nconstexpr auto aviso = "Nº de filas de la tabla";\n',
    "editing/c.h": CABECERA + '\n#include "core/b.h"\n',
    "editing/c.cpp": CARTEL + '#include "editing/c.h"\n\nstatic_assert(true,\n    "told to the compiler");\n',
    "colours/d.h": CABECERA + "// \"un texto con ñ dentro\" de un comentario\n",
    "control/e.h": CABECERA + '\n#include "editing/c.h"\n',
    "qt/f.h": CABECERA + '\n#include "control/e.h"\n\n#include <QWidget>\n',
    "control/miembros.h": CABECERA + '\nMIEMBROS{{\n    {1, "Uno", 0x60030016, Metodo, {}, NADA, {6}},\n}};\n'
        + 'EVENTOS{{\n    {1, "Sale", {}},\n}};\n',
    "control/_tabla0.h": CABECERA + "\n    /// Does the first thing. Error 6: never.\n    virtual void Uno() = 0;\n",
    "platform/eventos.h": CABECERA + "\n    /// 1: the user went out.\n    virtual void Sale() {}\n",
    "examples/e/principal.cpp": CARTEL + "// begin: uno\nt.Uno();\n// end: uno\nu->Sale();\n",
    "docs/guia_anfitrion.md": "`Uno` `Sale` [e](../examples/e/principal.cpp)\n"
        "<!-- examples/e/principal.cpp : uno -->\n```cpp\nt.Uno();\n```\n",
    "qt/designer/g.h": CABECERA + '\n#include "qt/f.h"\n\n#include <QtUiPlugin/QDesignerCustomWidgetInterface>\n',
    "headless/s.cpp": CARTEL + "#include <unistd.h>\n",
    "tests/base/a.cpp": CARTEL + '#include "base/a.h"\n\n#include <gtest/gtest.h>\n',
}
MALOS = [
    ("capas", "editing/m.h", CABECERA + '#include "colours/d.h"\n', "editing may not include colours/"),
    ("capas", "base/m.h", CABECERA + '#include "core/b.h"\n', "base may not include core/"),
    ("capas", "core/m.h", CABECERA + "#include <QString>\n", "core may not include <QString>"),
    ("capas", "core/m.h", CABECERA + "#include <windows.h>\n", "core may not include <windows.h>"),
    ("capas", "headless/m.cpp", CARTEL + "#include <unistd.h>\n", "headless may not include <unistd.h>"),
    ("capas", "qt/m.h", CABECERA + '#include "editing/c.h"\n', "qt may not include editing/"),
    ("capas", "qt/m.h", CABECERA + '#include "core/textos.h"\n', "not one of the headers of core/"),
    ("capas", "core/m.h", CABECERA + '#include "b.h"\n', 'write "core/..."'),
    ("capas", "core/m.h", CABECERA + '#  include  "base/x.h"\n', "does not exist"),
    ("capas", "core/b.cpp", CARTEL + '#include "base/a.h"\n#include "core/b.h"\n', "comes first"),
    ("capas", "tests/base/m.cpp", CARTEL + '#include "core/b.h"\n', "tests/base may not include core/"),
    ("capas", "qt/m.h", CABECERA + '#include "qt/designer/g.h"\n', "qt may not include qt/designer/"),
    ("capas", "qt/designer/m.h", CABECERA + '#include "core/b.h"\n', "qt/designer may not include core/"),
    ("capas", "core/m.h", CABECERA + "void f();\nTABLA_API void g();\n", "is not public"),
    ("capas", "control/e.h", None, "public: control/e.h does not exist"),
    ("textos", "qt/designer/m.cpp", CARTEL + 'auto x = f("Abrir la tabla");\n', "belongs into qt/designer/textos.h"),
    ("textos", "core/m.h", CABECERA + 'const char* x = "Número";\n', "belongs into core/textos.h"),
    ("textos", "qt/m.cpp", CARTEL + 'auto x = f("Abrir la tabla");\n', "belongs into qt/textos.h"),
    ("textos", "qt/m.cpp", CARTEL + 'auto x = R"(Abrir la tabla)";\n', "belongs into qt/textos.h"),
    ("textos", "scripts/checks/textos-permitidos.txt", "core/*.h | [a-z]+ | nobody needs it\n", "nothing needs"),
    ("ficheros", "core/m.h", CABECERA + "int a;\t\n", "a tab"),
    ("ficheros", "core/m.h", CABECERA + "int a; \n", "blanks at the end"),
    ("ficheros", "core/m.h", CABECERA + "int a;", "no newline at the end"),
    ("ficheros", "core/m.h", "#pragma once\n", "no SPDX"),
    ("ficheros", "core/m.h", CARTEL, "no #pragma once"),
    ("ficheros", "core/m.h", CABECERA + "int a\u006e\u0303o;\n", "NFC"),
    ("ficheros", "core/m.h", (CABECERA + "// Número\n").encode("latin-1"), "not UTF-8"),
    ("ficheros", "core/M.h", CABECERA, "ASCII lower case"),
    ("ficheros", "core/m.cpp", CARTEL + "int a;\n" * 500, "at most 500"),
    ("ficheros", "control/m.h", CABECERA + "int a;\n" * 250, "at most 250"),
    ("ficheros", "platform/m.h", CABECERA + "class M {\n" + "    virtual void f() = 0;\n" * 11 + "};\n", "at most 10"),
    ("guia", "docs/m.md", "```cpp\nint a;\n```\n", "no mark"),
    ("guia", "docs/m.md", "```cmake\nproject(a)\n```\n", "no mark"),
    ("guia", "docs/m.md", "<!-- core/b.h : b -->\n```cpp\nint a;\n```\n", "has no region b"),
    ("guia", "docs/m.md", "<!-- examples/e/principal.cpp : uno -->\n```cpp\nt.Dos();\n```\n", "is not what"),
    ("guia", "docs/m.md", "[b](b.md)\n", "b.md does not exist"),
    ("guia", "docs/figuras/m.png", b"png", "no document shows it"),
    ("guia", "docs/figuras/m.png", b"0" * 60_001, "at most 60000"),
    ("guia", "docs/guia_anfitrion.md", "`Sale`\n", "does not name Uno"),
    ("guia", "examples/e/principal.cpp", CARTEL + "// t.Uno(); u->Sale();\n", "no source of examples/ uses it"),
    ("guia", "control/_tabla0.h", CABECERA + "\n    virtual void Uno() = 0;\n", "no contract above Uno"),
    ("guia", "control/_tabla0.h", CABECERA + "\n    /// Does the first thing.\n    virtual void Uno() = 0;\n",
        "does not name its error 6"),
    ("guia", "platform/eventos.h", CABECERA + "\n    virtual void Sale() {}\n", "no contract above Sale"),
    ("guia", "control/miembros.h", CABECERA, "no members found"),
    ("mapa", "core/m.h", CABECERA, "new or changed"),
    ("mapa", "core/m.h", "// SPDX-License-Identifier: MIT\n#pragma once\n", "no banner"),
    ("mapa", "core/b.h", None, "gone or changed"),
    ("mapa", "ARCHITECTURE.md", "`core/` `nunca/`\n", "nunca/ does not exist"),
]
JUNIT = """<testsuite>
<testcase name="a" classname="a" time="0" status="run">
<testcase name="b" classname="b" time="0" status="fail">
<testcase name="c" classname="c" time="0" status="notrun">
  <skipped message="SKIP_REGULAR_EXPRESSION_MATCHED"/>
</testcase>
<testcase name="d" classname="d" time="0" status="notrun">
  <skipped message="Unable to find executable"/>
</testcase>
<testcase name="qt.e" classname="e" time="0" status="run">
<testcase name="qt.rota" classname="rota" time="0" status="fail">
</testsuite>
"""
QTEST_BIEN = """PASS   : E::initTestCase()
PASS   : E::una()
PASS   : E::otra(fila)
PASS   : E::cleanupTestCase()
Totals: 4 passed, 0 failed, 1 skipped, 0 blacklisted, 5ms
"""
QTEST_ROTO = "PASS   : R::initTestCase()\nPASS   : R::una()\n"


def planta(dir_, ruta, contenido):
    f = dir_ / ruta
    if contenido is None:
        f.unlink()
        return
    f.parent.mkdir(parents=True, exist_ok=True)
    f.write_bytes(contenido if isinstance(contenido, bytes) else contenido.encode("utf-8"))


def arbol_bueno(dir_):
    for carpeta in ("scripts", "cmake"):
        shutil.copytree(RAIZ / carpeta, dir_ / carpeta, ignore=shutil.ignore_patterns("__pycache__"))
    # The tree's own exceptions and chief headers are not those of the small tree.
    planta(dir_, "scripts/checks/textos-permitidos.txt", "")
    capas = (dir_ / "cmake/capas.txt").read_text(encoding="utf-8")
    filas = [l for l in capas.split("\n") if not l.startswith(("only ", "system ", "public "))]
    planta(dir_, "cmake/capas.txt", "\n".join(filas) + "\nonly qt core : b.h\npublic Nucleo : control/e.h\nsystem headless/s.cpp : unistd.h\n")
    for ruta, contenido in BUENOS.items():
        planta(dir_, ruta, contenido)
    nombres = [l.split(" ")[0] for l in filas if " :" in l and not l.startswith("#")]
    planta(dir_, "ARCHITECTURE.md", "".join(f"`{n}/` may come later\n" for n in nombres))
    subprocess.run([sys.executable, dir_ / "scripts/checks/mapa.py", "--escribe"], capture_output=True)


def corre(dir_, cual):
    r = subprocess.run([sys.executable, dir_ / f"scripts/checks/{cual}.py"], capture_output=True, text=True)
    return r.returncode, r.stdout + r.stderr


def prueba_cuenta(dir_):
    planta(dir_, "build/resultado.xml", JUNIT)
    planta(dir_, "build/qtest/e.txt", QTEST_BIEN)
    planta(dir_, "build/qtest/rota.txt", QTEST_ROTO)
    r = subprocess.run([RAIZ / "scripts/cuenta", dir_ / "build"], capture_output=True, text=True)
    if (r.returncode, r.stdout) != (1, "4 passed, 3 failed, 2 skipped\n"):
        yield f"cuenta: {r.returncode} {r.stdout}"
    planta(dir_, "build/resultado.xml", "<testsuite>\n</testsuite>\n")
    r = subprocess.run([RAIZ / "scripts/cuenta", dir_ / "build"], capture_output=True, text=True)
    if r.returncode == 0:
        yield "cuenta: no test at all must not pass"


def pruebas():
    with tempfile.TemporaryDirectory() as temporal:
        modelo = Path(temporal) / "modelo"
        arbol_bueno(modelo)
        for cual in ("capas", "textos", "ficheros", "guia", "mapa"):
            codigo, salida = corre(modelo, cual)
            if codigo != 0:
                yield f"{cual}: refuses the good tree: {salida}"
        for n, (cual, ruta, contenido, espera) in enumerate(MALOS):
            copia = Path(temporal) / str(n)
            shutil.copytree(modelo, copia)
            planta(copia, ruta, contenido)
            codigo, salida = corre(copia, cual)
            if codigo == 0 or espera not in salida:
                yield f'{cual}: {ruta} should give "{espera}", gave {codigo}: {salida}'
        yield from prueba_cuenta(modelo)


fallos = list(pruebas())
print("\n".join(fallos + [f"checks of the checks: {len(MALOS)} spoilt trees, {len(fallos)} not as expected"]))
sys.exit(1 if fallos else 0)
