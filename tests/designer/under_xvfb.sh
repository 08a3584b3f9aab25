#!/usr/bin/env bash
# Qt Designer itself on a screen: opens a form with the controls, breaks up its layout, saves, and the controls have
# the properties they had.
#   under_xvfb.sh DESIGNER PLUGINS FORM FOLDER
set -euo pipefail
designer=$1 plugins=$2 form=$3 folder=$4

if [ -z "${ON_SCREEN:-}" ]; then
  exec env ON_SCREEN=1 xvfb-run -a -s "-screen 0 1280x900x24" "$0" "$@"
fi

rm -rf "$folder"
mkdir -p "$folder/home"
cp "$form" "$folder/form.ui"
export HOME=$folder/home XDG_CONFIG_HOME=$folder/home XDG_RUNTIME_DIR=$folder QT_PLUGIN_PATH=$plugins QT_QPA_PLATFORM=xcb
chmod 700 "$folder"
# A window manager that comes before the screen is ready gives up; another one takes its place.
while :; do openbox >/dev/null 2>&1 || true; sleep 0.2; done &
manager=$!
QT_DEBUG_PLUGINS=1 "$designer" "$folder/form.ui" >"$folder/designer.log" 2>&1 &
running=$!
trap 'kill $running $manager 2>/dev/null || true' EXIT

fail() {
  echo "under_xvfb: $*" >&2
  command -v import >/dev/null && import -window root "$folder/screen.png" || true
  tail -5 "$folder/designer.log" >&2
  exit 1
}
wait_for() { # WHAT COMMAND...
  local what=$1
  shift
  for _ in $(seq 150); do
    "$@" >/dev/null 2>&1 && return 0
    sleep 0.2
  done
  fail "$what did not come"
}

designer_window() { xdotool search --onlyvisible --name '^Qt Designer$'; }
saved() {
  # The form lies at the left edge of the work area. Its layout is broken up and the form saved.
  timeout 5 xdotool windowactivate --sync "$(designer_window | tail -1)" mousemove 320 325 click 1
  xdotool key --clearmodifiers ctrl+0
  xdotool key --clearmodifiers ctrl+s
  sleep 0.5
  # Whole, and another.
  grep -q '^</ui>' "$folder/form.ui" && ! cmp -s "$form" "$folder/form.ui"
}

wait_for "Designer's window" designer_window
wait_for "the plugin" grep -q 'zorsmartcontrols.so" loaded library' "$folder/designer.log"
wait_for "the saved form" saved
import -window root "$folder/screen.png" 2>/dev/null || true

properties() { grep -A1 '<property name="[A-Z]' "$1" | sed 's/^ *//'; }
diff <(properties "$form") <(properties "$folder/form.ui") >&2 || fail "a property of a control changed"
grep -q '<layout' "$folder/form.ui" && fail "the form was saved as it was"
grep -c '<class>zor::' "$folder/form.ui" >/dev/null || fail "the saved form does not say where the classes come from"
echo "under_xvfb: the plugin loads; a form was opened, changed and saved"
