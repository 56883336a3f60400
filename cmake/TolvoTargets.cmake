# How every target of Tolvo is made: warnings are errors under the presets, includes start at the top folder.

function(tolvo_settings target)
    target_include_directories(${target} PRIVATE ${CMAKE_SOURCE_DIR})
    target_compile_definitions(${target} PRIVATE QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_DISABLE_DEPRECATED_BEFORE=0x060400)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor)
    if(TOLVO_WERROR)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
    if(TOLVO_SANITIZE)
        target_compile_options(${target} PRIVATE -fsanitize=address,undefined -fno-sanitize-recover=undefined
                                                 # Qt's headers hand null with length 0 to memcmp.
                                                 -fno-sanitize=nonnull-attribute
                                                 -fno-omit-frame-pointer
                                                 # So that checks/unused_functions.py sees what nothing reaches.
                                                 -ffunction-sections)
        target_link_options(${target} PRIVATE -fsanitize=address,undefined -Wl,--gc-sections)
    endif()
endfunction()

# The headers that nearly every file of a kind includes are compiled once: "core", or "widgets" for what has windows. Every
# file still includes what it uses; the builds without precompiled headers find what is missing.
function(tolvo_precompiled kind)
    add_library(tolvo_precompiled_${kind} OBJECT ${CMAKE_SOURCE_DIR}/cmake/precompiled/${kind}.cpp)
    tolvo_settings(tolvo_precompiled_${kind})
    target_link_libraries(tolvo_precompiled_${kind} PRIVATE ${ARGN})
    target_precompile_headers(tolvo_precompiled_${kind} PRIVATE ${CMAKE_SOURCE_DIR}/cmake/precompiled/${kind}.h)
endfunction()

function(tolvo_reuse_precompiled target has_windows)
    # A precompiled header serves only those that generate code as it does: programs as libraries.
    if(TARGET tolvo_precompiled_core)
        target_compile_options(${target} PRIVATE -fPIC)
    endif()
    if(TARGET tolvo_precompiled_widgets AND ${has_windows})
        target_precompile_headers(${target} REUSE_FROM tolvo_precompiled_widgets)
    elseif(TARGET tolvo_precompiled_core)
        target_precompile_headers(${target} REUSE_FROM tolvo_precompiled_core)
    endif()
endfunction()

# tolvo_library(name [WIDGETS] [FOLDERS ...] [SOURCES ...] LINK ...): the library of a folder: its sources and those of
# the folders named, found by themselves. Only a folder with several targets lists its SOURCES. WIDGETS runs moc on it.
function(tolvo_library name)
    cmake_parse_arguments(ARG "WIDGETS" "" "FOLDERS;SOURCES;LINK" ${ARGN})
    if(NOT ARG_SOURCES)
        list(TRANSFORM ARG_FOLDERS APPEND /*.cpp)
        file(GLOB ARG_SOURCES CONFIGURE_DEPENDS *.cpp ${ARG_FOLDERS})
    endif()
    add_library(${name} STATIC ${ARG_SOURCES})
    set_target_properties(${name} PROPERTIES AUTOMOC ${ARG_WIDGETS})
    tolvo_settings(${name})
    tolvo_reuse_precompiled(${name} ${ARG_WIDGETS})
    target_link_libraries(${name} PUBLIC ${ARG_LINK})
endfunction()

# tolvo_program(name SOURCES ... LINK ...): an executable in bin/.
function(tolvo_program name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    tolvo_settings(${name})
    tolvo_reuse_precompiled(${name} OFF)
    target_link_libraries(${name} PRIVATE ${ARG_LINK})
endfunction()

# tolvo_test(name [WIDGETS] SOURCES ... LINK ...): one GoogleTest program, one line of ctest, begun by tests/main.cpp. Widget
# tests run offscreen. Every test gets an empty settings folder of its own; it never sees the user's.
function(tolvo_test name)
    cmake_parse_arguments(ARG "WIDGETS" "" "SOURCES;LINK" ${ARGN})
    add_executable(${name} ${CMAKE_SOURCE_DIR}/tests/main.cpp ${ARG_SOURCES})
    tolvo_settings(${name})
    tolvo_reuse_precompiled(${name} ${ARG_WIDGETS})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    target_link_libraries(${name} PRIVATE ${ARG_LINK} Qt6::Core GTest::gtest)
    if(ARG_WIDGETS)
        target_link_libraries(${name} PRIVATE Qt6::Widgets Qt6::Test)
    endif()
    add_test(NAME ${name} COMMAND ${name})
    set(home ${CMAKE_BINARY_DIR}/tests/home/${name})
    file(MAKE_DIRECTORY ${home})
    file(CHMOD ${home} PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE) # the toolkit wants a runtime folder of one's own
    set_tests_properties(${name} PROPERTIES TIMEOUT 300 ENVIRONMENT
        "LC_ALL=C.UTF-8;QT_QPA_PLATFORM=offscreen;XDG_CONFIG_HOME=${home};XDG_DATA_HOME=${home};XDG_RUNTIME_DIR=${home};LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/leaks_of_libraries.txt:print_suppressions=0;TOLVO_SOURCE=${CMAKE_SOURCE_DIR};TOLVO_BIN=${CMAKE_BINARY_DIR}/bin")
endfunction()
