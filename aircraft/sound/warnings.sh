# Sounds that must win against everything else in the cockpit.

# The fire bell: a hammer on a steel gong, twenty strokes a second, thirty in the 27 frames to its repeat.
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
  cut_to_repeat ringing bell 27
  finish_at -1 ringing 0.004 0.015
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
  horn tone 415 "$(repeating_seconds 27)"
  shape rattling shaker gain -n -3 overdrive 8 0 gain -n -6
  shape behind tone gain -n -6
  mix stall rattling behind
  cut_to_repeat warning stall 27
  finish_at -1 warning
}

# Cabin altitude: a horn that stops and starts every seven frames; it rings on in the gaps, the last one
# too, so that the beat holds when the warning repeats.
cabin_horn() {
  local beat
  beat=$(calc "7 / 18")
  horn blast 330 0.25
  shape blown blast gain -3 pad 0 0.3 reverb 45 50 30 100 0 -2
  shape beats blown trim 0 "$beat" fade t 0 "$beat" 0.01 repeat 3
  cut_to_repeat warning beats 28
  finish_at -1 warning 0.004 0.01
}

# For the people outside, at the nose gear: a long two-tone air horn.
ground_horn() {
  local span
  span=$(repeating_seconds 27)
  horn low 277 "$span"
  horn high 349 "$span"
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

# Ground proximity: two whoops, then the order, put off so that the whole has a length that repeats.
ground_proximity() {
  local spoken_for frames
  whoop up
  spoken order "$WARNING_VOICE" ALARM_SOUND "$1" -15
  spoken_for=$(soxi -D order.sox)
  frames=$(repeating_frames "$(calc "0.82 + $spoken_for")")
  mix warning up up@0.4 "order@$(calc "$(repeating_seconds "$frames") - $spoken_for")"
  finish_at -1 warning
}
