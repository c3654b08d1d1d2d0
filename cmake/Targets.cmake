# The folders of src/ in their order: each may use only those ahead of it. tools/check-layers holds the same list
# against the includes.
#
#   vidora_folder(NAME [LINK library...])   one static library out of all sources of the present folder
#   vidora_tests(NAME [LINK library...])    one GoogleTest executable out of all sources of the present folder
set(VIDORA_PRECOMPILED <algorithm> <chrono> <cstdint> <functional> <memory> <mutex> <optional> <set> <string>
    <unordered_map> <utility> <vector> <QByteArray> <QString> <QStringList> <QStringView>)

function(vidora_target_defaults target)
    target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${target} PRIVATE vidora_warnings)
    # For one or two sources of its own a target is built faster without.
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "\\.cpp$")
    list(LENGTH sources count)
    if(count GREATER 3)
        target_precompile_headers(${target} PRIVATE ${VIDORA_PRECOMPILED})
    endif()
endfunction()

function(vidora_folder name)
    cmake_parse_arguments(ARG "" "" "LINK" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
    add_library(vidora_${name} STATIC ${sources})
    set_target_properties(vidora_${name} PROPERTIES LINKER_LANGUAGE CXX)
    target_link_libraries(vidora_${name} PUBLIC ${ARG_LINK})
    vidora_target_defaults(vidora_${name})
endfunction()

function(vidora_tests name)
    cmake_parse_arguments(ARG "" "" "LINK" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
    add_executable(${name}_tests ${sources} ${PROJECT_SOURCE_DIR}/tests/support/TestMain.cpp)
    target_include_directories(${name}_tests PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_compile_definitions(${name}_tests PRIVATE
        VIDORA_TEST_DATA="${CMAKE_CURRENT_SOURCE_DIR}" VIDORA_RESOURCES="${PROJECT_SOURCE_DIR}/resources")
    target_link_libraries(${name}_tests PRIVATE ${ARG_LINK} GTest::gtest GTest::gmock)
    target_compile_options(${name}_tests PRIVATE -O1) # a test runs once; what it tests is built as it is given away
    vidora_target_defaults(${name}_tests)
    add_test(NAME ${name} COMMAND ${name}_tests)
    set_tests_properties(${name} PROPERTIES TIMEOUT 300)
endfunction()
