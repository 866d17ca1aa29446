# KYR_PYTHON: the first interpreter that has the module jsonschema, which Debian packages for its own
# interpreter and not for others that may come first on the path.
if(NOT KYR_PYTHON)
  foreach(candidate /usr/bin/python3 python3)
    execute_process(COMMAND ${candidate} -c "import jsonschema"
      RESULT_VARIABLE failed OUTPUT_QUIET ERROR_QUIET)
    if(NOT failed)
      set(KYR_PYTHON ${candidate} CACHE FILEPATH "Python interpreter with the module jsonschema")
      break()
    endif()
  endforeach()
endif()
if(NOT KYR_PYTHON)
  message(FATAL_ERROR "The tests need a python3 with the module jsonschema: scripts/install-deps.sh test")
endif()

# kyr_python_test(NAME SCRIPT ARGUMENT...): a ctest test that runs tests/<SCRIPT>. Scripts of programs
# that are not there are passed over. LABELS, TIMEOUT and other properties are set by the caller.
function(kyr_python_test name script)
  if(EXISTS ${PROJECT_SOURCE_DIR}/tests/${script})
    add_test(NAME ${name} COMMAND ${KYR_PYTHON} -B ${PROJECT_SOURCE_DIR}/tests/${script} ${ARGN})
    set_tests_properties(${name} PROPERTIES TIMEOUT 600)
  endif()
endfunction()
