# shellcheck shell=bash disable=SC2154
# The steps of ./check: each is run, timed, logged and counted. To be sourced after common.sh.

logs="$top/build/check"
passed=0
failed=0
failures=()

start_steps() {
  rm -rf "$logs"
  mkdir -p "$logs"
}

log_of() { printf '%s/%s.log' "$logs" "$(tr -c 'A-Za-z0-9\n' '-' <<<"$1")"; }

# What a log says of failures: its end, and the outputs of the tests that failed.
digest() {
  grep -v 'This plugin does not support' "$1" | tail -n 30
  awk '/Test +#[0-9]+:/ { shown = /\*\*\*/ } /^ *Start +[0-9]+:/ { shown = 0 } shown' "$1" | head -n 200
}

# note NAME GOOD BAD SECONDS LOG: one line of the outcome, and the end of the log when anything failed.
note() {
  passed=$((passed + $2))
  failed=$((failed + $3))
  if [ "$3" -eq 0 ]; then
    printf 'pass  %s: %s (%s s)\n' "$1" "$2" "$4"
    return 0
  fi
  printf 'FAIL  %s: %s passed, %s failed (%s s)\n' "$1" "$2" "$3" "$4"
  failures+=("$1")
  digest "$5" | sed -E 's/\.{4,}/ .. /; s/^/      /'
  return 1
}

# step NAME command...: counts as one; its status is the command's.
step() {
  local name=$1 log began=$SECONDS
  log=$(log_of "$name")
  shift
  if "$@" >"$log" 2>&1 </dev/null; then
    note "$name" 1 0 $((SECONDS - began)) "$log"
  else
    note "$name" 0 1 $((SECONDS - began)) "$log"
  fi
}

# The figure of an attribute, as tests="12", in the first element of an XML result that has it; 0 without one.
xml_figure() {
  local figure
  figure=$(grep -o -m 1 "\b$2=\"[0-9]*\"" "$1" 2>/dev/null | head -n 1 | tr -dc '0-9')
  printf '%s' "${figure:-0}"
}

# count_tests NAME STATUS RESULT SECONDS LOG: the tests of one result file. A test that did not run did not pass, and
# a run that ended badly without saying which test it was counts as one failure.
count_tests() {
  local all bad
  all=$(xml_figure "$3" tests)
  bad=$(($(xml_figure "$3" failures) + $(xml_figure "$3" errors) + $(xml_figure "$3" skipped) + \
    $(xml_figure "$3" disabled)))
  if [ "$all" -eq 0 ] || { [ "$2" -ne 0 ] && [ "$bad" -eq 0 ]; }; then
    note "$1" "$all" 1 "$4" "$5"
  else
    note "$1" $((all - bad)) "$bad" "$4" "$5"
  fi
}

# run_ctest NAME PRESET [wrapper]: all tests of a build, each in a process of its own, in any order. Those at a desktop
# wait for windows most of the time, so there is work for more tests than processors.
run_ctest() {
  local name=$1 preset=$2 log result began=$SECONDS status
  log=$(log_of "$name")
  result="${log%.log}.xml"
  shift 2
  "$@" ctest --test-dir "$top/build/$preset" -j "$((2 * $(nproc)))" --schedule-random --timeout 120 --output-on-failure \
    --output-junit "$result" >"$log" 2>&1 </dev/null
  status=$?
  count_tests "$name" $status "$result" $((SECONDS - began)) "$log"
}

# shuffle PRESET SEED LOG: each test program as one process, its tests in the order of the seed. Leaves beside the log how
# many passed, how many failed and the seconds that it took.
shuffle() {
  local result="${3%.log}.xml" began=$SECONDS status program wrong all=0 bad=0
  for program in "$top/build/$1"/tests/*/test_*; do
    [ -f "$program" ] && [ -x "$program" ] || continue
    rm -f "$result"
    timeout 120 "$program" --gtest_shuffle --gtest_random_seed="$2" --gtest_brief=1 --gtest_output="xml:$result" \
      >>"$3" 2>&1 </dev/null
    status=$?
    all=$((all + $(xml_figure "$result" tests)))
    wrong=$(($(xml_figure "$result" failures) + $(xml_figure "$result" disabled)))
    if [ $status -ne 0 ] && [ $wrong -eq 0 ]; then
      echo "$program ended with status $status" >>"$3"
      wrong=1 all=$((all + 1))
    fi
    bad=$((bad + wrong))
  done
  [ $all -gt 0 ] || { echo "no test program" >>"$3"; bad=1 all=1; }
  echo "$((all - bad)) $bad $((SECONDS - began))" >"${3%.log}.counts"
}

# run_shuffled PRESET SEED...: as many orders at a time as there are processors.
run_shuffled() {
  local preset=$1 seed name log good bad seconds
  shift
  for seed in "$@"; do
    while [ "$(jobs -rp | wc -l)" -ge "$(nproc)" ]; do wait -n; done
    shuffle "$preset" "$seed" "$(log_of "tests, shuffled by $seed")" &
  done
  wait
  for seed in "$@"; do
    name="tests, shuffled by $seed" log=$(log_of "tests, shuffled by $seed")
    read -r good bad seconds <"${log%.log}.counts" || good=0 bad=1 seconds=0
    note "$name" "$good" "$bad" "$seconds" "$log"
  done
}

# The last line, alone, and the exit status.
report_steps() {
  local name
  for name in "${failures[@]}"; do printf 'failed: %s\n' "$name"; done
  printf 'took %s s\n' "$SECONDS"
  printf '%s passed, %s failed\n' "$passed" "$failed"
  [ "$failed" -eq 0 ]
}
