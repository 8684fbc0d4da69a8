#!/usr/bin/python3
"""Gives every public header of the library its export macro, for headers written without it (the test
interfaz_bibliotecas names them): `namespace nod {` becomes `namespace nod NOD_CORE_EXPORT {` and the header
includes nod_core_export.h, or NOD_WIDGETS_EXPORT and nod_widgets_export.h when its .cpp is compiled into a
dialog library (a nod_ui_library of its folder's CMakeLists.txt, or a header of widgets without a .cpp).

    /usr/bin/python3 tools/exporta-cabeceras.py      # from the root of the sources; prints what it changed
"""
import pathlib
import re
import subprocess

raiz = pathlib.Path(__file__).resolve().parent.parent
cambiadas = []
for cmake in sorted(raiz.glob("*/CMakeLists.txt")):
    texto = cmake.read_text()
    if "nod_core_library(" not in texto and "nod_ui_library(" not in texto:
        continue
    # The sources named inside each nod_ui_library( ... ) call of this folder.
    de_ui = set()
    for bloque in re.findall(r"nod_ui_library\((.*?)\)", texto, re.S):
        de_ui.update(pathlib.Path(p).stem for p in re.findall(r"[\w/]+\.cpp", bloque))
    for h in sorted(cmake.parent.glob("*.h")):
        t = h.read_text()
        if h.name.endswith("_p.h") or not re.search(r"^namespace nod \{", t, re.M):
            continue
        widgets = h.stem in de_ui or (
            not h.with_suffix(".cpp").exists() and re.search(r"#include <Q(Widget|Dialog|LineEdit|Label)", t))
        tipo = "widgets" if widgets else "core"
        t = re.sub(r"^namespace nod \{", f"namespace nod NOD_{tipo.upper()}_EXPORT {{", t, flags=re.M)
        inclusion = f'#include "nod_{tipo}_export.h"'
        if inclusion not in t:
            primera = re.search(r"^#include .*$", t, re.M) or re.search(r"^namespace nod", t, re.M)
            t = t[: primera.start()] + inclusion + "\n" + t[primera.start():]
        h.write_text(t)
        cambiadas.append(str(h.relative_to(raiz)))
        print(f"{h.relative_to(raiz)}: NOD_{tipo.upper()}_EXPORT")
if cambiadas:
    subprocess.run(["clang-format", "-i", *cambiadas], cwd=raiz, check=True)
