# Icons (":/res/...") are listed in rostera.qrc and compiled into rostera_gui; its
# initializer qInitResources_rostera is called at start (Q_INIT_RESOURCE(rostera)).
target_sources(rostera_gui PRIVATE ${CMAKE_CURRENT_SOURCE_DIR}/resources/rostera.qrc)
