cmake_minimum_required(VERSION 3.25)
# Writes a header that says which build this is: what git calls the commit, else the date.
find_program(git_program git)
set(build "")
if(git_program)
  execute_process(COMMAND ${git_program} describe --tags --always --dirty
                  WORKING_DIRECTORY ${SOURCE_DIR} OUTPUT_VARIABLE build
                  OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
endif()
if(NOT build)
  # Honours SOURCE_DATE_EPOCH, so that a package can be built again byte for byte.
  string(TIMESTAMP build "%Y-%m-%d" UTC)
endif()
file(CONFIGURE OUTPUT ${OUTPUT} CONTENT
"#pragma once

namespace rqm5 {

inline constexpr char kBuild[] = \"@build@\";

}  // namespace rqm5
" @ONLY)
