#!/bin/bash
# ./dev as somebody meets it who has just got the sources, with stand-ins for the system's programs:
# what it asks for, what it says, and what it does without. dev_first_minutes.sh SOURCES
set -euo pipefail
sources=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
place="$work/Käse und Brot"
mkdir -p "$place/tools" "$place/src" "$work/bin"
cp "$sources/dev" "$place"
cp -r "$sources/tools/packages" "$place/tools"
printf '#!/bin/sh\necho run >>"$CALLS"\n' >"$place/tools/run"
chmod +x "$place/tools/run"
touch "$place/src/two words.cpp"
export CALLS=$work/calls PATH=$work/bin:$PATH

# stand_in NAME COMMAND: notes how it is called, then runs the command.
stand_in() {
    printf '#!/bin/sh\necho "${0##*/} $*" >>"$CALLS"\n%s\n' "$2" >"$work/bin/$1"
    chmod +x "$work/bin/$1"
}
# dev ARGUMENT...: its status, and $work/said and $CALLS.
dev() {
    : >"$CALLS"
    status=0
    "$place/dev" "$@" >"$work/said" 2>&1 </dev/null || status=$?
}
fail() {
    printf 'FAILED: %s\nsaid:\n%s\ncalls:\n%s\n' "$1" "$(cat "$work/said")" "$(grep -v dpkg-query "$CALLS")"
    exit 1
}
called() { grep -qx -- "$1" "$CALLS"; }

for program in cmake apt-get clang-format-16; do stand_in $program ''; done
stand_in git 'exit 127'
stand_in id 'echo 1000'
stand_in sudo 'exit 1'

# Without root: one line that says what is missing and what to run, and nothing else is done.
stand_in dpkg-query 'exit 1'
dev format-check
[ $status -eq 1 ] || fail 'a missing package did not fail'
[ "$(cat "$work/said")" = 'dev: missing: clang-format-16; run: sudo apt-get install clang-format-16' ] ||
    fail 'the line on what is missing'
! grep -q '^apt-get' "$CALLS" || fail 'apt-get ran without root'

# What is run needs no formatter, no encoder and no image tools.
DISPLAY=:0 dev run
grep -q '^dev: missing: .*qt6-base-dev' "$work/said" || fail 'running needs the toolkit'
! grep -qE 'clang|ffmpeg|imagemagick|xvfb|git|gtk|pyqt|doxygen|wine' "$work/said" || fail 'running needs too much'

# With leave to be root without a question.
stand_in sudo 'shift; exec "$@"'
dev format-check
[ $status -eq 0 ] || fail 'sudo did not do'
called 'apt-get install -y -q --no-install-recommends clang-format-16' || fail 'nothing was installed'

# Everything is there: nothing is asked of the network; a line for each phase, with its log.
stand_in dpkg-query 'echo install ok installed'
stand_in sudo 'exit 1'
DISPLAY=:0 dev run
[ $status -eq 0 ] || fail 'run'
! grep -q '^apt-get' "$CALLS" || fail 'apt-get ran though nothing is missing'
called run || fail 'nothing was run'
[ "$(cat "$work/said")" = 'dev: configure-release, log: build/log/configure-release.log
dev: build-release, log: build/log/build-release.log' ] || fail 'the lines of the phases'
[ -e "$place/build/log/build-release.log" ] || fail 'the log that was named'

# Without git, and with blanks in names.
dev format-check
[ $status -eq 0 ] || fail 'format-check without git'
called 'clang-format-16 --dry-run --Werror ./src/two words.cpp' || fail 'the sources that are checked'
! grep -q '^git' "$CALLS" || fail 'git was asked'

# The sources go on as an archive, from which all of this works again; the same ones are the same bytes.
mkdir -p "$place/include/kv_config_gui_mvc" "$place/.git"
cp "$sources/include/kv_config_gui_mvc/version.h" "$place/include/kv_config_gui_mvc"
touch "$place/.clang-format" "$place/.git/config"
dev archive
[ $status -eq 0 ] || fail 'archive'
archive=$place/$(cat "$work/said")
first=$(sha256sum <"$archive")
touch "$place/src/two words.cpp"
dev archive
[ "$(sha256sum <"$archive")" = "$first" ] || fail 'two archives of the same sources differ'
mkdir "$work/unpacked"
tar -C "$work/unpacked" -xf "$archive"
place=$(echo "$work"/unpacked/kv_config_gui_mvc-*)
[ ! -e "$place/.git" ] && [ ! -e "$place/build" ] && [ -e "$place/.clang-format" ] || fail 'what is in the archive'
dev format-check
[ $status -eq 0 ] || fail 'format-check of what was unpacked'
called 'clang-format-16 --dry-run --Werror ./include/kv_config_gui_mvc/version.h ./src/two words.cpp' ||
    called 'clang-format-16 --dry-run --Werror ./src/two words.cpp ./include/kv_config_gui_mvc/version.h' ||
    fail 'the sources that are checked in what was unpacked'
