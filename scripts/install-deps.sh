#!/usr/bin/env bash
# Installs the Debian 12 packages that the named groups of work need; without a name, "build" and
# "test". Only what is missing is installed, so a second run asks no network and takes no time.
#
#   scripts/install-deps.sh [build|test|browser|graphviz|postgresql|lint|coverage|soak|bench|packages|all]...
#
# "browser" is for the test that opens pages of `kyr report`, "graphviz" for those of pictures that Graphviz lays
# out, "postgresql" for the one that loads what `kyr import --format sql` writes. They are large downloads, so nothing
# but continuous integration asks for them by itself: without them those tests are skipped.
set -euo pipefail

declare -A packages=(
  [build]="make g++ cmake ninja-build ccache pkg-config libexpat1-dev libxml2-dev libsqlite3-dev rapidjson-dev libcli11-dev libjemalloc-dev python3"
  [test]="libgtest-dev libgmock-dev python3 python3-jsonschema sqlite3"
  [lint]="clang clang-format clang-tidy python3"
  [coverage]="gcovr"
  [soak]="valgrind"
  [bench]="python3"
  [browser]="chromium nodejs npm"
  [graphviz]="graphviz"
  [postgresql]="postgresql"
  [packages]="dpkg-dev fakeroot file python3"
)

groups=("$@")
[ ${#groups[@]} -gt 0 ] || groups=(build test)
[ "${groups[*]}" != all ] || groups=(build test browser graphviz postgresql lint coverage soak bench packages)

wanted=()
for group in "${groups[@]}"; do
  if [ -z "${packages[$group]:-}" ]; then
    echo "install-deps: there is no group '$group'; the groups are build, test, browser, graphviz, postgresql, lint, coverage, soak, bench, packages and all" >&2
    exit 2
  fi
  read -ra names <<< "${packages[$group]}"
  wanted+=("${names[@]}")
done

if ! command -v dpkg-query > /dev/null; then
  echo "install-deps: this is no Debian system; install what these Debian packages hold: ${wanted[*]}" >&2
  exit 0
fi

missing=()
for name in "${wanted[@]}"; do
  # A node from elsewhere brings npm along, and the packages of Debian cannot stand beside it.
  case $name in
    nodejs | npm) ! command -v "${name%js}" > /dev/null || continue ;;
  esac
  status=$(dpkg-query --show --showformat='${db:Status-Status}' "$name" 2> /dev/null || true)
  [[ $status == installed* ]] || missing+=("$name")
done
[ ${#missing[@]} -gt 0 ] || exit 0

echo "install-deps: installing ${missing[*]}"
if [ "$(id -u)" -eq 0 ]; then
  as_root=(env)
elif command -v sudo > /dev/null && sudo -n true 2> /dev/null; then
  as_root=(sudo -n env)
elif command -v sudo > /dev/null && [ -t 0 ]; then
  as_root=(sudo env)
else
  echo "install-deps: neither root nor sudo; have somebody run: apt-get install ${missing[*]}" >&2
  exit 1
fi

apt=("${as_root[@]}" DEBIAN_FRONTEND=noninteractive apt-get --quiet --yes)
# The package lists may be old or absent; a failed refresh matters only when the install fails too.
"${apt[@]}" update || echo "install-deps: the package lists could not be refreshed; going on with the old ones" >&2
"${apt[@]}" install --no-install-recommends "${missing[@]}" < /dev/null
