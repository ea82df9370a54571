# shellcheck shell=bash
# The main job from end to end, on the sample store. Called by ./norv demo, which sets root, bin and store.
set -euo pipefail
: "${bin:?}" "${store:?}"

say() { printf '\n\033[1m%s\033[0m\n' "$*"; }
run() {
    printf '$ %s\n' "$*"
    case $1 in
    norvctl) shift && in_wine "$bin/norvctl.exe" "$@" ;;
    *) local program=$1 && shift && in_wine "$bin/$program.exe" "$@" ;;
    esac
}
# For a call that is meant to be refused: its failure is part of the show.
refused() {
    if run "$@"; then
        echo 'was not refused' >&2
        exit 1
    fi
}

# A watch in the background, of which show_changes tells what it has printed.
watch_changes() { # FOLDER COUNT
    watched=$(mktemp)
    in_wine "$bin/norvctl.exe" watch "$1" --count "$2" --timeout 30 >"$watched" &
    watcher=$!
    until grep -q watching "$watched"; do sleep 0.1; done
}
show_changes() {
    wait "$watcher"
    print_changes
}
# The same for changes of one call: two that come together are told as one, so that the watch may give up
# waiting for the last.
show_changes_of_one_call() {
    wait "$watcher" || grep -q changed "$watched"
    print_changes
}
print_changes() {
    echo 'what the watch has printed:'
    cat "$watched"
    rm "$watched"
}

say 'The library that answers'
run norvctl version

say 'Tracing is switched on for every process of the machine'
run norvctl trace on --folder 'C:\norvepa\trace' --file Demo

say 'What the log name "Kessel#1" stands for, asked through the library'
run norvctl name get 'Kessel#1' LogDevice
run norvctl name get 'Kessel#1' Einheit
run norvctl --json name get 'Kessel#1' LogDevice

say 'The same library from a C and a C++ client: a value with what the catalogue says of it, and the whole plant'
run client_c get Kesselhaus watchdog
run client_c allowed Kesselhaus watchdog
refused client_c set Kesselhaus watchdog 15
run client_cpp overview

say 'Failures are told in words, with the code'
refused norvctl name get 'Kessel#1' NoSuchParameter
refused norvctl name get 'No such name'

say 'A log name is made, changed and removed, while a watch in another process is told of each change'
watch_changes LogNames 5
run norvctl name create 'Mischer Süd #2'
run norvctl name set 'Mischer Süd #2' LogDevice 'Rührwerk Nord'
run norvctl name set 'Mischer Süd #2' Drehzahl '1450 min⁻¹ (Ω-Bremse)'
run norvctl name set 'Mischer Süd #2' Drehzahl '1450 min⁻¹ (Ω-Bremse)'
run norvctl name show 'Mischer Süd #2'
refused norvctl name set 'Mischer Süd #2' Drehzahl '<schnell>'
run norvctl name unset 'Mischer Süd #2' Drehzahl
run norvctl name list
run norvctl name delete 'Mischer Süd #2'
show_changes

say 'What the catalogue says: boards, protocols, and what a parameter may hold'
run norvctl board list
run norvctl protocol list
run norvctl protocol show L2 ttr
run norvctl protocol baudrates L2 --profile 1
run norvctl board values '*AFK220' NotSupported

say 'The log devices of this machine'
run norvctl device list
run norvctl device list --type mpi
run norvctl device list --by-id AFK110

say 'A baud rate is set, while a watch in another process is told'
watch_changes LogDevices 1
run norvctl device get Kesselhaus baudrate
run norvctl device set Kesselhaus baudrate 187500
run norvctl device get Kesselhaus baudrate
show_changes

say 'Values that the catalogue does not allow are refused, and the file stays what it was'
file="$store/data/data/LogDevices/Kesselhaus.xml"
before=$(sha256sum <"$file")
refused norvctl device set Kesselhaus baudrate 12345
refused norvctl device set Kesselhaus ttr 255
refused norvctl device set Kesselhaus watchdog 15
[[ $(sha256sum <"$file") == "$before" ]]
echo 'Kesselhaus.xml is byte for byte what it was'

say 'What a log device may choose from, and what the catalogue says of it'
run norvctl device describe 'Presse#3'
run norvctl device choices 'Presse#3' l4_timeout
run norvctl device choices 'Presse#3' l4_timeout --average
run norvctl device describe 'Presse#3' slot_time
run norvctl device describe 'Presse#3' 'baudrate\1500000'

say 'Another baud rate is chosen, and what depends on it follows; a watch in another process is told of each value'
show_bus_parameters() {
    for parameter in baudrate slot_time max_tsdr setup_time; do
        run norvctl device get 'Presse#3' "$parameter"
    done
}
watch_changes LogDevices 3
show_bus_parameters
run norvctl device busparams 'Presse#3' 1500000
show_bus_parameters
show_changes_of_one_call

say 'A baud rate that nothing is known to follow from is refused, and the old one put back'
refused norvctl device busparams 'Presse#3' 500000
run norvctl device get 'Presse#3' baudrate

say 'Kesselhaus got its baud rate alone: its bus profile, applied anew, brings the rest'
watch_changes LogDevices 4
run norvctl device profile Kesselhaus
run norvctl device profile Kesselhaus
show_changes_of_one_call

say 'A log name is linked to a log device, unless another thread holds its lock'
refused norvctl name link Wartung Kesselhaus
run norvctl name link Lagerhaus Kesselhaus
run norvctl name show Lagerhaus

say 'A log device is made from a template'
run norvctl template list
run norvctl device create 'Mischer Süd' --from L2-AFK110
run norvctl device get 'Mischer Süd' baudrate

say 'It is edited aside, on a temporary copy: until that is applied, the log device stays what it is'
copy=PGSP_TEMP_LOG_DEVICE____000
run norvctl device edit begin 'Mischer Süd'
run norvctl device set "$copy" baudrate 1500000
run norvctl device ndi set "$copy" DescText AuentalTexte.dll,1003
run norvctl device get "$copy" baudrate
run norvctl device get 'Mischer Süd' baudrate
run norvctl device edit apply "$copy" 'Mischer Süd'
run norvctl device get 'Mischer Süd' baudrate

say 'What people are shown of it, in two languages'
for language in de en; do
    run norvctl device text 'Mischer Süd' DescText --language "$language"
    run norvctl device text 'Mischer Süd' 'BaudrateResource\6' --language "$language"
done
run norvctl device ndi list 'Mischer Süd'

say 'Log devices are copied and deleted, if they allow it, while a watch in another process is told'
watch_changes LogDevices 4
run norvctl device copy 'Mischer Süd' 'Mischer Nord'
run norvctl device delete 'Mischer Nord'
run norvctl device create Programmierplatz --from MPI-KQZA010
refused norvctl device delete Programmierplatz
run norvctl device delete Programmierplatz --force
show_changes

say 'What belongs to no log device: settings of the machine, and flat files of parameters'
run norvctl settings get PlantName
run norvctl settings set LastChangeDate 2024-09-15
run norvctl data set Kesselhaus Dampfdruck '39,0 bar' --subfolder ParameterData
run norvctl data list Kesselhaus --subfolder ParameterData

say 'Tracing is switched off again; what the first calls have left'
run norvctl trace off
iconv -f CP1252 -t UTF-8 "$store/trace/Demo1.TRC" | sed -n '1,18p'

say 'What the driver of the new log device receives: what its Load names, with the baud rate that was applied'
run norvctl device driver-read 'Mischer Süd'

say 'The same from the example for writers of drivers'
run client_driver 'Mischer Süd'
