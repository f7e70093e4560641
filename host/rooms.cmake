# The arrows between the host's rooms. What a room may include is what its libraries link, so a room
# that reaches for another says so in its CMakeLists.txt or does not build.
set(host_folder ${CMAKE_CURRENT_LIST_DIR})

# The folders that libraries and programs are declared in, with everything below them.
function(targets_below folder found)
  get_property(all DIRECTORY ${folder} PROPERTY BUILDSYSTEM_TARGETS)
  get_property(below DIRECTORY ${folder} PROPERTY SUBDIRECTORIES)
  foreach(each ${below})
    targets_below(${each} more)
    list(APPEND all ${more})
  endforeach()
  set(${found} ${all} PARENT_SCOPE)
endfunction()

# host/<room>/ of a library; empty for libraries from elsewhere.
function(room_of target room)
  set(${room} "" PARENT_SCOPE)
  if(NOT TARGET ${target})
    return()
  endif()
  get_target_property(folder ${target} SOURCE_DIR)
  file(RELATIVE_PATH path ${host_folder} "${folder}")
  if(path MATCHES "^[^./][^/]*")
    set(${room} ${CMAKE_MATCH_0} PARENT_SCOPE)
  endif()
endfunction()

# The libraries whose headers a target may include: what it links, and what those hand on.
function(libraries_of target found)
  get_target_property(open ${target} LINK_LIBRARIES)
  set(all)
  while(open)
    list(POP_FRONT open library)
    if(TARGET ${library} AND NOT library IN_LIST all)
      list(APPEND all ${library})
      get_target_property(handed_on ${library} INTERFACE_LINK_LIBRARIES)
      if(handed_on)
        list(APPEND open ${handed_on})
      endif()
    endif()
  endwhile()
  set(${found} ${all} PARENT_SCOPE)
endfunction()

# Sets reach_<room> to the rooms whose headers each room may include, and rooms to the rooms.
function(find_reach targets)
  foreach(target ${targets})
    room_of(${target} room)
    if(NOT room)
      continue()
    endif()
    list(APPEND rooms ${room})
    libraries_of(${target} libraries)
    foreach(library ${libraries})
      room_of(${library} other)
      list(APPEND reach_${room} ${other})
    endforeach()
    list(REMOVE_ITEM reach_${room} ${room})
    list(REMOVE_DUPLICATES reach_${room})
  endforeach()
  list(REMOVE_DUPLICATES rooms)
  set(rooms ${rooms} PARENT_SCOPE)
  foreach(room ${rooms})
    set(reach_${room} ${reach_${room}} PARENT_SCOPE)
  endforeach()
endfunction()

# Holds the sources' includes against the links before anything of the host is compiled.
function(check_rooms)
  targets_below(${host_folder} targets)
  find_reach("${targets}")
  foreach(room ${rooms})
    foreach(other ${reach_${room}})
      if(room IN_LIST reach_${other})
        message(FATAL_ERROR "host/${room} and host/${other} link each other")
      endif()
    endforeach()
    list(JOIN reach_${room} " " reach)
    string(APPEND table "${room}: ${reach}\n")
  endforeach()

  set(table_file ${CMAKE_CURRENT_BINARY_DIR}/rooms.txt)
  file(CONFIGURE OUTPUT ${table_file} CONTENT "${table}" @ONLY)
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${host_folder}/*.h ${host_folder}/*.cpp)
  set(stamp ${CMAKE_CURRENT_BINARY_DIR}/rooms.checked)
  set(script ${host_folder}/check_rooms.cmake)
  add_custom_command(
    OUTPUT ${stamp}
    COMMAND ${CMAKE_COMMAND} -D TABLE=${table_file} -D HOST=${host_folder} -P ${script}
    COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
    DEPENDS ${sources} ${table_file} ${script}
    COMMENT "Checking the arrows between the host's rooms"
  )
  add_custom_target(host_rooms ALL DEPENDS ${stamp})
  foreach(target ${targets})
    add_dependencies(${target} host_rooms)
  endforeach()
endfunction()
