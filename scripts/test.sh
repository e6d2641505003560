#!/usr/bin/env bash
# Installs what is missing, builds the host and the Windows presets, runs every test suite
# (host natively, Windows under Wine with a private prefix and display) and ends with
# one line "N passed, N failed". The exit status is non-zero when anything failed.
set -uo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
started=$(date +%s)
jobs=$(nproc 2>/dev/null || echo 2)

passed=0
failed=0
problems=()

note() { printf '\n== %s\n' "$*"; }
fail_step() { problems+=("$1"); failed=$((failed + 1)); }

finish() {
  local secs=$(( $(date +%s) - started ))
  printf '\n'
  if [ "${#problems[@]}" -gt 0 ]; then
    printf 'failures:\n'
    printf '  %s\n' "${problems[@]}"
  fi
  printf 'total time: %dm%02ds\n' $((secs / 60)) $((secs % 60))
  printf '%d passed, %d failed\n' "$passed" "$failed"
  [ "$failed" -eq 0 ] && [ "$passed" -gt 0 ]
  exit $?
}

# count_ctest LOG RESULTS_DIR: adds GoogleTest cases (from their XML reports) and plain
# ctest entries to the totals; a program that failed without failing cases counts once.
count_ctest() {
  local log=$1 results=$2 line name status xml tests fails errs dis skip
  while IFS= read -r line; do
    name=$(sed -E 's/.*Test +#[0-9]+: ([^ ]+) .*/\1/' <<<"$line")
    if grep -q 'Passed' <<<"$line"; then status=ok; else status=bad; fi
    xml="$results/$name.xml"
    if [ -f "$xml" ] && [ "$xml" -nt "$log.start" ]; then
      read -r tests fails errs dis skip < <(head -c 4000 "$xml" | grep -m1 -o '<testsuites[^>]*>' |
        awk '{ t=f=e=d=s=0
               if (match($0, / tests="[0-9]+"/))    t=substr($0, RSTART+8, RLENGTH-9)
               if (match($0, / failures="[0-9]+"/)) f=substr($0, RSTART+11, RLENGTH-12)
               if (match($0, / errors="[0-9]+"/))   e=substr($0, RSTART+9, RLENGTH-10)
               if (match($0, / disabled="[0-9]+"/)) d=substr($0, RSTART+11, RLENGTH-12)
               if (match($0, / skipped="[0-9]+"/))  s=substr($0, RSTART+10, RLENGTH-11)
               print t, f, e, d, s }')
      passed=$((passed + tests - fails - errs - dis - skip))
      failed=$((failed + fails + errs))
      if [ "$status" = bad ]; then
        [ $((fails + errs)) -eq 0 ] && failed=$((failed + 1))
        problems+=("$name")
      fi
    elif [ "$status" = ok ]; then
      passed=$((passed + 1))
    else
      failed=$((failed + 1))
      problems+=("$name")
    fi
  done < <(grep -E 'Test +#[0-9]+: ' "$log")
}

# run_ctest PRESET: runs one preset's tests and counts them.
run_ctest() {
  local preset=$1 dir=$root/build/$1
  local log=$dir/ctest.log
  rm -rf "$dir/test-results"
  mkdir -p "$dir/test-results"
  touch "$log.start"
  # Wine programs run one at a time: run side by side they have lost their server connection
  # or hung at start.
  local parallel=$jobs
  [ "$preset" = windows ] && parallel=1
  ctest --preset "$preset" -j "$parallel" --timeout 600 2>&1 | tee "$log"
  count_ctest "$log" "$dir/test-results"
}

note "dependencies"
if ! scripts/install-deps.sh; then
  fail_step "installing dependencies"
  finish
fi

mkdir -p build
for preset in host windows; do
  note "configure and build: $preset"
  log=build/build-$preset.log
  if ! cmake --preset "$preset" >"$log" 2>&1; then
    cat "$log"
    fail_step "configure $preset"
    continue
  fi
  if cmake --build --preset "$preset" -j "$jobs" >>"$log" 2>&1; then
    tail -n 2 "$log"
  else
    grep -E -B2 -A12 'error|FAILED' "$log" | head -n 80
    fail_step "build $preset"
  fi
done

if [ "${#problems[@]}" -gt 0 ]; then
  finish
fi

# --- release package: scripts/package.sh, then the same files packed again in another
# folder must give the same bytes; the end-to-end test below drives the packaged programs. ---
note "release package"
if scripts/package.sh >build/package.log 2>&1; then
  tail -n 2 build/package.log
  passed=$((passed + 1))
  package_zip=$(sed -n 's/^\(.*\.zip\): .*/\1/p' build/package.log)
  package_again=$(mktemp -d)
  if scripts/package.sh --no-build "$package_again/dist" >/dev/null &&
     cmp "$package_zip" "$package_again/dist/$(basename "$package_zip")"; then
    echo "packing again elsewhere gives the same bytes"
    passed=$((passed + 1))
  else
    fail_step "release package: packing again gave other bytes"
  fi
  rm -rf "$package_again" build/package-unpacked
  mkdir -p build/package-unpacked
  if (cd build/package-unpacked && python3 -m zipfile -e "$package_zip" . &&
      [ "$(python3 -m zipfile -l "$package_zip" | awk 'NR > 1 { print $1 }' | tr '\n' ' ')" = \
        "Zelto.exe zelto-cli.exe README.txt SHA256SUMS " ] &&
      sha256sum --quiet -c SHA256SUMS && [ "$(stat -c %s Zelto.exe)" -lt 2097152 ]); then
    echo "the package holds its four files, their sums match, Zelto.exe is under 2 MB"
    passed=$((passed + 1))
    export ZELTO_E2E_PROGRAMS=$root/build/package-unpacked
  else
    fail_step "release package: contents, sums or size"
  fi
else
  tail -n 30 build/package.log
  fail_step "release package"
fi
# --- end of the release package block ---

note "host tests"
ZELTO_SLOW_TESTS=1 run_ctest host
# The kill test of the key file's saves prints how many kills it made and what they left.
grep -h '^kill test:' build/host/Testing/Temporary/LastTest.log 2>/dev/null

note "host tests under AddressSanitizer and UBSan"
if cmake --preset sanitize >build/build-sanitize.log 2>&1 &&
   cmake --build --preset sanitize -j "$jobs" >>build/build-sanitize.log 2>&1; then
  run_ctest sanitize
else
  grep -E -B2 -A12 'error|FAILED' build/build-sanitize.log | head -n 80
  fail_step "build sanitize"
fi

note "layering"
if scripts/check-layering.sh; then passed=$((passed + 1)); else fail_step "layering"; fi

note "fuzzers (short run over the seed corpus)"
# Each target gets a bounded run on a scratch copy of its corpus; any finding fails.
if cmake --preset fuzz >build/build-fuzz.log 2>&1 &&
   cmake --build --preset fuzz -j "$jobs" >>build/build-fuzz.log 2>&1; then
  for target in key_file decipher utf; do
    scratch=build/fuzz/scratch/$target
    rm -rf "$scratch" && mkdir -p "$scratch"
    if (cd "$scratch" && "$root/build/fuzz/fuzz/fuzz_$target" -max_total_time="${ZELTO_FUZZ_SECONDS:-20}" \
          -rss_limit_mb=2048 . "$root/fuzz/corpus/$target" >run.log 2>&1); then
      echo "fuzz_$target: $(grep -o 'Done [0-9]* runs' "$scratch/run.log")"
      passed=$((passed + 1))
    else
      tail -n 30 "$scratch/run.log"
      fail_step "fuzz_$target"
    fi
  done
else
  tail -n 30 build/build-fuzz.log
  fail_step "build fuzz"
fi

note "Windows tests under Wine"
# shellcheck source=xvfb.sh
. scripts/xvfb.sh
if zelto_start_xvfb && scripts/wine-prefix.sh "$root/build/windows/wineprefix" --unmanaged; then
  # --- cloud export: the table service emulator that cloud_service_tests writes to; it
  # exports ZELTO_CLOUD_CONNECTION_STRING for ctest and stops when this script exits. ---
  # shellcheck source=azurite.sh
  . scripts/azurite.sh
  zelto_start_azurite || fail_step "starting the azurite table service"
  # --- end of the cloud export block ---
  run_ctest windows
  zelto_stop_azurite  # cloud export
  # --- key list benchmark: prints its timings, counts as passed when it runs through ---
  note "key list benchmark under Wine (1,000 and 10,000 keys)"
  if WINEPREFIX=$root/build/windows/wineprefix scripts/wine-run.sh \
      build/windows/bench/zelto_list_bench.exe; then
    passed=$((passed + 1))
  else
    fail_step "key list benchmark"
  fi
  # --- end of the key list benchmark ---
  WINEPREFIX=$root/build/windows/wineprefix wineserver -k 2>/dev/null || true
else
  fail_step "starting Xvfb and Wine"
fi

# --- run.sh on a machine without a display, seen through headless Chromium ---
note "run.sh without a display, in a browser"
if timeout 900 tests/zelto/browser_view.sh "$root/build/windows/screenshots/browser-first-start.png"; then
  passed=$((passed + 1))
else
  fail_step "run.sh without a display, in a browser"
fi
# --- end of the browser block ---

finish
