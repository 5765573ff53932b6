#!/usr/bin/env bash
# run.sh TAMBER BUILD [CASE...]: fetches the player into BUILD when it is not there, then plays the cases.
# Exit status 77 when the player can neither be found nor fetched.
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
tamber="$1" build="$2"
shift 2

source "$here/fetch.sh"
fetch_player "$build"
exec node "$here/play.mjs" "$tamber" "$build/modules" "$build/pictures" "$@"
