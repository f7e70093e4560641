# What the hand feels: dry, close, gone before the next one. A click has no fade-in to speak of: its edge
# is the sound.

# A push button bottoming out: a soft tick on a small plastic body.
push_click() {
  burst tick 1500 6000 0.012 -11
  ring cap 1750 0.03 -10
  ring body 410 0.06 -12
  mix click tick cap body
  shape short click trim 0 0.040
  finish_at -7 short 0.0005 0.008
}

# A toggle going over its spring: the lever leaves its detent, then the bat strikes the other side.
toggle_snap() {
  burst leave 2200 7000 0.012 -10
  ring spring 3150 0.025 -15
  burst strike 1200 9000 0.018 -8
  ring bat 2350 0.05 -9
  ring bushing 4180 0.035 -12
  ring panel 520 0.07 -13
  mix snap leave spring strike@0.026 bat@0.026 bushing@0.026 panel@0.026
  shape short snap trim 0 0.070
  finish_at -6 short 0.0005 0.008
}

# The parking-brake handle: pulled along its tube, then down into the lock.
parking_brake() {
  part pull synth 0.13 pinknoise gain -17 highpass 500 lowpass 2600 fade h 0.05 0.13 0.03
  burst lock 700 5200 0.045 -9
  ring latch 1330 0.2 -15
  ring handle 690 0.3 -12
  ring pedestal 118 0.5 -9
  ring floor 235 0.42 -11
  mix clunk pull lock@0.12 latch@0.12 handle@0.12 pedestal@0.12 floor@0.12
  tidy clean clunk
  finish_at -8 clean
}

# The speed-brake lever: drawn over the rollers of its quadrant, against the end stop.
lever_slide() {
  part rub synth 0.52 pinknoise gain -9 highpass 700 lowpass 3400 fade h 0.1 0.52 0.12
  burst roller 1100 5200 0.02 -10
  hammer rollers roller 0.034 2 0.476
  shape rolling rollers fade h 0.12 0.476 0.1
  burst stop 500 4500 0.03 -8
  ring lever 870 0.16 -12
  ring quadrant 186 0.36 -10
  mix slide rub rolling stop@0.5 lever@0.5 quadrant@0.5
  tidy clean slide
  finish_at -9 clean
}
