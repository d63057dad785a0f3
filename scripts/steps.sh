# shellcheck shell=bash disable=SC2154
# Runs, times, logs and counts the steps of ./check. Source it after common.sh.

logs="$top/build/check"
passed=0
failed=0
failures=()

start_steps() {
  rm -rf "$logs"
  mkdir -p "$logs"
}

log_of() { printf '%s/%s.log' "$logs" "$(tr -c 'A-Za-z0-9\n' '-' <<<"$1")"; }

# Prints the failures of a log: its end, and the outputs of the tests that failed.
digest() {
  grep -v 'This plugin does not support' "$1" | tail -n 30
  awk '/Test +#[0-9]+:/ { shown = /\*\*\*/ } /^ *Start +[0-9]+:/ { shown = 0 } shown' "$1" | head -n 200
}

# note NAME GOOD BAD SECONDS LOG: prints the result in one line, and the end of the log if anything failed.
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

# step NAME command...: runs a step that counts as one test. Returns the status of the command.
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

# Prints the number of an attribute, such as tests="12", in the first element of an XML result that has it; 0 if none has.
xml_figure() {
  local figure
  figure=$(grep -o -m 1 "\b$2=\"[0-9]*\"" "$1" 2>/dev/null | head -n 1 | tr -dc '0-9')
  printf '%s' "${figure:-0}"
}

# count_tests NAME STATUS RESULT SECONDS LOG: counts the tests of one result file. A test that did not run has failed. A
# run that failed without naming a test counts as one failure.
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

# runner_of PROGRAM: what runs it. A program for Windows needs Wine; other programs run by themselves.
runner_of() { case $1 in *.exe) echo "$wine" ;; esac; }

# path_for PROGRAM PATH: the path as the program sees it.
path_for() { case $1 in *.exe) echo "Z:$2" ;; *) echo "$2" ;; esac; }

# run_program PROGRAM SEED LOG [wrapper]: runs a test program as one process. The seed chooses the order of its tests and
# the cases of property tests. Writes the numbers of passed and failed tests beside the log. A program that breaks off
# without naming a test counts as one failure.
run_program() {
  local program=$1 seed=$2 log=$3 status all bad
  local result="${log%.log}.xml"
  shift 3
  # One start of some thousands fails in Wine itself. A test program that ends with 1 has written its result.
  for _ in 1 2 3; do
    RC_PARAMS="seed=$seed" "$@" timeout 900 $(runner_of "$program") "$program" --gtest_shuffle --gtest_random_seed="$seed" --gtest_brief=1 \
      --gtest_output="xml:$(path_for "$program" "$result")" >"$log" 2>&1 </dev/null
    status=$?
    if [ $status -ne 1 ] || [ -e "$result" ]; then break; fi
  done
  all=$(xml_figure "$result" tests)
  bad=$(($(xml_figure "$result" failures) + $(xml_figure "$result" skipped) + $(xml_figure "$result" disabled)))
  if [ "$bad" -eq 0 ] && { [ $status -ne 0 ] || [ "$all" -eq 0 ]; }; then
    echo "$program ended with status $status" >>"$log"
    all=$((all + 1)) bad=1
  fi
  echo "$((all - bad)) $bad" >"${log%.log}.counts"
}

# Prints the test programs of a build, the largest first, because they take longest.
test_programs() { find "$top/build/$1/tests" -name 'test_*' -type f -perm -u+x -printf '%s %p\n' | sort -rn | cut -d ' ' -f 2-; }

# run_programs NAME PRESET SEED [wrapper]: runs the test programs of a build, one per processor at a time.
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

# run_roads NAME PRESET [wrapper]: runs the tests that use the programs from outside, each in its own process, the longest
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

# run_tests NAME PRESET SEED [wrapper]: runs all tests of a build.
run_tests() {
  run_programs "$1" "$2" "$3" "${@:4}"
  run_roads "$1, from outside" "$2" "${@:4}"
}

# Prints the failed steps, the time and, in the last line, the totals. Returns the exit status.
report_steps() {
  local name
  for name in "${failures[@]}"; do printf 'failed: %s\n' "$name"; done
  printf 'took %s s\n' "$SECONDS"
  printf '%s passed, %s failed\n' "$passed" "$failed"
  [ "$failed" -eq 0 ]
}
