#!/usr/bin/env bash
# Builds the libFuzzer targets (fuzz/) in a clang build tree of their own,
# AddressSanitizer and UndefinedBehaviorSanitizer on, and runs each on its
# seed corpus for a while; prints executions per second and coverage.
#
#   scripts/fuzz.sh [--tree DIR] [--seconds N] [--jobs N] [FUZZER...]
#
# FUZZER: objectpath targetid sysdesc cmpidata catalogue (default: all). --seconds
# defaults to $FUZZ_SECONDS or 300. New inputs are kept in
# <tree>/fuzz-work/<fuzzer>/corpus, crashes there as crash-*: a crash
# becomes a fix and its input a file in fuzz/<fuzzer>/corpus.
# Exit 77 when clang-14 or libFuzzer is missing (fuzz deps:
# scripts/install-fuzz-deps.sh).
set -euo pipefail

root=$(cd "$(dirname "$0")/.." && pwd)
tree="$root/build-fuzz"
seconds="${FUZZ_SECONDS:-300}"
jobs=2
fuzzers=()
while [ $# -gt 0 ]; do
  case "$1" in
    --tree) tree="$2"; shift 2 ;;
    --seconds) seconds="$2"; shift 2 ;;
    --jobs) jobs="$2"; shift 2 ;;
    -h|--help) sed -n '2,15p' "$0"; exit 0 ;;
    *) fuzzers+=("$1"); shift ;;
  esac
done
[ ${#fuzzers[@]} -gt 0 ] || fuzzers=(objectpath targetid sysdesc cmpidata catalogue)

if ! command -v clang++-14 >/dev/null || ! ls /usr/lib/llvm-14/lib/clang/*/lib/linux/libclang_rt.fuzzer-x86_64.a >/dev/null 2>&1; then
  echo "fuzz.sh: clang-14 with libFuzzer is not installed (scripts/install-fuzz-deps.sh)" >&2
  exit 77
fi

cmake -S "$root" -B "$tree" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DCMAKE_C_COMPILER=clang-14 -DCMAKE_CXX_COMPILER=clang++-14 \
  -DCMAKE_C_FLAGS=-fsanitize=fuzzer-no-link -DCMAKE_CXX_FLAGS=-fsanitize=fuzzer-no-link \
  -DVEX_SANITIZE=address -DVEX_BUILD_FUZZ=ON -DVEX_BUILD_TESTS=OFF -DVEX_BUILD_BENCH=OFF >/dev/null
targets=()
for f in "${fuzzers[@]}"; do targets+=("fuzz_$f"); done
cmake --build "$tree" --target "${targets[@]}" -j "$jobs"

failed=0
summary=""
for f in "${fuzzers[@]}"; do
  work="$tree/fuzz-work/$f"
  mkdir -p "$work/corpus"
  log="$work/log.txt"
  status=0
  # Leak checks off: the broker and the simulator keep process-wide singletons.
  ASAN_OPTIONS=detect_leaks=0 "$tree/fuzz/fuzz_$f" -max_total_time="$seconds" -print_final_stats=1 \
    -timeout=10 -rss_limit_mb=2048 -artifact_prefix="$work/" "$work/corpus" "$root/fuzz/$f/corpus" >"$log" 2>&1 || status=$?
  execs=$(sed -n 's/^stat::average_exec_per_sec: *//p' "$log" | tail -1)
  cov=$(grep -o 'cov: [0-9]*' "$log" | tail -1 | cut -d' ' -f2)
  summary+=$(printf '%-12s %10s exec/s  cov %6s  %s' "$f" "${execs:-?}" "${cov:-?}" "$([ $status -eq 0 ] && echo ok || echo "FAILED ($log)")")$'\n'
  if [ $status -ne 0 ]; then
    failed=1
    tail -40 "$log" >&2
  fi
done
printf '%s' "$summary"
exit $failed
