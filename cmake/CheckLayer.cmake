# Asks the preprocessor which headers a layer's include path reaches: all of OWN, none of ABOVE.
#   cmake -DCOMPILER=... -DINCLUDES=... -DOWN=... -DABOVE=... -P CheckLayer.cmake

set(path)
foreach(folder IN LISTS INCLUDES)
  list(APPEND path -I${folder})
endforeach()

set(question)
foreach(header IN LISTS OWN)
  string(APPEND question "#if !__has_include(<zor/${header}>)\n#error \"${header} is out of reach\"\n#endif\n")
endforeach()
foreach(header IN LISTS ABOVE)
  string(APPEND question "#if __has_include(<zor/${header}>)\n#error \"${header} is of a layer above\"\n#endif\n")
endforeach()
if(NOT OWN)
  message(FATAL_ERROR "a layer without headers")
endif()

string(RANDOM LENGTH 12 unique)
set(file ${CMAKE_CURRENT_BINARY_DIR}/layer_${unique}.cpp)
file(WRITE ${file} "${question}")
execute_process(COMMAND ${COMPILER} -E -o /dev/null ${path} ${file} RESULT_VARIABLE result ERROR_VARIABLE said)
file(REMOVE ${file})
if(NOT result EQUAL 0)
  message(FATAL_ERROR "${said}")
endif()
