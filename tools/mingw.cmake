# Builds for Windows with Debian's mingw-w64 compilers, the flavour with the standard library's threads.
# TARNVALE_PROCESSOR: i686 makes PE32, x86_64 PE32+.
set(TARNVALE_PROCESSOR x86_64 CACHE STRING "Processor to build for: i686 or x86_64")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES TARNVALE_PROCESSOR)

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR ${TARNVALE_PROCESSOR})
set(CMAKE_C_COMPILER ${TARNVALE_PROCESSOR}-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER ${TARNVALE_PROCESSOR}-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER ${TARNVALE_PROCESSOR}-w64-mingw32-windres)
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/in_wine ${TARNVALE_PROCESSOR})

# Nothing but the system's own libraries is needed at run time, and every link gives the same bytes.
set(links "-static -Wl,--no-insert-timestamp -Wl,--disable-auto-image-base")
set(CMAKE_EXE_LINKER_FLAGS_INIT ${links})
set(CMAKE_MODULE_LINKER_FLAGS_INIT ${links})
if(TARNVALE_PROCESSOR STREQUAL i686)
  # Doubles as on every other system, to the bit; and hosts whose stack stands at any multiple of four.
  set(flags "-msse2 -mfpmath=sse -mstackrealign")
endif()
set(CMAKE_C_FLAGS_INIT ${flags})
set(CMAKE_CXX_FLAGS_INIT ${flags})

set(CMAKE_FIND_ROOT_PATH /usr/${TARNVALE_PROCESSOR}-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
foreach(kind LIBRARY INCLUDE PACKAGE)
  set(CMAKE_FIND_ROOT_PATH_MODE_${kind} ONLY)
endforeach()
