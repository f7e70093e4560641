# Sounds that must win against everything else in the cockpit.

# The fire bell: a hammer on a steel gong, twenty strokes a second.
fire_bell() {
  burst blow 2000 9000 0.012 -24
  ring gong1 1180 0.9 -24
  ring gong2 1187 0.9 -27
  ring gong3 2764 0.6 -23
  ring gong4 2781 0.6 -28
  ring gong5 4390 0.35 -27
  ring gong6 6120 0.2 -32
  mix stroke blow gong1 gong2 gong3 gong4 gong5 gong6
  hammer bell stroke 0.05 10 1.5
  finish_at -1 bell
}

# horn NAME PITCH SECONDS: a diaphragm horn: two reeds a little apart, hard driven through a short bell.
horn() {
  part "$1.reed" synth "$3" sawtooth "$2" synth "$3" sawtooth mix "$(calc "1.006 * $2")" gain -18
  shape "$1" "$1.reed" highpass 200 equalizer 1150 1.2q 8 equalizer 2600 1.5q 6 lowpass 5200 \
    gain -n -6 overdrive 20 0 lowpass 6500 gain -n -3 fade t 0.012 "$3" 0.02
}

# The stick shaker: an unbalanced motor that knocks the column, sixteen times a second, and the stall horn.
stick_shaker() {
  ring column 82 0.11 -16
  ring knock 310 0.09 -14
  ring rattle 1240 0.05 -15
  burst clack 900 6500 0.035 -9
  mix blow column knock rattle clack
  hammer shaker blow 0.0625 4 1.5
  horn tone 415 1.5
  shape rattling shaker gain -n -3 overdrive 8 0 gain -n -6
  shape behind tone gain -n -6
  mix stall rattling behind
  finish_at -1 stall
}

# Cabin altitude: a horn that stops and starts; it rings on in the gaps, the last one too, so that the
# beat holds when the warning repeats.
cabin_horn() {
  horn blast 330 0.26
  shape blown blast gain -3 pad 0 0.3 reverb 45 50 30 100 0 -2
  shape warning blown trim 0 0.4 fade t 0 0.4 0.01 repeat 3
  finish_at -1 warning
}

# For the people outside, at the nose gear: a long two-tone air horn.
ground_horn() {
  horn low 277 1.4
  horn high 349 1.4
  shape lower low gain -6
  shape higher high gain -7
  mix blast lower higher
  finish_at -1 blast
}

# whoop NAME: one rising sweep.
whoop() {
  part "$1.sine" synth 0.36 sine 380/1250 gain -5
  part "$1.edge" synth 0.36 sine 760/2500 gain -15
  mix "$1.sweep" "$1.sine" "$1.edge"
  shape "$1" "$1.sweep" gain -n -9 fade t 0.01 0.36 0.03
}

# Ground proximity: two whoops, then the order.
ground_proximity() {
  whoop up
  spoken order "$WARNING_VOICE" ALARM_SOUND "$1" -15
  mix warning up up@0.4 order@0.82
  finish_at -1 warning
}
