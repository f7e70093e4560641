/// The light switches. Each is a plain switch; the lamps follow it.
#pragma once

namespace host::simulation {

struct Lights {
  bool panel = false;
  bool strobe = false;
  bool landing = false;
  bool beacon = false;
  bool navigation = false;
  bool taxi = false;
  bool recognition = false;

  int count_on() const { return panel + strobe + landing + beacon + navigation + taxi + recognition; }
};

}  // namespace host::simulation
