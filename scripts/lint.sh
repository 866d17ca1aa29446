#!/usr/bin/env bash
# `make lint`: format, include direction, every header compiled alone, clang-tidy over the
# production sources. Goes through all four before it fails.
#
#   scripts/lint.sh [FILE.cpp...]     with files: clang-tidy looks at these alone
set -uo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
jobs=$(nproc)
failed=()

step() {
  echo "lint: $1"
  shift
  "$@" || failed+=("$*")
}

check_format() {
  scripts/list-sources.sh | xargs clang-format --dry-run -Werror
}

# A header that compiles alone may be included first, wherever that is.
check_headers() {
  scripts/list-sources.sh | grep '\.h$' | xargs -P "$jobs" -I{} \
    g++ -std=c++20 -fsyntax-only -Wall -Wextra -Werror -I. -Ibuild/tidy/generated '-DKYR_SOURCE_DIR=""' -include {} -x c++ /dev/null
}

# The command lines of a Clang build: it need not be built, only configured.
check_tidy() {
  cmake --preset tidy > /dev/null || return 1
  local files=("$@")
  [ ${#files[@]} -gt 0 ] || mapfile -t files < <(scripts/list-sources.sh --production | grep '\.cpp$')
  # The count of warnings in system headers is no finding.
  printf '%s\n' "${files[@]}" | xargs -P "$jobs" -n 4 clang-tidy --quiet -p build/tidy 2>&1 |
    sed -E '/^[0-9]+ warnings? generated\.$/d'
}

step "format" check_format
step "include direction" python3 tests/architecture/check_includes.py
step "headers" check_headers
step "clang-tidy" check_tidy "$@"

if [ ${#failed[@]} -gt 0 ]; then
  echo "lint: failed: ${failed[*]}" >&2
  exit 1
fi
echo "lint: clean"
