# Sourced by the scripts at the top of the tree: makes sure that the Debian packages they need are there.

build_packages=(build-essential cmake ninja-build pkg-config zlib1g-dev libdeflate-dev libpng-dev libjpeg-dev libgif-dev libfreetype-dev
  libfontconfig-dev libutf8proc-dev nlohmann-json3-dev libcairo2-dev libxxhash-dev libwebp-dev)

# Stands for the default font of texts, which no free system has.
run_packages=(fonts-ipafont-gothic)

# need_packages NAME... installs what is missing of the packages; a second run only asks dpkg.
need_packages() {
  local name missing=()
  for name in "$@"; do
    [[ "$(dpkg-query -W -f '${db:Status-Status}' "$name" 2>/dev/null)" == installed ]] || missing+=("$name")
  done
  ((${#missing[@]})) || return 0
  if ((EUID != 0)); then
    echo "Some packages are missing. As root: apt-get update && apt-get install --no-install-recommends -y ${missing[*]}" >&2
    exit 1
  fi
  echo "Installing ${missing[*]}" >&2
  export DEBIAN_FRONTEND=noninteractive
  { apt-get update -q && apt-get install -q -y --no-install-recommends "${missing[@]}"; } >&2 || exit 1
}

# The player of the tests needs a Node of 18 or newer; Debian's does, and so does any other on the PATH.
need_node() {
  local major
  major="$(node --version 2>/dev/null | sed -n 's/^v\([0-9]*\).*/\1/p')"
  if [[ -z "$major" ]] || ((major < 18)) || ! command -v npm >/dev/null; then
    need_packages nodejs npm
  fi
}

# quietly COMMAND... shows the command's output only when it fails.
quietly() {
  local log status=0
  log="$(mktemp)"
  "$@" >"$log" 2>&1 || status=$?
  ((status == 0)) || cat "$log" >&2
  rm -f "$log"
  return "$status"
}
