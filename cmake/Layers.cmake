# The layering of the system in one table: every target, and what it may link. A target that wants to link something that
# is not in its row does not configure, so that the layers stay what docs/ARCHITECTURE.md says they are.

set(TW_LAYER_tw_core Qt6::Core)
set(TW_LAYER_tw_platform Qt6::Core Qt6::Network)
set(TW_LAYER_tw_project tw_core Qt6::Core simdjson::simdjson)
set(TW_LAYER_tw_engines tw_core Qt6::Core PkgConfig::hunspell)
set(TW_LAYER_tw_exchange tw_core tw_engines tw_project Qt6::Core Qt6::Gui Qt6::Pdf)
set(TW_LAYER_tw_ai tw_core Qt6::Core Qt6::Network Qt6::Concurrent)
set(TW_LAYER_tw_tools tw_core tw_project tw_engines tw_exchange Qt6::Core)
set(TW_LAYER_tw_scripting tw_core tw_project Qt6::Core Qt6::Qml)
set(TW_LAYER_tw_desktop
    tw_core
    tw_platform
    tw_project
    tw_engines
    tw_exchange
    tw_ai
    tw_tools
    tw_scripting
    Qt6::Core
    Qt6::DBus
    Qt6::Gui
    Qt6::Network
    Qt6::Widgets
    Qt6::Svg
    Qt6::TextToSpeech
    ads::qtadvanceddocking
    xcb
)
set(TW_LAYER_vellory tw_desktop)
set(TW_LAYER_tw_companion tw_core tw_project tw_tools Qt6::Core)
set(TW_LAYER_vellory-mcp tw_companion Qt6::Core)

# Fails when `target` is to link a library outside its row.
function(tw_check_links target)
    if(NOT DEFINED TW_LAYER_${target})
        message(FATAL_ERROR "${target} has no row in cmake/Layers.cmake")
    endif()
    foreach(link IN LISTS ARGN)
        if(NOT link IN_LIST TW_LAYER_${target})
            message(FATAL_ERROR "${target} may not link ${link}: its layer allows ${TW_LAYER_${target}}")
        endif()
    endforeach()
endfunction()

# Gives `target` the precompiled header of its kind: Widgets for what draws, Core for everything else.
function(tw_precompile target)
    get_target_property(links ${target} LINK_LIBRARIES)
    if("Qt6::Widgets" IN_LIST links OR "tw_desktop" IN_LIST links)
        target_precompile_headers(${target} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/pch/Widgets.h)
    else()
        target_precompile_headers(${target} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/pch/Core.h)
    endif()
endfunction()

# tw_add_library(NAME FOLDERS folder... LINKS library... PRIVATE_LINKS library...)
#
# One static library of a subsystem from all sources and resources below its folders (relative to src/). Private links are
# those that no header includes. Links that do not exist yet are an error, unless they are targets of ours whose folders
# hold no sources: those are left out, as is the library itself when its folders are empty.
function(tw_add_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "FOLDERS;LINKS;PRIVATE_LINKS")
    tw_check_links(${name} ${arg_LINKS} ${arg_PRIVATE_LINKS})
    tw_collect_sources(sources ${PROJECT_SOURCE_DIR}/src ${arg_FOLDERS})
    if(NOT sources)
        return()
    endif()

    add_library(${name} STATIC ${sources})
    set_target_properties(${name} PROPERTIES AUTOMOC ON AUTORCC ON)
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${name} PUBLIC tw_options PRIVATE ${arg_PRIVATE_LINKS})
    foreach(link IN LISTS arg_LINKS)
        if(DEFINED TW_LAYER_${link} AND NOT TARGET ${link})
            continue()
        endif()
        target_link_libraries(${name} PUBLIC ${link})
    endforeach()
    tw_precompile(${name})
endfunction()

# Sources, headers and resource lists below the folders, looked up again at every build. What is written for a system says
# so at the end of its name.
function(tw_collect_sources result root)
    set(patterns)
    foreach(folder IN LISTS ARGN)
        list(APPEND patterns ${root}/${folder}/*.cpp ${root}/${folder}/*.h ${root}/${folder}/*.qrc)
    endforeach()
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${patterns})
    if(WIN32)
        list(FILTER sources EXCLUDE REGEX "Posix\\.cpp$")
    else()
        list(FILTER sources EXCLUDE REGEX "Windows\\.cpp$")
    endif()
    # Headers alone make no library.
    set(compiled ${sources})
    list(FILTER compiled INCLUDE REGEX "\\.cpp$")
    if(compiled)
        set(${result} ${sources} PARENT_SCOPE)
    else()
        set(${result} "" PARENT_SCOPE)
    endif()
endfunction()
