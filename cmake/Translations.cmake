# The interface in other languages: one catalogue a language in i18n/, written by translators, compiled into the program.

# tw_add_translations(TARGET)
#
# Compiles all catalogues and puts them into the target as the resource list "i18n", below ":/i18n". The target names the
# list with Q_INIT_RESOURCE.
function(tw_add_translations target)
    file(GLOB catalogues CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/i18n/*.ts)
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/i18n)
    set(entries)
    foreach(catalogue IN LISTS catalogues)
        get_filename_component(name ${catalogue} NAME_WE)
        add_custom_command(
            OUTPUT ${folder}/${name}.qm
            COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
            COMMAND Qt6::lrelease -silent ${catalogue} -qm ${folder}/${name}.qm
            DEPENDS ${catalogue}
            COMMENT "Compiling ${name}.ts"
            VERBATIM
        )
        string(APPEND entries "<file>${name}.qm</file>")
    endforeach()
    file(CONFIGURE OUTPUT ${folder}/i18n.qrc CONTENT "<RCC><qresource prefix=\"/i18n\">${entries}</qresource></RCC>\n")
    qt_add_resources(resources ${folder}/i18n.qrc)
    target_sources(${target} PRIVATE ${resources})
endfunction()

add_custom_target(
    update-translations
    COMMAND ${CMAKE_COMMAND} -E env LUPDATE=$<TARGET_FILE:Qt6::lupdate> ${PROJECT_SOURCE_DIR}/scripts/translations update
    COMMENT "Bringing the texts of the sources into the catalogues"
    VERBATIM
)
