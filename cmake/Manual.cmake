# Manual pages and completions, made of the help of the finished command at each build.
find_package(Python3 COMPONENTS Interpreter REQUIRED)
set(manual_dir ${PROJECT_BINARY_DIR}/manual)
set(make_manual ${PROJECT_SOURCE_DIR}/scripts/make_manual.py)
add_custom_command(OUTPUT ${manual_dir}/fish/kyr.fish
  COMMAND ${Python3_EXECUTABLE} -B ${make_manual} $<TARGET_FILE:kyr_host> ${manual_dir}
  DEPENDS kyr_host ${make_manual} COMMENT "Making the manual pages and completions")
add_custom_target(kyr_manual ALL DEPENDS ${manual_dir}/fish/kyr.fish)

install(DIRECTORY ${manual_dir}/man1 DESTINATION ${CMAKE_INSTALL_MANDIR} COMPONENT command)
install(FILES ${manual_dir}/bash/kyr DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
  COMPONENT command)
install(FILES ${manual_dir}/zsh/_kyr DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions
  COMPONENT command)
install(FILES ${manual_dir}/fish/kyr.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d
  COMPONENT command)
