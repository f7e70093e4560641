add_library(host_gauge_run STATIC ${CMAKE_CURRENT_LIST_DIR}/gauge_run.cpp)
target_link_libraries(host_gauge_run PUBLIC project_options host_loader)
