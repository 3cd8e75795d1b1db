#!/usr/bin/env bash
# Makes what is under samples/ afresh: tools/make_samples.sh MAKE_CONTEST [FOLDER]. The page is published by the
# scorvane-report beside MAKE_CONTEST.
# With --check as FOLDER it only tells whether they are what MAKE_CONTEST makes.
set -euo pipefail
make_contest=$(realpath "$1")
cd "$(dirname "$(realpath "$0")")/.."
folder=${2:-samples}
[ "$folder" != --check ] || folder=$(mktemp -d)
mkdir -p "$folder"
"$make_contest" --output "$folder/county.scv" --seed 7 --contestants 48 --classes 8 --reasons 2 \
  --questions 1 --categories 3 --groups 4 --name "Tallgrass County Fair Judging Contest" \
  --division "Junior Division" --date "July 18, 2026"
"$make_contest" --output "$folder/state.scv" --seed 60 --contestants 300 --alternates 1 \
  --classes 12 --reasons 4 --questions 2 --categories 4 --groups 12 \
  --name "State Livestock Judging Championship" --division "Senior Division" \
  --date "October 03, 2026"
# Not ready for its awards: scores are missing, a class's official placing was typed wrong, and there are ties.
"$make_contest" --output "$folder/district.scv" --seed 11 --contestants 60 --alternates 1 --classes 5 \
  --reasons 1 --questions 1 --categories 2 --groups 3 --missing 2 --mistyped 3 \
  --name "Creekside District Judging Contest" --division "Senior Division" --date "September 19, 2026"
"$(dirname "$make_contest")/scorvane-report" "$folder/county.scv" --publish "$folder/county.html" --show cards
if [ "${2:-}" = --check ]; then
  diff -r --exclude="*.csv" "$folder" samples
  rm -r "$folder"
fi
