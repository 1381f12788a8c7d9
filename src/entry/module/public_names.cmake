# Writes a definition file with the exported names alone.
file(STRINGS ${IN} lines)
set(result "")
foreach(line IN LISTS lines)
  string(REGEX REPLACE " = [A-Za-z0-9]+" "" line "${line}")
  string(APPEND result "${line}\n")
endforeach()
string(REPLACE "LIBRARY ZXANALYSISDIALOGS" "LIBRARY ZXANALYSISDIALOGS.dll" result "${result}")
file(WRITE ${OUT} "${result}")
