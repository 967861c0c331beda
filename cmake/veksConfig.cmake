include(${CMAKE_CURRENT_LIST_DIR}/veksTargets.cmake)
