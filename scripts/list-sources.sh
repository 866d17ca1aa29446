#!/usr/bin/env bash
# Prints the C++ files of the project, headers included, that git tracks or would track. With
# --production: without tests, benchmarks and fuzzers.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
folders=(foundation repository bridge uml xmi extension database convert diagram trace normalize report host)
[ "${1:-}" = --production ] || folders+=(tests bench fuzz)
for folder in "${folders[@]}"; do
  [ ! -d "$folder" ] || find "$folder" -type f \( -name '*.h' -o -name '*.cpp' \)
done | LC_ALL=C sort
