# Flags that every target of the project is built with: the language, warnings, hardening, sanitizers.
add_library(rqm5_flags INTERFACE)
target_compile_features(rqm5_flags INTERFACE cxx_std_20)
target_include_directories(rqm5_flags INTERFACE ${CMAKE_SOURCE_DIR}/src)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
# Without this, programs are compiled position independent but not linked so.
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
set(CMAKE_AUTORCC_OPTIONS --format-version 1)

if(MSVC)
  target_compile_options(rqm5_flags INTERFACE /W4 /utf-8 /permissive- /Zc:__cplusplus)
  target_compile_definitions(rqm5_flags INTERFACE _CRT_SECURE_NO_WARNINGS)
else()
  target_compile_options(rqm5_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wformat
    -Werror=format-security -fstack-protector-strong)
  # Programs name neither the folder of the sources nor that of the build, nor the time: two builds give the same
  # bytes wherever they are made.
  target_compile_options(rqm5_flags INTERFACE
    -ffile-prefix-map=${CMAKE_SOURCE_DIR}=. -ffile-prefix-map=${CMAKE_BINARY_DIR}=build)
endif()
if(WIN32)
  # The system's headers would define min and max, and much that nobody uses here.
  target_compile_definitions(rqm5_flags INTERFACE NOMINMAX WIN32_LEAN_AND_MEAN UNICODE _UNICODE)
endif()
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
elseif(NOT MSVC)
  # Fortified library calls need optimisation and do not go together with the address sanitizer.
  target_compile_options(rqm5_flags INTERFACE
    $<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE> $<$<NOT:$<CONFIG:Debug>>:-D_FORTIFY_SOURCE=2>)
  target_compile_definitions(rqm5_flags INTERFACE _GLIBCXX_ASSERTIONS)
endif()

# Headers are most of what a file costs to compile; read once for a whole target or several, they halve the time of a
# build. rqm5_precompile(TARGET HEADER...) or rqm5_precompile(TARGET REUSE_FROM OTHER-TARGET)
function(rqm5_precompile target)
  if(NOT RQM5_PRECOMPILE_HEADERS)
    return()
  endif()
  if("REUSE_FROM" IN_LIST ARGN)
    target_precompile_headers(${target} ${ARGN})
  else()
    target_precompile_headers(${target} PRIVATE ${ARGN})
  endif()
endfunction()

# Calls that Qt itself advises against do not compile: up to the oldest Qt that is supported, and with a newer one
# up to the newest that the code was gone through for.
function(rqm5_refuse_deprecated_calls target)
  set(newest 6.11.0)
  if(Qt6_VERSION VERSION_LESS 6.5)
    set(name QT_DISABLE_DEPRECATED_BEFORE)
    set(version 6.4.0)
  else()
    set(name QT_DISABLE_DEPRECATED_UP_TO)
    set(version ${Qt6_VERSION})
    if(version VERSION_GREATER newest)
      set(version ${newest})
    endif()
  endif()
  string(REPLACE "." ";" numbers ${version})
  list(GET numbers 1 minor)
  math(EXPR value "0x060000 + ${minor} * 0x100" OUTPUT_FORMAT HEXADECIMAL)
  target_compile_definitions(${target} PUBLIC ${name}=${value})
endfunction()
