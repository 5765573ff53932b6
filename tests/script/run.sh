#!/usr/bin/env bash
# run.sh SCRIPT_MOVIE BUILD OUT [NAME...]: makes movies of the scripts in corpus/ into OUT and plays them in the player,
# which is fetched into BUILD when it is not there. Exit status 77 when it can neither be found nor fetched.
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
maker="$1" build="$2" out="$3"
shift 3

source "$here/../player/fetch.sh"
fetch_player "$build"
rm -rf "$out"
"$maker" "$out" "$here"/corpus/*.as
exec node "$here/play_corpus.mjs" "$build/modules" "$here/corpus" "$out" "$@"
