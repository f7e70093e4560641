# The people, and the one computer, that speak. Every voice is brought to the same loudness.

# Synthesiser's voice, mean pitch in Hz (0: the voice's own), pace (above 1 is slower).
readonly CALLOUT_VOICE="kal16 110 1.2"   # the height computer: level and calm
readonly WARNING_VOICE="kal16 150 1.5"   # the same, with urgency
readonly OFFICER_VOICE="rms 0 1.15"      # the first officer
readonly GROUND_VOICE="awb 128 1.0"      # the ground engineer on the headset
readonly CABIN_VOICE="slt 0 1.05"        # the purser

readonly SPEECH_LOUDNESS=-19  # mean level while speaking, dBFS

# What the way to the ear does to a voice: low end that cabin noise would cover is left out, the consonants
# are brought forward.
readonly COCKPIT_SOUND=(highpass 180 equalizer 250 1q -4 equalizer 2800 0.8q 6)
readonly HEADSET_SOUND=(highpass 330 highpass 180 equalizer 2500 0.6q 6)
readonly ALARM_SOUND=(highpass 250 equalizer 2500 0.6q 6 overdrive 10 0)
readonly INTERCOM_SOUND=(sinc 320-3800 equalizer 1900 1q 3 overdrive 4 0)
readonly CABIN_SOUND=(sinc 300-6000 equalizer 1500 0.9q 2 reverb 12 60 25 100 3 -7)

# speak NAME VOICE WORDS: the words as the synthesiser says them, at the studio's rate.
speak() {
  local voice pitch pace settings=()
  read -r voice pitch pace <<<"$2"
  ((pitch == 0)) || settings=(--setf "int_f0_target_mean=$pitch")
  flite -voice "$voice" --setf "duration_stretch=$pace" "${settings[@]}" -t "$3" -o "$1.wav"
  sox_steady "$1.wav" "$1.sox" gain -n -3 rate -v "$RATE"
}

# even_out NAME FROM: the hiss between words closed off, soft syllables raised, loud ones held.
even_out() {
  shape "$1.even" "$2" highpass 70 gain -n -6 \
    compand 0.004,0.12 3:-90,-120,-50,-65,-44,-40,-30,-22,-20,-16,0,-11 0 -60 0.004
  shape "$1.full" "$1.even" gain -n -3
  tidy "$1" "$1.full"
}

# to_loudness NAME FROM LEVEL: the mean level while speaking, pauses left out and the low end counted less as
# the ear does, brought to LEVEL.
to_loudness() {
  local mean
  mean=$(sox_steady "$2.sox" -n highpass -1 400 silence 1 0.02 1% -1 0.02 1% stats 2>&1 |
    awk '/^RMS lev dB/ { print $4 }')
  shape "$1" "$2" gain "$(calc "$3 - ($mean)")"
}

# spoken NAME VOICE SOUND WORDS [LOUDNESS]: the words as they are heard, through SOUND.
spoken() {
  local -n way=$3
  speak "$1.words" "$2" "$4"
  even_out "$1.clear" "$1.words"
  shape "$1.heard" "$1.clear" gain -6 "${way[@]}" gain -n -3
  shape "$1.held" "$1.heard" gain -n -3 compand 0.0001,0.05 -90,-90,-16,-16,0,-15 0 -60 0.0003
  to_loudness "$1" "$1.held" "${5:-$SPEECH_LOUDNESS}"
}

# A height, from the computer.
callout() {
  spoken voice "$CALLOUT_VOICE" COCKPIT_SOUND "$1"
  finish voice
}

# A call from the right-hand seat.
first_officer() {
  spoken voice "$OFFICER_VOICE" HEADSET_SOUND "$1"
  finish voice
}

# The same on the take-off run: asked for as long as the speed is within some knots, four for the first call,
# and heard once all the same, at two knots a second and more. So silence follows the words.
readonly TAKE_OFF_CALL_SECONDS=2.4
take_off_call() {
  spoken voice "$OFFICER_VOICE" HEADSET_SOUND "$1"
  finish voice
  sox_steady finished.wav padded.wav pad 0 "$TAKE_OFF_CALL_SECONDS" trim 0 "$TAKE_OFF_CALL_SECONDS"
  mv padded.wav finished.wav
}

# The ground engineer, plugged in below the nose.
ground_crew() {
  spoken voice "$GROUND_VOICE" INTERCOM_SOUND "$1"
  # The apron behind him, for as long as he holds the key.
  part apron synth "$(calc "$(soxi -D voice.sox) + 0.16")" pinknoise sinc 320-3800 gain -25
  mix call apron voice@0.08
  finish call
}

# The chime, then the purser.
announcement() {
  spoken voice "$CABIN_VOICE" CABIN_SOUND "$1"
  announcement_chime chime
  mix said chime voice@1.3
  tidy clean said
  finish clean
}
