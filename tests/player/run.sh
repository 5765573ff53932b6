#!/usr/bin/env bash
# run.sh TAMBER BUILD [CASE...]: fetches the player into BUILD when it is not there, then plays the cases.
# Exit status 77 when the player can neither be found nor fetched.
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
tamber="$1" build="$2"
shift 2

modules="$build/modules" stamp="$build/modules/.fetched"
mkdir -p "$modules"
if [[ ! -e "$stamp" || "$here/package-lock.json" -nt "$stamp" ]]; then
  cp "$here/package.json" "$here/package-lock.json" "$here/.npmrc" "$modules/"
  if (cd "$modules" && npm ci --no-audit --no-fund --ignore-scripts) >"$build/npm.log" 2>&1; then
    touch "$stamp"
  elif [[ ! -e "$stamp" ]] && ! (cd "$modules" && npm ping) >>"$build/npm.log" 2>&1; then
    echo "Skipped: the package registry cannot be reached, and the player is not installed."
    exit 77
  else
    cat "$build/npm.log" >&2
    exit 1
  fi
fi
exec node "$here/play.mjs" "$tamber" "$modules" "$build/pictures" "$@"
