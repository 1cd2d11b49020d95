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
# The terminal writes settings beside the path it was started by and under HOME: run it by a
# link in a scratch directory so that nothing lands in the build tree or the user's home.
work="$(mktemp -d)"
trap 'rm -f "$actual"; rm -rf "$work"' EXIT
ln -s "$(readlink -f "$bin")" "$work/vorntrader"
(cd "$work" && HOME="$work" XDG_CONFIG_HOME="$work/.config" XDG_RUNTIME_DIR="$work" \
  ./vorntrader --headless --backend "$backend" --script "$script" --trace "$actual" \
  2>"$work/stderr") || {
  status=$?
  echo "vorntrader exited with $status"; cat "$work/stderr"; exit 1
}
if [ "${UPDATE_GOLDEN:-}" = 1 ]; then cp "$actual" "$expected"; exit 0; fi
diff -u "$expected" "$actual"
