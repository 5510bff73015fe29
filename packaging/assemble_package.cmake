# Lays out the plugin package in a staging folder and zips it.
#   -DOUTPUT=BigNumberZQT.xojo_plugin -DSTAGE=folder -DPLUGIN_NAME=BigNumberZQT
#   -DLIBRARIES="Platform folder=library file|..." -DHELP_DIR=folder of HTML pages
file(REMOVE_RECURSE ${STAGE})
set(top ${STAGE}/${PLUGIN_NAME})
string(REPLACE "|" ";" libraries "${LIBRARIES}")
foreach(entry IN LISTS libraries)
  string(FIND "${entry}" "=" split)
  string(SUBSTRING "${entry}" 0 ${split} folder)
  math(EXPR after "${split} + 1")
  string(SUBSTRING "${entry}" ${after} -1 library)
  if(NOT EXISTS ${library})
    message(FATAL_ERROR "the library for '${folder}' is missing: ${library}")
  endif()
  file(COPY ${library} DESTINATION "${top}/Build Resources/${folder}")
endforeach()
file(COPY ${HELP_DIR}/ DESTINATION "${top}/IDE Resources/Help")
file(REMOVE ${OUTPUT})
execute_process(COMMAND ${CMAKE_COMMAND} -E tar cf ${OUTPUT} --format=zip ${PLUGIN_NAME}
                WORKING_DIRECTORY ${STAGE} RESULT_VARIABLE code)
if(NOT code EQUAL 0)
  message(FATAL_ERROR "zipping the package failed")
endif()
