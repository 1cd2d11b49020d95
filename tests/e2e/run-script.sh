#!/usr/bin/env bash
# Runs one terminal script headless and compares its transcript with the golden one beside it.
#   run-script.sh VORNTRADER SCRIPT.vts   (golden: SCRIPT.expected; backend: first line
#   "# backend: sim" picks the simulated exchange, else none)
# UPDATE_GOLDEN=1 rewrites the golden file instead of comparing.
set -euo pipefail
bin="$1"
script="$(readlink -f "$2")"
expected="${script%.vts}.expected"
backend=none
if head -n 1 "$script" | grep -q '^# backend: sim'; then backend=sim; fi
actual="$(mktemp)"
trap 'rm -f "$actual"' EXIT
# The terminal writes settings beside the path it was started by, under HOME and in the users'
# directories: run it by a link in a scratch directory, with its homes there too, so that
# nothing lands in the build tree, the user's home or the real XDG data folder.
work="$(mktemp -d)"
trap 'rm -f "$actual"; rm -rf "$work"' EXIT
ln -s "$(readlink -f "$bin")" "$work/vorntrader"
# The script runs from a copy of its folder, so the files it saves (`file` names are relative to
# the script) land in the scratch directory and the files it reads are there as well.
mkdir "$work/scripts"
cp -r "$(dirname "$script")"/. "$work/scripts/"
(cd "$work" && HOME="$work" XDG_CONFIG_HOME="$work/.config" XDG_DATA_HOME="$work/.local/share" \
  XDG_RUNTIME_DIR="$work" ./vorntrader --headless --backend "$backend" \
  --script "$work/scripts/$(basename "$script")" \
  --trace "$actual" --home "$work/users" 2>"$work/stderr") || {
  status=$?
  echo "vorntrader exited with $status"; cat "$work/stderr"; exit 1
}
if [ "${UPDATE_GOLDEN:-}" = 1 ]; then cp "$actual" "$expected"; exit 0; fi
diff -u "$expected" "$actual"
