# The GoogleTest of the system was built with the compiler's usual library. Another one, such as libc++, needs a
# GoogleTest built with it; Debian's package googletest has the sources.
set(RQM5_GOOGLETEST_SOURCE "" CACHE PATH "Folder of GoogleTest's sources, to build it with this compiler")
if(RQM5_GOOGLETEST_SOURCE)
  set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
  add_subdirectory(${RQM5_GOOGLETEST_SOURCE} ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
  foreach(library gtest gtest_main gmock gmock_main)
    if(NOT TARGET GTest::${library})
      add_library(GTest::${library} ALIAS ${library})
    endif()
    # Its headers are not this project's to warn about.
    get_target_property(headers ${library} INTERFACE_INCLUDE_DIRECTORIES)
    set_target_properties(${library} PROPERTIES INTERFACE_SYSTEM_INCLUDE_DIRECTORIES "${headers}")
  endforeach()
else()
  find_package(GTest REQUIRED)
endif()
