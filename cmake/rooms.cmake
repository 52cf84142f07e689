# A room is a folder of sources that becomes one static library. What it may use is what it links:
# a room of rules links Qt6::Core alone, a room of screens links Qt6::Widgets through platform_screen.

# Two precompiled headers serve all rooms: one without widgets, one with.
file(WRITE ${CMAKE_BINARY_DIR}/pch_core.cpp "")
add_library(pch_core OBJECT ${CMAKE_BINARY_DIR}/pch_core.cpp)
target_link_libraries(pch_core PUBLIC Qt6::Core)
target_precompile_headers(pch_core PRIVATE <QtCore/QString> <QtCore/QStringList> <QtCore/QDate>
  <QtCore/QHash> <QtCore/QVector> <QtCore/QObject> <algorithm> <array> <functional> <memory> <optional>
  <span> <string> <string_view> <variant> <vector>)

file(WRITE ${CMAKE_BINARY_DIR}/pch_widgets.cpp "")
add_library(pch_widgets OBJECT ${CMAKE_BINARY_DIR}/pch_widgets.cpp)
target_link_libraries(pch_widgets PUBLIC Qt6::Core Qt6::Gui Qt6::Widgets)
target_precompile_headers(pch_widgets PRIVATE <QtWidgets/QtWidgets> <algorithm> <array> <functional>
  <memory> <optional> <span> <string> <string_view> <variant> <vector>)

# room(NAME [WIDGETS] [FOLDER dir] LINKS lib...): all .cpp files directly in the folder.
function(room NAME)
  cmake_parse_arguments(ROOM "WIDGETS" "FOLDER" "LINKS" ${ARGN})
  if(NOT ROOM_FOLDER)
    set(ROOM_FOLDER .)
  endif()
  file(GLOB sources CONFIGURE_DEPENDS ${ROOM_FOLDER}/*.cpp ${ROOM_FOLDER}/*.h)
  if(NOT sources MATCHES "\\.cpp")
    file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/${NAME}_empty.cpp "")
    list(APPEND sources ${CMAKE_CURRENT_BINARY_DIR}/${NAME}_empty.cpp)
  endif()
  add_library(${NAME} STATIC ${sources})
  target_include_directories(${NAME} PUBLIC ${CMAKE_SOURCE_DIR})
  target_link_libraries(${NAME} PUBLIC Qt6::Core ${ROOM_LINKS})
  if(ROOM_WIDGETS)
    target_link_libraries(${NAME} PUBLIC Qt6::Gui Qt6::Widgets)
    set_target_properties(${NAME} PROPERTIES AUTOMOC ON)
    target_precompile_headers(${NAME} REUSE_FROM pch_widgets)
  else()
    target_precompile_headers(${NAME} REUSE_FROM pch_core)
  endif()
endfunction()

# room_tests(NAME [WIDGETS] [FOLDER dir] [LABEL quick|full] LINKS lib...): every *_test.cpp of the
# folder in one GoogleTest program; nothing in a build without tests. WIDGETS: runs with an offscreen QApplication.
function(room_tests NAME)
  if(NOT BUILD_TESTING)
    return()
  endif()
  cmake_parse_arguments(ROOM "WIDGETS" "FOLDER;LABEL" "LINKS" ${ARGN})
  if(NOT ROOM_FOLDER)
    set(ROOM_FOLDER tests)
  endif()
  if(NOT ROOM_LABEL)
    set(ROOM_LABEL quick)
  endif()
  file(GLOB sources CONFIGURE_DEPENDS ${ROOM_FOLDER}/*.cpp)
  if(NOT sources)
    return()
  endif()
  if(ROOM_WIDGETS)
    list(APPEND sources ${CMAKE_SOURCE_DIR}/cmake/widget_test_main.cpp)
  endif()
  add_executable(${NAME} ${sources})
  target_include_directories(${NAME} PRIVATE ${CMAKE_SOURCE_DIR})
  target_compile_definitions(${NAME} PRIVATE SOURCE_FOLDER="${CMAKE_SOURCE_DIR}")
  target_link_libraries(${NAME} PRIVATE ${ROOM_LINKS} GTest::gtest GTest::gmock)
  if(ROOM_WIDGETS)
    target_link_libraries(${NAME} PRIVATE Qt6::Widgets Qt6::Test)
  else()
    target_link_libraries(${NAME} PRIVATE Qt6::Core GTest::gtest_main)
  endif()
  add_test(NAME ${NAME} COMMAND ${NAME})
  set_tests_properties(${NAME} PROPERTIES LABELS ${ROOM_LABEL}
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LANG=C.UTF-8;TZ=Asia/Tokyo;SPEECHD_ADDRESS=unix_socket:/nonexistent/speech;CUPS_SERVER=/nonexistent/cups")
endfunction()
