# Windows programs of the tests run in a Wine of this tree's own, with the sound captured in a file.
set(BUILD_GMOCK OFF)
set(INSTALL_GTEST OFF)
add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
target_compile_options(gtest PRIVATE -O0)

set(wine_prefix ${CMAKE_BINARY_DIR}/wine)
set(captured_sound ${CMAKE_BINARY_DIR}/captured.wav)
set(sound_configuration ${CMAKE_BINARY_DIR}/sound.conf)
configure_file(${CMAKE_CURRENT_LIST_DIR}/sound.conf.in ${sound_configuration} @ONLY)

# Where there is no Wine for this processor every test is skipped, and what only it would run is not built.
execute_process(COMMAND ${CMAKE_CROSSCOMPILING_EMULATOR} --there RESULT_VARIABLE missing OUTPUT_VARIABLE why)
set(WITHOUT_WINE OFF)
if(missing)
  set(WITHOUT_WINE ON)
  message(STATUS "${why}")
endif()

function(in_wine name)
  set_tests_properties(${name} PROPERTIES
    ENVIRONMENT "WINEPREFIX=${wine_prefix};ALSA_CONFIG_PATH=${sound_configuration}"
    SKIP_RETURN_CODE 77
    TIMEOUT 300)
endfunction()

# wine_test(name program arguments...): a program of this tree, run in that Wine.
function(wine_test name)
  add_test(NAME ${name} COMMAND ${ARGN})
  in_wine(${name})
  set_tests_properties(${name} PROPERTIES FIXTURES_REQUIRED wine)
endfunction()

add_test(NAME wine_starts COMMAND ${CMAKE_CROSSCOMPILING_EMULATOR} --start)
add_test(NAME wine_ends COMMAND ${CMAKE_CROSSCOMPILING_EMULATOR} --stop)
in_wine(wine_starts)
in_wine(wine_ends)
set_tests_properties(wine_starts PROPERTIES FIXTURES_SETUP wine)
set_tests_properties(wine_ends PROPERTIES FIXTURES_CLEANUP wine)
