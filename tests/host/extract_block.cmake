# Writes the first block of a language in a document to a file.
#   cmake -DIN=document.md -DLANGUAGE=cpp -DOUT=file -P extract_block.cmake
file(READ ${IN} text)
string(FIND "${text}" "```${LANGUAGE}\n" begin)
if(begin EQUAL -1)
  message(FATAL_ERROR "${IN} has no block of ${LANGUAGE}")
endif()
string(SUBSTRING "${text}" ${begin} -1 text)
string(FIND "${text}" "\n" line)
math(EXPR line "${line} + 1")
string(SUBSTRING "${text}" ${line} -1 text)
string(FIND "${text}" "```" end)
string(SUBSTRING "${text}" 0 ${end} text)
file(CONFIGURE OUTPUT ${OUT} CONTENT "${text}" @ONLY)
