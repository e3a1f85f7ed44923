#!/usr/bin/env bash
# Installs what is missing, builds everything with AddressSanitizer and UndefinedBehaviorSanitizer,
# and runs every test with CTest. Every target is built in Release too, so that a warning only the
# optimiser reports (warnings are errors) cannot go unseen. Exits non-zero on any failure.
set -euo pipefail
cd "$(dirname "$0")"
bash scripts/setup.sh
cmake --preset asan >/dev/null
cmake --build --preset asan
cmake --preset release >/dev/null
cmake --build --preset release
export QT_QPA_PLATFORM=offscreen
export ASAN_OPTIONS="${ASAN_OPTIONS:-detect_leaks=1:abort_on_error=0}"
export LSAN_OPTIONS="suppressions=$PWD/tests/lsan.supp:print_suppressions=0"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
ctest --preset asan -j2 --timeout 600
