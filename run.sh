#!/usr/bin/env bash
# Installs what is missing, builds NUMBROOK in Release and starts it.
set -euo pipefail
cd "$(dirname "$0")"
bash scripts/setup.sh
cmake --preset release >/dev/null
cmake --build --preset release --target numbrook numbrook-class
exec ./build/release/app/numbrook "$@"
