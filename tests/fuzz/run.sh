#!/usr/bin/env bash
# Fuzzes both file readers, each for the given number of seconds (60 by default). Inputs that reach
# something new go to out/fuzz; what crashes, hangs or exhausts memory is named on the console and
# belongs into the corpus once it is mended. Needs clang 14.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
seconds=${1:-60}

cmake --preset fuzz >/dev/null
for class in KVMaterialData KVPropertyData; do
  cmake --build --preset fuzz --target "fuzz_$class"
  mkdir -p "out/fuzz/$class"
  "build/fuzz/tests/fuzz/fuzz_$class" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 \
    -max_len=8192 -dict=tests/fuzz/xml.dict -artifact_prefix="out/fuzz/$class-" -print_final_stats=1 \
    "out/fuzz/$class" "tests/fuzz/corpus/$class"
done
