# Icons (":/res/...") and translations compiled into rostera_gui as the resource "rostera".
file(GLOB ROSTERA_ICONS CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_SOURCE_DIR}
    ${CMAKE_CURRENT_SOURCE_DIR}/resources/res/*)
if(ROSTERA_ICONS)
    qt_add_resources(rostera_gui rostera PREFIX "/" BASE resources FILES ${ROSTERA_ICONS})
endif()
