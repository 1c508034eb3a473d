#!/bin/sh
# Backs up, compares and restores any number of controllers, one on each port.
#
#   controllers.sh backup  FOLDER PORT...   reads each controller into a file of FOLDER
#   controllers.sh compare FOLDER PORT...   tells where a controller differs from its file
#   controllers.sh restore FOLDER PORT...   writes its file back to each controller that differs from it
#
# A controller that fails does not keep the others from their turn. The exit code is 0 when all went well; otherwise
# it is the highest that a controller gave: 1 differences, 3 port, 4 no answer, 5 refused, 6 file.
set -u

ctl=${VARNOTHCTL:-varnothctl}

if [ $# -lt 3 ]; then
    sed -n '2,6s/^# \{0,1\}//p' "$0" >&2
    exit 2
fi
action=$1
folder=$2
shift 2
mkdir -p "$folder" || exit 6

# The file of a port: /dev/ttyUSB0 has dev_ttyUSB0.con
file_of() {
    printf '%s/%s.con' "$folder" "$(printf %s "${1#/}" | tr / _)"
}

backup() {
    "$ctl" --port "$1" --quiet --yes read --output "$(file_of "$1")"
}

compare() {
    "$ctl" --port "$1" --quiet compare "$(file_of "$1")" device
}

# What is equal already is left alone.
restore() {
    compare "$1" >/dev/null
    differs=$?
    [ "$differs" -eq 1 ] || return "$differs"
    "$ctl" --port "$1" --quiet --yes write "$(file_of "$1")" --store --verify
}

case $action in
backup | compare | restore) ;;
*)
    echo "controllers.sh: there is no action \"$action\"" >&2
    exit 2
    ;;
esac

worst=0
for port; do
    "$action" "$port"
    code=$?
    echo "$action $port: $code"
    [ "$code" -le "$worst" ] || worst=$code
    [ "$code" -ne 130 ] || break
done
exit "$worst"
