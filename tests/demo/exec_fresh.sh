#!/usr/bin/env bash
# The demo's launcher runs a program that is still held open for writing for a moment, as one is right
# after its link: usage exec_fresh.sh <path of scripts/exec-fresh>
set -euo pipefail
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT
cp /bin/echo "$dir/just-linked"
(exec 3>>"$dir/just-linked"; sleep 0.5) &
sleep 0.1
out=$("$1" "$dir/just-linked" linked and run)
wait
if [ "$out" != "linked and run" ]; then
  echo "expected 'linked and run', got '$out'" >&2
  exit 1
fi
