#!/usr/bin/env bash
# A PipeWire of a test's own that answers as PulseAudio does, at the socket FOLDER/native. Its only
# device is a sink "probe" that nobody hears. Ends with the process that this becomes.
#   pipewire_server.sh FOLDER
set -euo pipefail

folder=$1
export HOME=$folder XDG_RUNTIME_DIR=$folder XDG_CONFIG_HOME=$folder XDG_STATE_HOME=$folder
export DBUS_SESSION_BUS_ADDRESS=unix:path=$folder/bus
mkdir -p "$folder"/pipewire/{pipewire,pipewire-pulse}.conf.d \
    "$folder"/wireplumber/{main,bluetooth}.lua.d
cat >"$folder/pipewire/pipewire.conf.d/probe.conf" <<CONF
context.objects = [ { factory = adapter args = {
    factory.name = support.null-audio-sink node.name = probe media.class = Audio/Sink
    object.linger = true audio.position = [ FL FR ] } } ]
CONF
cat >"$folder/pipewire/pipewire-pulse.conf.d/address.conf" <<CONF
pulse.properties = { server.address = [ "unix:$folder/native" ] }
CONF
# The devices of this computer stay out of it.
printf '%s.enabled = false\n' alsa_monitor v4l2_monitor libcamera_monitor \
    >"$folder/wireplumber/main.lua.d/51-none.lua"
echo 'bluez_monitor.enabled = false' >"$folder/wireplumber/bluetooth.lua.d/51-none.lua"

await() { for ((i = 0; i < 100; i++)); do if [[ -S $1 ]]; then return; fi; sleep 0.1; done; }
with_this() { setpriv --pdeathsig TERM "$@" & }

with_this dbus-daemon --session --nofork --address="$DBUS_SESSION_BUS_ADDRESS"
await "$folder/bus"
with_this pipewire
await "$folder/pipewire-0"
with_this wireplumber
# Streams without a device of their own choice go to the default one.
for ((i = 0; i < 100; i++)); do
    if pw-metadata -n default 2>/dev/null | grep -q '"probe"'; then break; fi
    sleep 0.1
done
exec pipewire-pulse
