-- What the crew says, heard: announcements, calls and warnings, without the noises of switches and levers.
local ears = {}

local NOISES = {click = true, kippclick = true, pbrake = true, sbrake = true, apu = true, ["?"] = true}

-- Said since the flow began: {name=, seconds=} each.
function ears.said()
  local said = {}
  for _, sound in ipairs(sounds()) do
    if not NOISES[sound.name] then table.insert(said, sound) end
  end
  return said
end

local function last_of(name)
  local last
  for _, sound in ipairs(sounds()) do
    if sound.name == name then last = sound.seconds end
  end
  return last
end

-- It is being said, and began at that time: seconds, half a second more or less unless told otherwise.
function ears.expect_said_at(name, seconds, tolerance)
  local heard = last_of(name)
  expect(heard, name .. " is not said")
  expect_near(heard, seconds, tolerance or 0.5, "the time of " .. name)
end

-- Waits for it and expects it at that time.
function ears.await(name, seconds, tolerance)
  wait_until(function() return (last_of(name) or -1) > seconds - 5 or now() > seconds + 2 end,
             seconds - now() + 10, name)
  ears.expect_said_at(name, seconds, tolerance)
end

-- Nothing else was said, and each in its order.
function ears.expect_all(names)
  local said = {}
  for _, sound in ipairs(ears.said()) do table.insert(said, sound.name) end
  local wanted, heard = table.concat(names, ", "), table.concat(said, ", ")
  expect(heard == wanted, "the crew says " .. heard .. ", not " .. wanted)
end

return ears
