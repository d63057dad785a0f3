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

# run_program PROGRAM SEED LOG [wrapper]: a test program as one process, its tests in the order of the seed, which chooses
# the cases of property tests too. Leaves beside the log how many tests passed and how many failed. One that breaks off without saying where counts as one failure.
run_program() {
  local program=$1 seed=$2 log=$3 status all bad
  local result="${log%.log}.xml"
  shift 3
  RC_PARAMS="seed=$seed" "$@" timeout 900 "$program" --gtest_shuffle --gtest_random_seed="$seed" --gtest_brief=1 \
    --gtest_output="xml:$result" >"$log" 2>&1 </dev/null
  status=$?
  all=$(xml_figure "$result" tests)
  bad=$(($(xml_figure "$result" failures) + $(xml_figure "$result" skipped) + $(xml_figure "$result" disabled)))
  if [ "$bad" -eq 0 ] && { [ $status -ne 0 ] || [ "$all" -eq 0 ]; }; then
    echo "$program ended with status $status" >>"$log"
    all=$((all + 1)) bad=1
  fi
  echo "$((all - bad)) $bad" >"${log%.log}.counts"
}

# The test programs of a build, the largest first: they take longest.
test_programs() { find "$top/build/$1/tests" -name 'test_*' -type f -perm -u+x -printf '%s %p\n' | sort -rn | cut -d ' ' -f 2-; }

# run_programs NAME PRESET SEED [wrapper]: the test programs of a build, as many at a time as there are processors.
run_programs() {
  local name=$1 preset=$2 seed=$3 log part good=0 bad=0 counts began=$SECONDS
  log=$(log_of "$name")
  shift 3
  rm -rf "${log%.log}" && mkdir -p "${log%.log}"
  for program in $(test_programs "$preset"); do
    while [ "$(jobs -rp | wc -l)" -ge "$(nproc)" ]; do wait -n; done
    run_program "$program" "$seed" "${log%.log}/${program##*/}.log" "$@" &
  done
  wait
  : >"$log"
  for part in "${log%.log}"/*.counts; do
    read -r -a counts <"$part" || counts=(0 1)
    good=$((good + counts[0])) bad=$((bad + counts[1]))
    if [ "${counts[1]}" -gt 0 ]; then cat "${part%.counts}.log" >>"$log"; fi
  done
  [ $((good + bad)) -gt 0 ] || { echo "no test program" >"$log"; bad=1; }
  note "$name" $good $bad $((SECONDS - began)) "$log"
}

# run_roads NAME PRESET [wrapper]: the tests that use the programs from outside, each in its own process, the longest
# first. They wait for windows most of the time, so more of them run at once than there are processors.
run_roads() {
  local name=$1 preset=$2 log result began=$SECONDS status
  log=$(log_of "$name")
  result="${log%.log}.xml"
  shift 2
  "$@" ctest --test-dir "$top/build/$preset" -R '^(Desktop|Monkey)[.]' -j "$((2 * $(nproc)))" \
    --timeout 600 --output-on-failure --output-junit "$result" >"$log" 2>&1 </dev/null
  status=$?
  count_tests "$name" $status "$result" $((SECONDS - began)) "$log"
}

# run_tests NAME PRESET SEED [wrapper]: all tests of a build.
run_tests() {
  run_programs "$1" "$2" "$3" "${@:4}"
  run_roads "$1, from outside" "$2" "${@:4}"
}

# The last line, alone, and the exit status.
report_steps() {
  local name
  for name in "${failures[@]}"; do printf 'failed: %s\n' "$name"; done
  printf 'took %s s\n' "$SECONDS"
  printf '%s passed, %s failed\n' "$passed" "$failed"
  [ "$failed" -eq 0 ]
}
