/// What the overhead's electrical meters must be fed so that they read a true quantity.
///
/// The meters behind the two selectors have scales without a unit, and every selector position
/// adds or takes away a few divisions of its own. These are the inverse of that.
#pragma once

namespace host::simulation {

/// DC voltmeter. Its scale of 0, 45, 66, 90 is a voltmeter with a suppressed zero whose 66 stands
/// for 28 V. Sources above 66 are the main bus and lose about 19 at the selector, sources below
/// are the battery and gain about 4; so the battery at 24.5 V is fed as 54, the main bus at 28 V
/// as 85, and nothing in between, where the meter would stick at its last reading.
double dc_voltmeter_source(double volts, bool main_bus_powered);

/// AC voltmeter. Its 270 of 360 stands for 115 V, a 0..150 V instrument. The selector adds about
/// 90, so 115 V are fed as 180 and a dead bus as -90.
double ac_voltmeter_source(double volts);

}  // namespace host::simulation
