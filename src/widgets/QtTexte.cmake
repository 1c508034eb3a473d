# Qt's own German texts come from the Qt installation and travel inside the program: the catalogue is copied beside
# the resource list in the build folder.
get_target_property(qmake Qt6::qmake IMPORTED_LOCATION)
execute_process(COMMAND ${qmake} -query QT_INSTALL_TRANSLATIONS
    OUTPUT_VARIABLE qt_translations OUTPUT_STRIP_TRAILING_WHITESPACE)
find_file(VARNOTH_QTBASE_DE_QM qtbase_de.qm
    HINTS ${qt_translations} /usr/share/qt6/translations
    DOC "Qt's German message catalogue" NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
if(NOT VARNOTH_QTBASE_DE_QM)
    message(FATAL_ERROR "Qt's German texts (qtbase_de.qm) are missing. On Debian: apt install "
        "qt6-translations-l10n; elsewhere set VARNOTH_QTBASE_DE_QM to the file's path.")
endif()
configure_file(${VARNOTH_QTBASE_DE_QM} ${CMAKE_CURRENT_BINARY_DIR}/qtbase_de.qm COPYONLY)
configure_file(qttexte.qrc ${CMAKE_CURRENT_BINARY_DIR}/qttexte.qrc COPYONLY)
