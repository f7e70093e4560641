# The people, and the one computer, that speak, all at the same loudness.

# Who speaks: the synthesiser's voice; its pace, above 1 being slower; and how much smaller than the voice's
# own the speaker is, who then speaks higher too. Chosen by a recogniser's ear among the voices that the
# distribution has: of 25 calls it understood 22 of the purser's voice and the officer's, 19 of the computer's.
readonly COMPUTER_VOICE="kal_diphone 0.95 1"            # the height computer: level and calm
readonly WARNING_VOICE="kal_diphone 1.3 1.12"           # the same, with urgency
readonly OFFICER_VOICE="cmu_us_slt_arctic_hts 0.92 0.8" # the first officer
readonly GROUND_VOICE="ked_diphone 1 1"                 # the ground engineer on the headset
readonly CABIN_VOICE="cmu_us_slt_arctic_hts 1.05 1"     # the purser

readonly SPEECH_LOUDNESS=-18.5 # while speaking
readonly BREATH=0.04         # seconds left before the first consonant, and after the last

# What the way to the ear does to a voice: low end that cabin noise would cover is left out, the consonants
# are brought forward.
readonly COCKPIT_SOUND=(highpass 180 equalizer 250 1q -4 equalizer 2800 0.8q 5)
readonly HEADSET_SOUND=(highpass 250 equalizer 2200 0.7q 6 lowpass 6000)
readonly ALARM_SOUND=(highpass 250 equalizer 2500 0.6q 6 overdrive 6 0)
readonly INTERCOM_SOUND=(sinc 300-4200 equalizer 1900 1q 3 overdrive 2 0)
readonly CABIN_SOUND=(sinc 250-6500 equalizer 1800 0.9q 2 reverb 8 60 20 100 3 -10)

# speak NAME VOICE WORDS: the words as the synthesiser says them, at the studio's rate.
speak() {
  local voice pace size slower
  read -r voice pace size <<<"$2"
  slower=$(calc "$pace * $size") # what the size takes away
  text2wave -o "$1.wav" -eval "(voice_$voice)" -eval "(Parameter.set 'Duration_Stretch $slower)" \
    -eval "(if (symbol-bound? 'hts_engine_params)
      (set! hts_engine_params (cons (list \"-r\" (/ 1 $slower)) hts_engine_params)))" <<<"$3"
  sox_steady "$1.wav" "$1.sox" gain -n -3 speed "$size" rate -v "$RATE"
}

# even_out NAME FROM: soft syllables raised, loud ones held. No gate: an f or an h is softer than the hiss
# between words elsewhere.
even_out() {
  shape "$1" "$2" highpass 70 gain -n -6 \
    compand 0.004,0.12 3:-90,-90,-60,-57,-44,-38,-30,-22,-20,-16,0,-11 0 -60 0.004
}

# utterance NAME FROM: from a breath before the first sound to a breath after the last, be they ever so soft.
utterance() {
  shape "$2.pad" "$2" gain -n -3 pad 1 1
  shape "$2.head" "$2.pad" silence 1 0.003 0.3%
  shape "$2.tail" "$2.pad" reverse silence 1 0.003 0.3%
  local whole head tail
  whole=$(soxi -D "$2.pad.sox") head=$(soxi -D "$2.head.sox") tail=$(soxi -D "$2.tail.sox")
  shape "$1" "$2.pad" trim "$(calc "$whole - $head - $BREATH")" "$(calc "$head + $tail - $whole + 2 * $BREATH")" \
    fade t "$(calc "0.7 * $BREATH")" 0 "$(calc "0.7 * $BREATH")"
}

# spoken NAME VOICE SOUND WORDS [LOUDNESS]: the words as they are heard, through SOUND.
spoken() {
  local -n way=$3
  speak "$1.words" "$2" "$4"
  even_out "$1.clear" "$1.words"
  shape "$1.heard" "$1.clear" gain -6 "${way[@]}" gain -n -3
  shape "$1.held" "$1.heard" gain -n -3 compand 0.0001,0.05 -90,-90,-18,-18,0,-16.5 0 -60 0.0003
  utterance "$1.cut" "$1.held"
  to_loudness "$1" "$1.cut" "${5:-$SPEECH_LOUDNESS}"
}

# A height, from the computer.
callout() {
  spoken voice "$COMPUTER_VOICE" COCKPIT_SOUND "$1"
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
  sox_steady finished.wav padded.wav pad 0 "$(calc "$TAKE_OFF_CALL_SECONDS - $(soxi -D finished.wav)")"
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
  finish said
}
