# Sounds that must win against everything else in the cockpit, except what is being said: they lie below and
# above the voices. Between 500 and 3000 Hz, where words are told apart, they leave a hole, and so they need not be
# loud.
readonly WARNING_LOUDNESS=-24.5

# hole NAME FROM: without what would cover voices.
hole() { shape "$1" "$2" sinc -t 160 -a 40 3000-500; }

# The fire bell: a hammer on a small steel gong, twenty strokes a second, thirty in the 27 frames to its repeat.
fire_bell() {
  burst blow 3300 4600 0.012 -24
  ring hum 236 0.5 -32
  ring prime 471 0.5 -36
  ring gong1 3370 0.9 -22
  ring gong2 3388 0.9 -25
  ring gong3 4390 0.7 -23
  ring gong4 4418 0.7 -28
  mix stroke blow hum prime gong1 gong2 gong3 gong4
  hammer bell stroke 0.05 10 1.5
  hole open bell
  cut_to_repeat ringing open 27
  finish_loud $WARNING_LOUDNESS ringing 0.004 0.015
}

# horn NAME PITCH SECONDS: a diaphragm horn: two reeds a little apart, hard driven. What is left above the hole
# are overtones, as far apart as the note is high: a loudspeaker too small for the note still lets it be heard.
horn() {
  part "$1.reed" synth "$3" sawtooth "$2" synth "$3" sawtooth mix "$(calc "1.006 * $2")" gain -18
  shape "$1.blown" "$1.reed" highpass 200 gain -n -6 overdrive 20 0 gain -n -9
  shape "$1.note" "$1.blown" lowpass 450 lowpass 450 gain -n -26
  shape "$1.rasp" "$1.blown" sinc -t 200 3250-4400 gain -n -12
  mix "$1.open" "$1.note" "$1.rasp"
  shape "$1" "$1.open" fade t 0.012 "$3" 0.02
}

# The stick shaker: an unbalanced motor that knocks the column, sixteen times a second, and the stall horn.
stick_shaker() {
  ring column 82 0.11 -22
  ring knock 310 0.09 -34
  burst clack 3250 4400 0.05 -6
  mix blow column knock clack
  hammer shaker blow 0.0625 4 1.5
  horn tone 415 "$(repeating_seconds 27)"
  hole rattling shaker
  shape behind tone gain -19
  mix stall rattling behind
  cut_to_repeat warning stall 27
  finish_loud $WARNING_LOUDNESS warning
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
  finish_loud $WARNING_LOUDNESS warning 0.004 0.01
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
  finish_loud $WARNING_LOUDNESS blast
}

# whoop NAME: one rising sweep, with a whistle far above it.
whoop() {
  part "$1.note" synth 0.36 sine 150/440 gain -6
  part "$1.whistle" synth 0.36 sine 3250/5000 gain -14
  mix "$1.sweep" "$1.note" "$1.whistle"
  shape "$1.swept" "$1.sweep" fade t 0.015 0.36 0.03
  hole "$1" "$1.swept"
}

# Ground proximity: two whoops, then the order, put off so that the whole has a length that repeats. The order is
# softer than the crew's voices, which are understood while it is repeated.
ground_proximity() {
  local spoken_for frames
  whoop up
  mix whoops up up@0.4
  to_loudness alarm whoops $WARNING_LOUDNESS
  spoken order "$WARNING_VOICE" ALARM_SOUND "$1" -21
  spoken_for=$(soxi -D order.sox)
  frames=$(repeating_frames "$(calc "0.79 + $spoken_for")")
  mix warning alarm "order@$(calc "$(repeating_seconds "$frames") - $spoken_for")"
  finish warning
}
