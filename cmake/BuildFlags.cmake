# Flags that every target of the project is built with: the language, warnings, hardening, sanitizers.
add_library(rqm5_flags INTERFACE)
target_compile_features(rqm5_flags INTERFACE cxx_std_20)
target_include_directories(rqm5_flags INTERFACE ${CMAKE_SOURCE_DIR}/src)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
# Without this, programs are compiled position independent but not linked so.
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)

target_compile_options(rqm5_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wformat
  -Werror=format-security -fstack-protector-strong)
# Programs name neither the folder of the sources nor that of the build, nor the time: two builds give the same
# bytes wherever they are made.
target_compile_options(rqm5_flags INTERFACE
  -ffile-prefix-map=${CMAKE_SOURCE_DIR}=. -ffile-prefix-map=${CMAKE_BINARY_DIR}=build)
set(CMAKE_AUTORCC_OPTIONS --format-version 1)

if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_SYSTEM_NAME STREQUAL "Linux")
  target_compile_options(rqm5_flags INTERFACE -fstack-clash-protection)
endif()
if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
  target_link_options(rqm5_flags INTERFACE -Wl,-z,relro,-z,now)
endif()

if(RQM5_BUILD_FUZZ)
  # The fuzzer needs its counters in all code that it is to explore. Tracing comparisons as well would
  # halve the speed; dictionaries give it the words that matter.
  if(NOT RQM5_SANITIZE)
    set(RQM5_SANITIZE "address,undefined")
  endif()
  target_compile_options(rqm5_flags INTERFACE -fsanitize-coverage=inline-8bit-counters,pc-table)
endif()
if(RQM5_SANITIZE)
  target_compile_options(rqm5_flags INTERFACE -fsanitize=${RQM5_SANITIZE} -fno-omit-frame-pointer
                                              -fno-sanitize-recover=all)
  target_link_options(rqm5_flags INTERFACE -fsanitize=${RQM5_SANITIZE})
else()
  # Fortified library calls need optimisation and do not go together with the address sanitizer.
  target_compile_options(rqm5_flags INTERFACE
    $<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE> $<$<NOT:$<CONFIG:Debug>>:-D_FORTIFY_SOURCE=2>)
  target_compile_definitions(rqm5_flags INTERFACE _GLIBCXX_ASSERTIONS)
endif()
