#!/bin/sh
# Builds and runs every test in three configurations: g++ optimised, clang++ optimised,
# and g++ with AddressSanitizer and UndefinedBehaviorSanitizer. Each configuration runs
# the numeric core's tests with both the default and the portable back end. Then the
# cross builds: Linux arm64, run under qemu-aarch64, and Windows x86-64, run under Wine;
# each runs the golden vectors and the scripts through its own simulated host.
# Wine now and then fails to start a program (it loses its connection to the Wine server),
# so under Wine a failed test is run a second time and fails only if it fails again.
set -eu
cd "$(dirname "$0")/.."
sh scripts/deps.sh
jobs=$(nproc)
for preset in release clang sanitize arm64 win64; do
    echo "=== $preset ==="
    cmake --preset "$preset"
    cmake --build --preset "$preset" -j "$jobs"
    ctest --preset "$preset" -j "$jobs"
done
