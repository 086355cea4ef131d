# Icons (":/res/...") are listed in rostera.qrc and compiled into rostera_gui; its
# initializer qInitResources_rostera is called at start (Q_INIT_RESOURCE(rostera)).
target_sources(rostera_gui PRIVATE ${CMAKE_CURRENT_SOURCE_DIR}/resources/rostera.qrc)

# Translations: the program's own as ":/rostera_<code>.qm" from the Linguist sources in
# resources/translations (refreshed from the code by the target update_translations), and
# Qt's own from the system's Qt translations as ":/qt_<code>.qm". Qt has none for Italian.
set(ROSTERA_LANGUAGES de es fr it ja pl ru zh_cn zh_tw)
set(ROSTERA_TS_FILES)
foreach(code ${ROSTERA_LANGUAGES})
    list(APPEND ROSTERA_TS_FILES ${CMAKE_CURRENT_SOURCE_DIR}/resources/translations/rostera_${code}.ts)
endforeach()

file(GLOB_RECURSE ROSTERA_TRANSLATABLE CONFIGURE_DEPENDS
    ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h ${CMAKE_CURRENT_SOURCE_DIR}/forms/*.ui)
qt_add_lupdate(rostera_gui TS_FILES ${ROSTERA_TS_FILES} SOURCES ${ROSTERA_TRANSLATABLE}
    OPTIONS -no-obsolete -locations none)
set_source_files_properties(${ROSTERA_TS_FILES} PROPERTIES OUTPUT_LOCATION ${CMAKE_BINARY_DIR}/translations)
qt_add_lrelease(rostera_gui TS_FILES ${ROSTERA_TS_FILES} QM_FILES_OUTPUT_VARIABLE ROSTERA_QM_FILES)

get_target_property(ROSTERA_QTPATHS Qt6::qtpaths LOCATION)
execute_process(COMMAND ${ROSTERA_QTPATHS} --query QT_INSTALL_TRANSLATIONS
    OUTPUT_VARIABLE ROSTERA_QT_TRANSLATIONS OUTPUT_STRIP_TRAILING_WHITESPACE)
foreach(code ${ROSTERA_LANGUAGES})
    if(code STREQUAL "it")
        continue()
    endif()
    set(qtcode ${code})
    if(code MATCHES "^(..)_(..)$")
        string(TOUPPER ${CMAKE_MATCH_2} region)
        set(qtcode ${CMAKE_MATCH_1}_${region})
    endif()
    set(source ${ROSTERA_QT_TRANSLATIONS}/qtbase_${qtcode}.qm)
    set(target ${CMAKE_BINARY_DIR}/translations/qt_${code}.qm)
    add_custom_command(OUTPUT ${target}
        COMMAND Qt6::lconvert -i ${source} -o ${target}
        DEPENDS ${source} VERBATIM)
    list(APPEND ROSTERA_QM_FILES ${target})
endforeach()
qt_add_resources(rostera_gui rostera_translations PREFIX "/" BASE ${CMAKE_BINARY_DIR}/translations
    FILES ${ROSTERA_QM_FILES})
