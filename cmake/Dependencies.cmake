# Libraries of the distribution. The docking system is taken from the system when it is built for Qt 6 there, else from
# .deps/docking, where scripts/build-docking puts it.

find_package(Qt6 6.4 REQUIRED COMPONENTS Core DBus Gui LinguistTools Network Widgets Svg Test TextToSpeech)
find_package(Threads REQUIRED)
find_package(simdjson REQUIRED)
find_package(PkgConfig REQUIRED)
pkg_check_modules(hunspell REQUIRED IMPORTED_TARGET hunspell)

find_package(qtadvanceddocking 3.8 QUIET)
if(NOT qtadvanceddocking_FOUND)
    find_package(qtadvanceddocking 3.8 QUIET PATHS ${PROJECT_SOURCE_DIR}/.deps/docking NO_DEFAULT_PATH)
endif()
if(NOT qtadvanceddocking_FOUND)
    message(FATAL_ERROR "The docking system for Qt 6 is missing: run scripts/build-docking (or scripts/setup)")
endif()

if(TW_BUILD_TESTS)
    find_package(GTest REQUIRED)
endif()
