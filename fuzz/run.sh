#!/bin/sh
# fuzz/run.sh SECONDS [TARGET…]: builds the fuzz targets and runs each for that long on a copy of its corpus. Fails when one
# crashes, leaks or hangs; the input that did it is left in a folder whose name is printed.
set -eu

seconds=${1:?usage: fuzz/run.sh SECONDS [TARGET...]}
shift
[ $# -gt 0 ] || set -- FuzzDetection FuzzFileUrl FuzzHeif FuzzImageCompleteness FuzzImageMarks FuzzPngThumbnail FuzzPropertyList \
    FuzzRichText FuzzText
source_folder=$(cd "$(dirname "$0")/.." && pwd)
build_folder=${VELLUMRY_FUZZ_BUILD:-$source_folder/build/fuzz}
work=$(mktemp -d)

(cd "$source_folder" && cmake --preset fuzz -B "$build_folder" >"$work/configure.log" 2>&1) || { cat "$work/configure.log"; exit 1; }
cmake --build "$build_folder" --target "$@" >"$work/build.log" 2>&1 || { cat "$work/build.log"; exit 1; }

status=0
for target in "$@"; do
    corpus=$work/$target
    mkdir -p "$corpus" "$work/crashes-$target"
    cp -R "$source_folder/fuzz/corpus/$target/." "$corpus"
    if "$build_folder/fuzz/$target" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=1024 -print_final_stats=1 \
        -artifact_prefix="$work/crashes-$target/" "$corpus" >"$work/$target.log" 2>&1; then
        printf '%s: %s inputs, no crash\n' "$target" "$(sed -n 's/stat::number_of_executed_units: *//p' "$work/$target.log")"
    else
        status=1
        tail -40 "$work/$target.log"
        printf '%s: FAILED; see %s\n' "$target" "$work/crashes-$target"
    fi
done
[ $status -ne 0 ] || rm -rf "$work"
exit $status
