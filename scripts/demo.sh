#!/bin/sh
# Builds everything (optimised, g++) and runs the demo.
set -eu
cd "$(dirname "$0")/.."
sh scripts/deps.sh
cmake --preset release
cmake --build --preset release -j "$(nproc)"
./build/release/examples/core_demo
