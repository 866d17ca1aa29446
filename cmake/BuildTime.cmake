# The build time is fixed when a build folder is configured first; SOURCE_DATE_EPOCH makes builds
# repeatable.
if(DEFINED ENV{SOURCE_DATE_EPOCH})
  set(KYR_BUILD_TIME "$ENV{SOURCE_DATE_EPOCH}" CACHE STRING "Build time in seconds since 1970" FORCE)
elseif(NOT DEFINED KYR_BUILD_TIME)
  string(TIMESTAMP now "%s" UTC)
  set(KYR_BUILD_TIME "${now}" CACHE STRING "Build time in seconds since 1970")
endif()
configure_file(${PROJECT_SOURCE_DIR}/cmake/BuildTime.h.in ${PROJECT_BINARY_DIR}/generated/BuildTime.h @ONLY)
