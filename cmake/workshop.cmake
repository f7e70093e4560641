# Drawing the pictures and making the sounds takes as long as compiling. A tree that names a workshop has
# them made there, from the same sources, and links to them: both are made once, whoever asks first.
if(TARNVALE_WORKSHOP)
  if(NOT EXISTS ${TARNVALE_WORKSHOP}/build.ninja)
    execute_process(
      COMMAND ${CMAKE_COMMAND} -S ${CMAKE_SOURCE_DIR} --preset release -B ${TARNVALE_WORKSHOP}
      COMMAND_ERROR_IS_FATAL ANY)
  endif()
  # Asked with every build; the workshop knows what is up to date.
  add_custom_target(workshop ALL
    COMMAND ${CMAKE_COMMAND} --build ${TARNVALE_WORKSHOP} --target pictures sounds
    BYPRODUCTS ${TARNVALE_WORKSHOP}/resources/panelres.bin ${TARNVALE_WORKSHOP}/resources/panelres.res
    COMMENT "Asking the workshop for pictures and sounds")
endif()

# link_to_workshop(place): what lies at that place of this tree is the workshop's.
function(link_to_workshop place)
  cmake_path(GET place PARENT_PATH folder)
  file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/${folder})
  file(CREATE_LINK ${TARNVALE_WORKSHOP}/${place} ${CMAKE_BINARY_DIR}/${place} SYMBOLIC)
endfunction()
