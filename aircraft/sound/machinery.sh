# Machinery heard through the structure.

# The APU started from the cockpit: the starter takes the load, the igniter ticks, the burner lights and its
# roar swells; then it falls behind the other noises aboard. Low and soft: the hands' clicks go on.
apu_start() {
  part starter synth 5 sawtooth 48/150 gain -14 lowpass 600 lowpass 600 fade h 0.12 5 2.2
  part whirr synth 6.6 brownnoise gain -6 sinc 180-900 fade h 0.4
  part light synth 4.2 brownnoise gain -3 highpass 45 lowpass 260 fade h 0.5
  part roar synth 5.2 pinknoise gain -12 sinc 250-1400 fade h 4
  burst tick 1500 3500 0.02 -26
  shape igniter tick pad 0 0.26 repeat 8
  mix run starter whirr light@2.4 roar@1.4 igniter@0.9
  shape away run trim 0 6.6 fade t 0.02 6.6 1.6
  finish_loud -31 away
}
