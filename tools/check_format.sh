#!/usr/bin/env bash
# Fails when clang-format would change a source file of the project.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/.."
find src tests tools bench fuzz -name '*.cpp' -o -name '*.h' | xargs clang-format --dry-run -Werror
