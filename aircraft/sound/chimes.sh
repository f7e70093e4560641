# Tuned tones. The cabin chimes share two bars, a high one on D5 and a low one on B4, and tell themselves
# apart by the order: low alone, high then low, low then high.
readonly HIGH=587.33 LOW=493.88

# bar NAME PITCH SECONDS LEVEL: a struck chime bar; the overtones die first.
bar() {
  ring "$1.1" "$2" "$3" "$4"
  ring "$1.2" "$(calc "2 * $2")" "$(calc "0.7 * $3")" "$(calc "$4 - 13")"
  ring "$1.3" "$(calc "3 * $2")" "$(calc "0.5 * $3")" "$(calc "$4 - 20")"
  ring "$1.4" "$(calc "5.4 * $2")" "$(calc "0.12 * $3")" "$(calc "$4 - 22")"
  mix "$1" "$1.1" "$1.2" "$1.3" "$1.4"
}

# A sign switched: low.
sign_chime() {
  bar tone $LOW 3.2 -4
  tidy clean tone
  finish_loud -24 clean 0.003 0.02
}

# The crew called: high, low.
call_chime() {
  bar first $HIGH 2.8 -7
  bar second $LOW 3.2 -7
  mix chime first second@0.5
  tidy clean chime
  finish_loud -24 clean 0.003 0.02
}

# announcement_chime NAME: low, high, softly, ahead of the crew's voice.
announcement_chime() {
  bar "$1.low" $LOW 1.4 -7
  bar "$1.high" $HIGH 1.6 -7
  mix "$1.both" "$1.low" "$1.high@0.38"
  shape "$1" "$1.both" sinc 250-4500 gain -n -10 fade t 0.004 1.25 0.12
}

# Nearing the selected altitude: a C major chord, C6 E6 G6, each with its octave for a bright edge. An
# aircraft that stays near it hears the chord again and again.
altitude_alert() {
  local span
  span=$(repeating_seconds 18)
  part chord synth 1 sine 1046.50 synth 1 sine mix 1318.51 synth 1 sine mix 1567.98 gain -6
  part shine synth 1 sine 2093.00 synth 1 sine mix 2637.02 synth 1 sine mix 3135.96 gain -14
  mix alert chord shine
  shape swell alert fade t 0.006 "$span" 0.09
  finish_loud -28 swell
}

# The radio altimeter's self-test: the decision-height tone, growing as the ground comes up, then cut.
altimeter_test() {
  part tone synth 2 sine 1000 gain -5
  part edge synth 2 sine 2000 gain -19
  part floor synth 2 sine 1000 gain -17
  mix test tone edge
  shape grown test fade h 1.7
  mix whole grown floor
  finish_loud -25 whole
}
