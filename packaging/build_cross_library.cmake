# Builds the plugin library of one cross configuration: configures the preset's build
# folder when it has not been configured yet, then builds the plugin target alone.
#   cmake -DSOURCE_DIR=... -DPRESET=arm64 -P build_cross_library.cmake
if(NOT EXISTS ${BINARY_DIR}/CMakeCache.txt)
  execute_process(COMMAND ${CMAKE_COMMAND} --preset ${PRESET} WORKING_DIRECTORY ${SOURCE_DIR}
                  RESULT_VARIABLE code)
  if(NOT code EQUAL 0)
    message(FATAL_ERROR "configuring the ${PRESET} build failed (the cross toolchains come with scripts/deps.sh)")
  endif()
endif()
execute_process(COMMAND ${CMAKE_COMMAND} --build ${BINARY_DIR} --target BigNumberZQT RESULT_VARIABLE code)
if(NOT code EQUAL 0)
  message(FATAL_ERROR "building the plugin of the ${PRESET} build failed")
endif()
