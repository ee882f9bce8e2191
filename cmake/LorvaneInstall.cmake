# Where an installed program lies: the programs with their template, their manuals and their licence in a folder of their own, links to them in bin,
# and what a desktop needs to open a study by a double click.
include(GNUInstallDirs)

set(programs ${CMAKE_INSTALL_LIBDIR}/lorvane)
install(TARGETS lorvane lorvane-cli RUNTIME DESTINATION ${programs})
install(FILES ${LORVANE_TEMPLATE} LICENSE DESTINATION ${programs})
install(DIRECTORY ${LORVANE_MANUALS} DESTINATION ${programs})
foreach(program lorvane lorvane-cli)
    install(CODE "
        set(bin \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}\")
        file(MAKE_DIRECTORY \"\${bin}\")
        file(CREATE_LINK ../${programs}/${program} \"\${bin}/${program}\" SYMBOLIC)")
endforeach()

install(FILES assets/lorvane.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES assets/lorvane-mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages RENAME lorvane.xml)
install(FILES assets/icons/lorvane.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(DIRECTORY assets/examples/ DESTINATION ${CMAKE_INSTALL_DATADIR}/lorvane/examples)
# A desktop learns of a new kind of file from its data bases, where it has them.
install(CODE "
    if(\"\$ENV{DESTDIR}\" STREQUAL \"\")
        set(share \"\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_DATADIR}\")
        foreach(update \"update-mime-database;\${share}/mime\" \"update-desktop-database;\${share}/applications\")
            execute_process(COMMAND \${update} OUTPUT_QUIET ERROR_QUIET)
        endforeach()
    endif()")
