#!/usr/bin/env bash
# Renders every example script into the output folder. Relative file names
# in a script resolve against that folder.
set -euo pipefail
velarix=$(realpath "$1")
examples=$(realpath "$2")
out=$3
mkdir -p "$out"
out=$(realpath "$out")
# Data files the scripts read lie beside them.
cp "$examples"/data/* "$out"/ 2>/dev/null || true
status=0
for script in "$examples"/*.vxs "$examples"/charts/*.vxs; do
    name=$(basename "$script" .vxs)
    if "$velarix" --base "$out" "$script"; then
        echo "rendered $name"
    else
        echo "FAILED   $name" >&2
        status=1
    fi
done
ls -l "$out"
exit $status
