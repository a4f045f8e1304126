# The floors of the house. A floor is a folder of src/ and one static library. Its headers are included as
# "floor/header.h", and they are found only by those that link the floor: an arrow the wrong way does not compile.

add_library(qinghe_flags INTERFACE)
target_compile_options(qinghe_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast -Wnon-virtual-dtor
    -Woverloaded-virtual -Wcast-qual -Wformat=2 -Wimplicit-fallthrough -Wnull-dereference
    $<$<BOOL:${QINGHE_DEVELOP}>:-Werror>)
# What ships is hardened as the system's own packages are (their flags, "hardening=+all"), and its library checks what it
# is handed.
if(NOT QINGHE_SANITIZE)
    target_compile_options(qinghe_flags INTERFACE "$<$<CONFIG:Release>:-fstack-protector-strong;-D_FORTIFY_SOURCE=2>")
    target_compile_definitions(qinghe_flags INTERFACE $<$<CONFIG:Release>:_GLIBCXX_ASSERTIONS>)
    target_link_options(qinghe_flags INTERFACE "$<$<CONFIG:Release>:LINKER:-z,relro,-z,now>")
endif()
target_compile_definitions(qinghe_flags INTERFACE
    QT_NO_CAST_TO_ASCII QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_NO_FOREACH QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(QINGHE_SANITIZE)
    # Under the sanitizers the compiler takes moved values for uninitialised ones.
    target_compile_options(qinghe_flags INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
        -fno-omit-frame-pointer -Wno-maybe-uninitialized)
    target_link_options(qinghe_flags INTERFACE -fsanitize=address,undefined)
endif()

# qinghe_precompile(<target> <header>...) compiles headers of the libraries once, for this target and for those that say
# qinghe_precompiled_like(<target> <the first>). Only where QINGHE_PRECOMPILE asks for it: the builds without it prove that
# every file includes what it uses. No header of a floor is among them, so no way upward opens.
function(qinghe_precompile target)
    if(QINGHE_PRECOMPILE)
        target_precompile_headers(${target} PRIVATE ${ARGN})
    endif()
endfunction()
function(qinghe_precompiled_like target first)
    if(QINGHE_PRECOMPILE)
        target_precompile_headers(${target} REUSE_FROM ${first})
    endif()
endfunction()

# AUTOMOC looks again only at the files that it knew: lets it start afresh when the list of a target's files has changed.
function(qinghe_notice_new_files target files)
    set(known ${CMAKE_CURRENT_BINARY_DIR}/${target}_files.txt)
    set(before "")
    if(EXISTS ${known})
        file(READ ${known} before)
    endif()
    if(NOT before STREQUAL "${files}")
        file(REMOVE ${CMAKE_CURRENT_BINARY_DIR}/${target}_autogen/timestamp)
        file(WRITE ${known} "${files}")
    endif()
endfunction()

# qinghe_floor(<name> [<library>...] [FOLDER <folder>]) makes the floor of the sources in the calling folder, and in the
# folder below it that is named; it may use the libraries named, and what they hand on.
function(qinghe_floor name)
    cmake_parse_arguments(PARSE_ARGV 1 floor "" FOLDER "")
    file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
    if(floor_FOLDER)
        file(GLOB more CONFIGURE_DEPENDS ${floor_FOLDER}/*.cpp)
        if(NOT more)
            message(FATAL_ERROR "src/${name} has no folder ${floor_FOLDER}: see 'another system' in docs/architecture.md")
        endif()
        list(APPEND sources ${more})
    endif()
    add_library(${name} STATIC ${sources})
    qinghe_notice_new_files(${name} "${sources}")
    set(headers ${CMAKE_BINARY_DIR}/floors/${name})
    file(MAKE_DIRECTORY ${headers})
    file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${headers}/${name} SYMBOLIC)
    target_include_directories(${name} PUBLIC ${headers})
    target_link_libraries(${name} PUBLIC ${floor_UNPARSED_ARGUMENTS} PRIVATE qinghe_flags)
    # platform is the lowest floor with widgets.
    if(name STREQUAL "platform")
        qinghe_precompile(platform <QtWidgets> <algorithm> <array> <cmath> <functional> <map> <memory> <optional>
            <span> <string> <utility> <variant> <vector>)
    elseif(TARGET platform)
        qinghe_precompiled_like(${name} platform)
    endif()
endfunction()

# qinghe_module(<name> <folder> <library>...) makes a module of the sources in a folder: a part that is loaded only when it
# is first needed. It lies beside the program; programs of other folders find it beside themselves as well.
function(qinghe_module name folder)
    file(GLOB sources CONFIGURE_DEPENDS ${folder}/*.cpp ${folder}/*.h)
    add_library(${name} MODULE ${sources})
    target_link_libraries(${name} PRIVATE ${ARGN} qinghe_flags)
    set_target_properties(${name} PROPERTIES PREFIX "" LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/app)
    foreach(beside tests benchmarks)
        file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/${beside})
        file(CREATE_LINK ../app/${name}.so ${CMAKE_BINARY_DIR}/${beside}/${name}.so SYMBOLIC)
    endforeach()
endfunction()
