/// Flies a journal again.
#pragma once

#include <functional>
#include <string>

#include "host/inputs/cockpit_inputs.h"
#include "host/journal/read_journal.h"

namespace host {

/// Takes the record's inputs between the same frames as then, in a cockpit that has not flown yet, up
/// to the record's end. `after_frame` is called after every frame; it may be empty.
///
/// Returns where the flight has departed from the one in the record, which only another program or
/// another machine's arithmetic can bring about; empty if it has not. Throws std::runtime_error, with
/// file and line, for an input that this cockpit cannot take.
std::string fly_again(CockpitInputs& inputs, const FlightRecord& record,
                      const std::function<void()>& after_frame);

}  // namespace host
