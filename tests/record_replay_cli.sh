#!/bin/sh
# zesh --record and zesh replay from the command line: a recording of the
# services example replays as identical (exit 0); with the service rule write
# failing, the report names the shell command it belongs to (exit 1); a file
# that is not a recording is unusable (exit 2).
set -u
zesh=$1 examples=$2
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT
fail() { echo "FAIL: $*"; exit 1; }

"$zesh" --record "$dir/services.rec" "$examples/services.zesh" >/dev/null || fail "recording the services example"
"$zesh" replay "$dir/services.rec" >"$dir/out"; status=$?
[ $status -eq 0 ] && grep -q '^replay identical: [0-9]* commands$' "$dir/out" || fail "identical replay ($status)"

"$zesh" -c 'sim fail 0x505 7' replay "$dir/services.rec" >"$dir/out"; status=$?
[ $status -eq 1 ] || fail "replay with a fault exits $status"
grep -q '^  during    line [0-9]*: # zesh> flow_add_service key_mask=0x81 ' "$dir/out" || fail "no command in: $(cat "$dir/out")"

"$zesh" replay "$examples/services.zesh" >"$dir/out"; status=$?
[ $status -eq 2 ] || fail "replaying a script exits $status"
exit 0
