# What play and check share: what they need of the system, and where they build. Sourced, not run.

set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

say() { printf '\n\033[1m%s\033[0m\n' "$*" >&2; }

# need WHAT-FOR PACKAGE...: installs the Debian packages that are missing, and says which.
need() {
  local what_for=$1 missing=() package
  shift
  for package in "$@"; do
    dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return
  local root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "Install these packages first: ${missing[*]}" >&2; exit 1; }
    root=(sudo)
  fi
  say "Installing, for $what_for: ${missing[*]}"
  [ -n "${package_lists_read:-}" ] || "${root[@]}" apt-get update -qq
  package_lists_read=yes
  "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

need_native() {
  need "building the game" clang-19 lld-19 libc++-19-dev libc++abi-19-dev libclang-rt-19-dev \
    libsqlite3-dev googletest cmake ninja-build
}

need_page() {
  need "building the page" clang-19 lld-19 libc++-19-dev-wasm32 libc++abi-19-dev-wasm32 wasi-libc \
    libclang-rt-19-dev-wasm32 binaryen cmake ninja-build ca-certificates
  # A Node.js that was installed by other means will do.
  command -v node >/dev/null && command -v npm >/dev/null || need "building the page" nodejs npm
}

# build PRESET TARGET...
build() {
  local preset=$1
  shift
  [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset" >/dev/null
  cmake --build --preset "$preset" --target "$@"
}

npm_packages() {
  # Again only when the lock file changed since.
  cmp -s web/package-lock.json web/node_modules/.installed 2>/dev/null && return
  say "Fetching the page's packages"
  (cd web && npm ci --ignore-scripts --no-audit --no-fund --loglevel=error)
  cp web/package-lock.json web/node_modules/.installed
}
