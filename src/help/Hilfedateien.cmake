# A help file is one Qt binary resource: contents list, pages, style sheet and pictures of a language's folder.
include(GNUInstallDirs)

# varnoth_hilfedatei(LANGUAGE FILE): FILE beside the programs, made of everything in the folder LANGUAGE.
function(varnoth_hilfedatei sprache datei)
    set(ordner ${CMAKE_CURRENT_SOURCE_DIR}/${sprache})
    set(ausgabe ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${datei})
    set(liste ${CMAKE_CURRENT_BINARY_DIR}/hilfe_${sprache}.qrc)
    file(GLOB_RECURSE dateien CONFIGURE_DEPENDS RELATIVE ${ordner}
        ${ordner}/*.tsv ${ordner}/*.css ${ordner}/*.html ${ordner}/*.png)
    list(TRANSFORM dateien REPLACE ".+" "<file alias=\"\\0\">${ordner}/\\0</file>" OUTPUT_VARIABLE zeilen)
    list(JOIN zeilen "\n" zeilen)
    file(CONFIGURE OUTPUT ${liste} CONTENT "<RCC><qresource prefix=\"/\">\n@zeilen@\n</qresource></RCC>\n" @ONLY)
    list(TRANSFORM dateien PREPEND ${ordner}/)
    # Renamed into place: a program that has the old file open keeps it whole.
    add_custom_command(OUTPUT ${ausgabe}
        COMMAND Qt6::rcc --binary --output ${datei}.neu ${liste}
        COMMAND ${CMAKE_COMMAND} -E rename ${datei}.neu ${ausgabe}
        DEPENDS ${liste} ${dateien}
        COMMENT "Making the help file ${datei}"
        VERBATIM)
    install(FILES ${ausgabe} DESTINATION ${CMAKE_INSTALL_DATADIR}/varnoth)
endfunction()

varnoth_hilfedatei(de varnoth.hlp)
varnoth_hilfedatei(en varnothE.hlp)
add_custom_target(varnoth_hilfedateien ALL
    DEPENDS ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/varnoth.hlp ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/varnothE.hlp)
