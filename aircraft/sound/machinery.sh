# Machinery heard through the structure.

# The APU started from the cockpit: the starter takes the load, the igniter ticks, the turbine spools up
# and settles; then it falls behind the other noises aboard.
apu_start() {
  part starter synth 6.6 sawtooth 48/235 gain -14 lowpass 900 fade h 0.12 6.6 2.6
  part spool synth 6.6 sine 170/2950 gain -12 fade h 2.4
  part blades synth 6.6 sine 340/5900 gain -19 fade h 3.6
  part shaft synth 6.6 triangle 85/1475 gain -17 fade h 1.2
  part rumble synth 6.6 brownnoise gain -6 highpass 60 lowpass 350 fade h 3
  part roar synth 6.6 pinknoise gain -9 highpass 400 lowpass 3200 fade h 5.5
  burst tick 1800 6500 0.02 -20
  shape igniter tick pad 0 0.26 repeat 11
  mix run starter spool blades shaft rumble roar igniter@0.9
  shape away run fade t 0.02 6.6 0.9
  finish_at -4 away
}
