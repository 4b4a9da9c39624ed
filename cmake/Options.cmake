# tw_options: what every target of ours compiles with. Toolchain conveniences (ccache, a fast linker) are switched on
# when the machine has them and are never required.

option(TW_WARNINGS_AS_ERRORS "Treat compiler warnings as errors" OFF)
set(TW_SANITIZERS "" CACHE STRING "Comma-separated sanitizers, for example address,undefined")

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
# Generated sources need nothing that is built: so checks that want only them stay quick.
set(CMAKE_GLOBAL_AUTOGEN_TARGET ON)
set(CMAKE_AUTOGEN_ORIGIN_DEPENDS OFF)

add_library(tw_options INTERFACE)
target_compile_features(tw_options INTERFACE cxx_std_20)
target_compile_options(tw_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
target_compile_definitions(
    tw_options
    INTERFACE QT_NO_CAST_FROM_ASCII
              QT_NO_CAST_TO_ASCII
              QT_NO_CONTEXTLESS_CONNECT
              QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
              QT_NO_FOREACH
)
if(TW_WARNINGS_AS_ERRORS)
    target_compile_options(tw_options INTERFACE -Werror)
endif()

if(TW_SANITIZERS)
    add_compile_options(-fsanitize=${TW_SANITIZERS} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${TW_SANITIZERS})
endif()

find_program(TW_CCACHE ccache)
if(TW_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # With these, the cache also works for sources compiled against a precompiled header.
    set(CMAKE_CXX_COMPILER_LAUNCHER env CCACHE_SLOPPINESS=pch_defines,time_macros ${TW_CCACHE})
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND NOT CMAKE_DISABLE_PRECOMPILE_HEADERS)
        add_compile_options(-fpch-preprocess)
    endif()
endif()

if(NOT CMAKE_EXE_LINKER_FLAGS MATCHES "-fuse-ld")
    find_program(TW_MOLD mold)
    find_program(TW_LLD ld.lld)
    if(TW_MOLD)
        add_link_options(-fuse-ld=mold)
    elseif(TW_LLD)
        add_link_options(-fuse-ld=lld)
    endif()
endif()
