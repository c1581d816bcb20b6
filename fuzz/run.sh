#!/usr/bin/env bash
# fuzz/run.sh SECONDS [TARGET…]: builds the fuzz targets and runs each for that long on a copy of its corpus, as many side by side as
# there are processors. Fails when one crashes, leaks or hangs; the input that did it is left in a folder whose name is printed. With
# 0 seconds it only builds.
set -euo pipefail

if [ "${1:-}" != --one ]; then
  seconds=${1:?usage: fuzz/run.sh SECONDS [TARGET...]}
  shift
  source_folder=$(cd "$(dirname "$0")/.." && pwd)
  build_folder=${VELLUMRY_FUZZ_BUILD:-$source_folder/build/fuzz}
  [ $# -gt 0 ] || set -- $(cd "$source_folder/fuzz" && ls Fuzz*.cpp | sed 's/\.cpp$//')
  work=$(mktemp -d)
  compiler=clang++-16
  command -v $compiler >/dev/null || compiler=clang++ # Debian 13 has another one
  (cd "$source_folder" && cmake --preset fuzz -B "$build_folder" -D CMAKE_CXX_COMPILER=$compiler >"$work/configure.log" 2>&1) || { cat "$work/configure.log"; exit 1; }
  cmake --build "$build_folder" -j "$(nproc)" --target "$@" | "$source_folder/scripts/progress" "build fuzz"
  status=0
  if [ "$seconds" -gt 0 ]; then
    printf '%s\n' "$@" |
      xargs -P "$(nproc)" -n 1 "$0" --one "$source_folder/fuzz/corpus" "$build_folder" "$work" "$seconds" || status=1
  fi
  [ "$status" -ne 0 ] || rm -rf "$work"
  exit "$status"
fi

corpora=$2 build_folder=$3 work=$4 seconds=$5 target=$6
mkdir -p "$work/$target" "$work/crashes-$target"
cp -R "$corpora/$target/." "$work/$target"
if "$build_folder/fuzz/$target" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=1024 -print_final_stats=1 \
  -artifact_prefix="$work/crashes-$target/" "$work/$target" >"$work/$target.log" 2>&1; then
  printf '%s: %s inputs, no crash\n' "$target" "$(sed -n 's/stat::number_of_executed_units: *//p' "$work/$target.log")"
else
  tail -n 40 "$work/$target.log"
  printf '%s: FAILED; see %s\n' "$target" "$work/crashes-$target"
  exit 1
fi
