# rook_add_library(Name SOURCES ... LINK ...)  one static library per folder of src/
# rook_add_test(name SOURCES ... LINK ...)     one GoogleTest program, registered with ctest
include(GoogleTest)

add_library(RookOptions INTERFACE)
target_compile_options(RookOptions INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror
    $<$<COMPILE_LANG_AND_ID:CXX,GNU>:-Wno-error=maybe-uninitialized>)
target_compile_definitions(RookOptions INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING QT_NO_KEYWORDS QT_NO_FOREACH QT_STRICT_ITERATORS
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)

# The same sources give the same bytes, wherever and whenever they are built.
add_compile_options("$<$<CONFIG:Release>:-ffile-prefix-map=${PROJECT_SOURCE_DIR}/=;-Wdate-time>")
# What is shipped is hardened as Debian hardens all it builds (dpkg-buildflags, hardening=+all).
add_compile_definitions("$<$<CONFIG:Release>:_FORTIFY_SOURCE=2>")
add_compile_options("$<$<CONFIG:Release>:-fstack-protector-strong;-Wformat;-Werror=format-security>")
add_link_options("$<$<CONFIG:Release>:-pie>" "$<$<CONFIG:Release>:LINKER:-z,relro,-z,now>")

if(ROOK_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined
        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

if(ROOK_CLANG_TIDY)
    find_program(CLANG_TIDY_PROGRAM clang-tidy REQUIRED)
    set(ROOK_CLANG_TIDY_COMMAND "${CLANG_TIDY_PROGRAM};--quiet")
endif()

function(rook_configure_target target)
    target_link_libraries(${target} PRIVATE RookOptions)
    if(ROOK_CLANG_TIDY)
        set_target_properties(${target} PROPERTIES CXX_CLANG_TIDY "${ROOK_CLANG_TIDY_COMMAND}")
    endif()
endfunction()

function(rook_add_library name)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "SOURCES;LINK;LINK_PRIVATE")
    add_library(Rook${name} STATIC ${ARG_SOURCES})
    target_include_directories(Rook${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
    target_link_libraries(Rook${name} PUBLIC ${ARG_LINK} PRIVATE ${ARG_LINK_PRIVATE})
    rook_configure_target(Rook${name})
endfunction()

function(rook_add_test name)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "SOURCES;LINK")
    add_executable(${name} ${ARG_SOURCES})
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
    target_link_libraries(${name} PRIVATE ${ARG_LINK} GTest::gtest GTest::gmock GTest::gtest_main)
    rook_configure_target(${name})
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 300 LABELS unit)
endfunction()
