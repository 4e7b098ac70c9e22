include(GoogleTest)
find_package(GTest REQUIRED)

# skelda_add_test(<name> SOURCES ... [LIBS ...] [LABELS ...] [ENV ...] [TIMEOUT s] [QT_MAIN])
# QT_MAIN: main() creates the QApplication, the translations and the string table first
# (tests/support/qt_main.cpp).
# One small test binary per unit; its cases are registered one by one with CTest.
# Qt always runs headless here.
function(skelda_add_test name)
  cmake_parse_arguments(T "QT_MAIN" "TIMEOUT" "SOURCES;LIBS;LABELS;ENV" ${ARGN})
  if(NOT T_TIMEOUT)
    set(T_TIMEOUT 120)
  endif()
  add_executable(${name} ${T_SOURCES})
  target_link_libraries(${name} PRIVATE skelda_flags skelda_test_support GTest::gtest GTest::gmock ${T_LIBS})
  if(T_QT_MAIN)
    target_link_libraries(${name} PRIVATE skelda_qt_test_main)
  else()
    target_link_libraries(${name} PRIVATE skelda_test_main)
  endif()
  set(_labels ${T_LABELS})
  if(NOT _labels)
    set(_labels unit)
  endif()
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT ${T_TIMEOUT})
  # gtest_discover_tests splits list-valued properties, so the environment and the labels
  # are set on the discovered cases by a file that CTest reads after the discovered list.
  set(_env QT_QPA_PLATFORM=offscreen SKELDA_TEST_BIN_DIR=${CMAKE_BINARY_DIR} ${T_ENV})
  set(_props ${CMAKE_CURRENT_BINARY_DIR}/${name}_properties.cmake)
  file(GENERATE OUTPUT ${_props} CONTENT
"if(DEFINED ${name}_TESTS)
  set_tests_properties(\${${name}_TESTS} PROPERTIES ENVIRONMENT \"${_env}\" LABELS \"${_labels}\")
endif()
")
  set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES ${_props})
endfunction()
