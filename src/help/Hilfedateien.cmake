# A help file is one Qt binary resource: contents list, pages, style sheet and pictures of a language's folder.

# varnoth_hilfedatei(FOLDER FILE): makes the help file FILE of everything in FOLDER (both absolute paths).
function(varnoth_hilfedatei ordner ausgabe)
    get_filename_component(name ${ausgabe} NAME)
    set(liste ${CMAKE_CURRENT_BINARY_DIR}/${name}.qrc)
    file(GLOB_RECURSE dateien CONFIGURE_DEPENDS RELATIVE ${ordner}
        ${ordner}/*.tsv ${ordner}/*.css ${ordner}/*.html ${ordner}/*.png)
    list(TRANSFORM dateien REPLACE ".+" "<file alias=\"\\0\">${ordner}/\\0</file>" OUTPUT_VARIABLE zeilen)
    list(JOIN zeilen "\n" zeilen)
    file(CONFIGURE OUTPUT ${liste} CONTENT "<RCC><qresource prefix=\"/\">\n@zeilen@\n</qresource></RCC>\n" @ONLY)
    list(TRANSFORM dateien PREPEND ${ordner}/)
    # Renamed into place: a program that has the old file open keeps it whole.
    add_custom_command(OUTPUT ${ausgabe}
        COMMAND Qt6::rcc ${CMAKE_AUTORCC_OPTIONS} --binary --output ${ausgabe}.neu ${liste}
        COMMAND ${CMAKE_COMMAND} -E rename ${ausgabe}.neu ${ausgabe}
        DEPENDS ${liste} ${dateien}
        COMMENT "Making the help file ${name}"
        VERBATIM)
endfunction()
