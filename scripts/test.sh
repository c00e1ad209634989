#!/bin/bash
# test.sh [CTEST-ARGUMENT...]: installs what the tests need, builds everything and runs every test.
#
# With arguments, only the tests that they choose: `./scripts/test.sh -L unit`.
set -eu
cd "$(dirname "${BASH_SOURCE[0]}")/.."
exec </dev/null

./scripts/packages.sh build desktop-build test desktop-test
cmake --preset debug
cmake --build --preset debug
ctest --test-dir build/debug --output-on-failure --no-tests=error --parallel "$(nproc)" "$@"
