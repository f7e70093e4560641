-- What the crew says, and when: announcements, calls and warnings, without the noises of switches and
-- levers.
local ears = {}

local NOISES = {click = true, kippclick = true, pbrake = true, sbrake = true, apu = true, ["?"] = true}

-- When each was said last, and what was seen then by those who listened.
local said, seen_then, heard_until = {}, {}, 0

-- Hears what is new. Called in every frame with what is seen, it remembers that too.
function ears.listen(seen)
  for _, sound in ipairs(sounds(heard_until)) do
    said[sound.name], seen_then[sound.name] = sound.seconds, seen
  end
  heard_until = now() + 0.001
end

-- Seconds, half a second more or less unless told otherwise.
function ears.expect_said_at(name, seconds, tolerance)
  ears.listen()
  expect(said[name], name .. " is not said")
  expect_near(said[name], seconds, tolerance or 0.5, "the time of " .. name)
end

-- Waits for it and expects it at that time.
function ears.await(name, seconds)
  wait(math.max(seconds - now() + 0.5, 0))
  ears.expect_said_at(name, seconds)
end

-- By those who listened.
function ears.expect_said_when(name, reading, wanted, tolerance)
  expect(seen_then[name], name .. " is not said")
  expect_near(seen_then[name][reading], wanted, tolerance, "the " .. reading .. " at " .. name)
end

-- These were said since the flow began, in this order, and nothing else.
function ears.expect_all(names)
  local heard = {}
  for _, sound in ipairs(sounds()) do
    if not NOISES[sound.name] then table.insert(heard, sound.name) end
  end
  local all = table.concat(heard, " ")
  expect(all == table.concat(names, " "), "the crew says " .. all)
end

return ears
