#!/usr/bin/env bash
# Fuzzes the file readers, each for the given number of seconds (default: 60). Inputs that reach new
# code go to out/fuzz. The console shows inputs that crash, hang or exhaust memory; add them to the
# corpus once the fault is fixed. Requires clang 14.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
seconds=${1:-60}

cmake --preset fuzz >/dev/null
for class in KVMaterialData KVPropertyData MeshFile ModesTable Project ResultFile; do
  options=()
  [[ $class != KV* ]] || options=(-dict=tests/fuzz/xml.dict)
  # Qt's JSON parser leaks what it has read of a text with a syntax error.
  [[ $class != Project ]] || options=(-detect_leaks=0)
  cmake --build --preset fuzz --target "fuzz_$class"
  mkdir -p "out/fuzz/$class"
  "build/fuzz/tests/fuzz/fuzz_$class" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 \
    -max_len=8192 "${options[@]}" -artifact_prefix="out/fuzz/$class-" -print_final_stats=1 \
    "out/fuzz/$class" "tests/fuzz/corpus/$class"
done
