if(RQM5_BUILD_WINDOW)
  rqm5_add_tests(test_memory_windows LIBRARIES rqm5_windows Qt6::Test SOURCES
    ../app/main.cpp bank_page_test.cpp memory_page_test.cpp modify_dialog_test.cpp table_edit_test.cpp)
endif()
