#!/bin/sh
# Builds the plugin and the simulated host (optimised, g++), the plugin package
# build/release/BigNumberZQT.xojo_plugin (with the Linux arm64 and Windows x86-64
# libraries of the cross builds and the documentation), and runs the demo program.
set -eu
cd "$(dirname "$0")/.."
sh scripts/deps.sh
cmake --preset release
cmake --build --preset release -j "$(nproc)" --target hostsim BigNumberZQT xojo_plugin
echo "package: build/release/BigNumberZQT.xojo_plugin"
./build/release/host/hostsim --plugin build/release/plugin/BigNumberZQT.so examples/demo.xs
