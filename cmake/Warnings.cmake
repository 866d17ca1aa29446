# kyr_options: warnings, code generation and sanitizers for our own code.
add_library(kyr_options INTERFACE)
target_compile_options(kyr_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wcast-align -Wcast-qual -Wold-style-cast -Wundef
  -Wnon-virtual-dtor -Woverloaded-virtual)
# GCC 12 finds overlapping copies in `"text" + std::string` where there are none.
target_compile_options(kyr_options INTERFACE
  $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict>)
# Sources compiled as one see each other's local names, which is no fault.
if(CMAKE_UNITY_BUILD)
  target_compile_options(kyr_options INTERFACE -Wno-shadow -Wno-overloaded-virtual
    $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
endif()
if(KYR_WARNINGS_AS_ERRORS)
  target_compile_options(kyr_options INTERFACE -Werror)
endif()

# Nobody replaces functions of libkyr from outside, so calls within it may be inlined.
target_compile_options(kyr_options INTERFACE -fno-semantic-interposition)
# A library with unique symbols is never unloaded; the plug-in must be.
target_compile_options(kyr_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique>)

if(KYR_SANITIZE)
  target_compile_options(kyr_options INTERFACE -fsanitize=${KYR_SANITIZE} -fno-sanitize-recover=all
    -fno-omit-frame-pointer)
  target_link_options(kyr_options INTERFACE -fsanitize=${KYR_SANITIZE})
else()
  # Sanitizer runtimes may leave symbols open until load time; nothing else may.
  target_link_options(kyr_options INTERFACE
    $<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,SHARED_LIBRARY>:LINKER:--no-undefined>)
endif()

# Threads count too. Branches by which an exception leaves are left out of the report.
if(KYR_COVERAGE)
  target_compile_options(kyr_options INTERFACE --coverage -fprofile-update=atomic)
  target_link_options(kyr_options INTERFACE --coverage)
endif()
