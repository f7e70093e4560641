# The module as Windows has it: two exports with ordinals, the bitmaps as resources. The workshop has drawn
# them.
set(drawn ${TARNVALE_WORKSHOP}/resources/panelres.res)
set(resources ${CMAKE_CURRENT_BINARY_DIR}/panelres.obj)
add_custom_command(
  OUTPUT ${resources}
  COMMAND ${CMAKE_RC_COMPILER} --input-format res --output-format coff ${drawn} ${resources}
  DEPENDS ${drawn}
  COMMENT "Taking over the bitmaps"
)

add_library(tarnvale_gau MODULE ${resources} ${CMAKE_CURRENT_SOURCE_DIR}/../module/exports.def)
set_source_files_properties(${resources} PROPERTIES EXTERNAL_OBJECT TRUE)
target_link_libraries(tarnvale_gau PRIVATE gauge_module winplatform)
target_link_options(tarnvale_gau PRIVATE -s)
set_target_properties(tarnvale_gau PROPERTIES
  LINKER_LANGUAGE CXX
  PREFIX ""
  OUTPUT_NAME Tarnvale
  SUFFIX .GAU
  LIBRARY_OUTPUT_DIRECTORY ${COCKPIT_DIR}
)
