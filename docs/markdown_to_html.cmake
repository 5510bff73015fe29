# One documentation page from Markdown to HTML with cmark-gfm (tables, raw anchors),
# links to other pages turned from .md to .html, set in the page template.
#   cmake -DCMARK_GFM=... -DINPUT=page.md -DOUTPUT=page.html -DTEMPLATE=page.html -P markdown_to_html.cmake
file(READ ${INPUT} markdown)
string(REGEX REPLACE "\\]\\(([A-Za-z0-9_-]+)\\.md" "](\\1.html" markdown "${markdown}")
string(REGEX MATCH "^# ([^\n]*)" heading "${markdown}")
set(title "${CMAKE_MATCH_1}")
get_filename_component(out_dir ${OUTPUT} DIRECTORY)
file(MAKE_DIRECTORY ${out_dir})
set(linked ${OUTPUT}.md)
file(WRITE ${linked} "${markdown}")
execute_process(COMMAND ${CMARK_GFM} --unsafe --extension table ${linked}
                OUTPUT_VARIABLE body RESULT_VARIABLE code)
file(REMOVE ${linked})
if(NOT code EQUAL 0)
  message(FATAL_ERROR "cmark-gfm failed on ${INPUT}")
endif()
file(READ ${TEMPLATE} page)
string(REPLACE "{{title}}" "${title}" page "${page}")
string(REPLACE "{{body}}" "${body}" page "${page}")
file(WRITE ${OUTPUT} "${page}")
