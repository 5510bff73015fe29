#!/bin/sh
# Builds the plugin and the simulated host (optimised, g++) and runs the demo program.
set -eu
cd "$(dirname "$0")/.."
sh scripts/deps.sh
cmake --preset release
cmake --build --preset release -j "$(nproc)" --target hostsim BigNumberZQT
./build/release/host/hostsim --plugin build/release/plugin/BigNumberZQT.so examples/demo.xs
