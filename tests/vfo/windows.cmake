if(RQM5_BUILD_WINDOW)
  rqm5_add_tests(test_vfo_windows LIBRARIES rqm5_windows Qt6::Test SOURCES
    ../app/main.cpp vfo_table_test.cpp)
endif()
