# kyr_options: warnings and sanitizers for our own code.
add_library(kyr_options INTERFACE)
target_compile_options(kyr_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wcast-align -Wcast-qual -Wold-style-cast -Wundef
  -Wnon-virtual-dtor -Woverloaded-virtual)
if(KYR_WARNINGS_AS_ERRORS)
  target_compile_options(kyr_options INTERFACE -Werror)
endif()
if(KYR_SANITIZE)
  target_compile_options(kyr_options INTERFACE -fsanitize=${KYR_SANITIZE} -fno-sanitize-recover=all
    -fno-omit-frame-pointer)
  target_link_options(kyr_options INTERFACE -fsanitize=${KYR_SANITIZE})
endif()
