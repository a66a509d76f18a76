if(RQM5_BUILD_WINDOW)
  rqm5_add_tests(test_settings_windows LIBRARIES rqm5_windows Qt6::Test SOURCES
    ../app/main.cpp settings_pages_test.cpp)
endif()
