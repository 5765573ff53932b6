# Sourced by the runners: fetch_player BUILD puts the player's packages into BUILD/modules when they are not there.
# Exits with status 77 when they can neither be found nor fetched.
fetch_player() {
  local here modules="$1/modules" stamp="$1/modules/.fetched"
  here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
  mkdir -p "$modules"
  if [[ -e "$stamp" && ! "$here/package-lock.json" -nt "$stamp" ]]; then return; fi
  cp "$here/package.json" "$here/package-lock.json" "$here/.npmrc" "$modules/"
  if (cd "$modules" && npm ci --no-audit --no-fund --ignore-scripts) >"$1/npm.log" 2>&1; then
    touch "$stamp"
  elif [[ ! -e "$stamp" ]] && ! (cd "$modules" && npm ping) >>"$1/npm.log" 2>&1; then
    echo "Skipped: the package registry cannot be reached, and the player is not installed."
    exit 77
  else
    cat "$1/npm.log" >&2
    exit 1
  fi
}
