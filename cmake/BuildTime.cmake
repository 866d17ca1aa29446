# The build time is fixed at configure time; SOURCE_DATE_EPOCH makes builds repeatable.
if(DEFINED ENV{SOURCE_DATE_EPOCH})
  set(KYR_BUILD_TIME "$ENV{SOURCE_DATE_EPOCH}")
else()
  string(TIMESTAMP KYR_BUILD_TIME "%s" UTC)
endif()
set(KYR_BUILD_TIME "${KYR_BUILD_TIME}" CACHE STRING "Build time in seconds since 1970")
configure_file(${PROJECT_SOURCE_DIR}/cmake/BuildTime.h.in ${PROJECT_BINARY_DIR}/generated/BuildTime.h @ONLY)
