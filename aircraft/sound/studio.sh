# The tools of every recipe: parts made from tones and noise, mixing, and the way to the finished file.
#
# A part is a file NAME.sox in the working folder. Parts are made at the level they have in the mix, with
# room for the sum; a recipe that clips says so when it is made.

readonly RATE=44100

sox_steady() { sox -V2 -D -R "$@"; }  # no dither, fixed noise: the same bytes on every build

calc() { awk "BEGIN { print $* }"; }

# part NAME EFFECT...: a part made from nothing.
part() { sox_steady -r $RATE -c 1 -n "$1.sox" "${@:2}"; }

# shape NAME FROM EFFECT...: a part made from another.
shape() { sox_steady "$2.sox" "$1.sox" "${@:3}"; }

# ring NAME FREQUENCY SECONDS LEVEL: something struck; dies away evenly, by 100 dB over its length.
ring() { part "$1" synth "$3" sine "$2" fade l 0 "$3" "$3" gain "$4"; }

# burst NAME LOW HIGH SECONDS LEVEL: struck surfaces; noise between two frequencies that dies away.
burst() { part "$1" synth "$4" whitenoise gain "$5" sinc "$2-$3" fade l 0 "$4" "$4"; }

# mix NAME PART PART...: the plain sum. A part written as NAME@SECONDS comes in that much later.
mix() {
  local inputs=() each
  for each in "${@:2}"; do
    if [[ $each == *@* ]]; then
      inputs+=(-v 1 "|sox ${each%@*}.sox -p pad ${each#*@}")
    else
      inputs+=(-v 1 "$each.sox")
    fi
  done
  sox_steady -m "${inputs[@]}" "$1.sox"
}

# hammer NAME STRIKE PERIOD VOICES SECONDS: a strike repeated evenly, not quite as hard each time, and
# ringing on under the next VOICES - 1. The train is cut where it has settled, on a strike, so that it can
# follow itself.
hammer() {
  local span k parts=()
  span=$(calc "$3 * $4")
  part "$1.gap" trim 0 "$span"
  mix "$1.long" "$2" "$1.gap"
  shape "$1.one" "$1.long" trim 0 "$span" fade t 0 "$span" 0.002 repeat "$(calc "int($5 / $span) + 2")"
  for ((k = 0; k < $4; k++)); do
    shape "$1.one$k" "$1.one" gain "$(calc "-0.8 * ($k * 3 % 4)")"
    parts+=("$1.one$k@$(calc "$k * $3")")
  done
  mix "$1.train" "${parts[@]}"
  shape "$1" "$1.train" trim "$span" "$5"
}

# loudness NAME: mean loudness while it sounds, in dB below full scale, as the ear weighs it (ITU-R BS.1770: a
# shelf for the head, little for the low end).
loudness() {
  local level
  level=$(sox_steady "$1.sox" -n biquad 1.5308412 -2.6509800 1.1690791 1 -1.6636551 0.7125954 \
    biquad 1 -2 1 1 -1.9891697 0.9891990 silence 1 0.02 0.6% -1 0.02 0.6% stats 2>&1 |
    awk '/^RMS lev dB/ { print $4 }')
  calc "$level - 0.691"
}

# to_loudness NAME FROM LOUDNESS
to_loudness() { shape "$1" "$2" gain "$(calc "$3 - ($(loudness "$2"))")"; }

# tidy NAME FROM: silence cut from both ends.
tidy() { shape "$1" "$2" silence 1 0.002 0.5% reverse silence 1 0.002 0.5% reverse; }

# Some sounds are asked for anew on every frame while their cause lasts, 18 times a second, and start
# again on the first frame that finds them at their end. One that ended on a frame would miss it every
# other time: the sound device works in steps of some 20 ms, and pictures delay frames by as much. So they
# end midway between two frames, as far as can be from either, and always follow themselves after the same
# number of frames.

# repeating_seconds FRAMES: the length of a sound that comes again after this many frames.
repeating_seconds() { calc "($1 - 0.5) / 18"; }

# repeating_frames SECONDS: after how many frames a sound of at least this length can come again.
repeating_frames() { calc "int($1 * 18 + 0.5) + 1"; }

# cut_to_repeat NAME FROM FRAMES: the part up to there.
cut_to_repeat() { shape "$1" "$2" trim 0 "$(repeating_seconds "$3")"; }

# finish FROM [FADE_IN FADE_OUT]: the sound as it is delivered, its ends faded so that nothing clicks.
finish() {
  sox_steady "$1.sox" -b 16 -e signed-integer finished.wav fade t "${2:-0.004}" "$(soxi -D "$1.sox")" "${3:-0.005}"
}

# finish_loud LOUDNESS FROM [FADE_IN FADE_OUT]: the same, brought to a loudness first.
finish_loud() {
  to_loudness "$2.final" "$2" "$1"
  finish "$2.final" "${@:3}"
}

# finish_at PEAK FROM [FADE_IN FADE_OUT]: the same, brought to a peak level in dBFS first.
finish_at() {
  shape "$2.final" "$2" gain -n "$1"
  finish "$2.final" "${@:3}"
}
