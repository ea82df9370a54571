# The main job from end to end, on the sample store. Called by ./norv demo, which sets root, bin and store.
set -euo pipefail

say() { printf '\n\033[1m%s\033[0m\n' "$*"; }
run() {
    printf '$ %s\n' "$*"
    case $1 in
    norvctl) shift && in_wine "$bin/norvctl.exe" "$@" ;;
    *) local program=$1 && shift && in_wine "$bin/$program.exe" "$@" ;;
    esac
}
# For a call that is meant to be refused: its failure is part of the show.
refused() { run "$@" && { echo 'was not refused' >&2 && exit 1; } || true; }

say 'The library that answers'
run norvctl version

say 'Tracing is switched on for every process of the machine'
run norvctl trace on --folder 'C:\norvepa\trace' --file Demo

say 'What the log name "Kessel#1" stands for, asked through the library'
run norvctl name get 'Kessel#1' LogDevice
run norvctl name get 'Kessel#1' Einheit
run norvctl --json name get 'Kessel#1' LogDevice

say 'The same from the C and the C++ example'
run client_c 'Kessel#1'
run client_cpp 'Kessel#1' LogDevice CP_TYPE

say 'Failures are told in words, with the code'
refused norvctl name get 'Kessel#1' NoSuchParameter
refused norvctl name get 'No such name'

say 'A log name is made, changed and removed, while a watch in another process is told of each change'
watched=$(mktemp)
in_wine "$bin/norvctl.exe" watch LogNames --count 5 --timeout 30 >"$watched" &
watcher=$!
until grep -q watching "$watched"; do sleep 0.1; done
run norvctl name create 'Mischer Süd #2'
run norvctl name set 'Mischer Süd #2' LogDevice 'Rührwerk Nord'
run norvctl name set 'Mischer Süd #2' Drehzahl '1450 min⁻¹ (Ω-Bremse)'
run norvctl name set 'Mischer Süd #2' Drehzahl '1450 min⁻¹ (Ω-Bremse)'
run norvctl name show 'Mischer Süd #2'
refused norvctl name set 'Mischer Süd #2' Drehzahl '<schnell>'
run norvctl name unset 'Mischer Süd #2' Drehzahl
run norvctl name list
run norvctl name delete 'Mischer Süd #2'
wait "$watcher"
echo 'what the watch has printed:'
cat "$watched"
rm "$watched"

say 'Tracing is switched off again; what the first calls have left'
run norvctl trace off
iconv -f CP1252 -t UTF-8 "$store/trace/Demo1.TRC" | sed -n '1,18p'
