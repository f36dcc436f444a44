# Installs the dialog, where desktops look for a program, its icon and what it is called.
include(GNUInstallDirs)

# A relative path to the library in the same prefix, so that an installed tree can be moved.
file(RELATIVE_PATH library_from_dialog ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
set_target_properties(qvtdialog PROPERTIES INSTALL_RPATH "$ORIGIN/${library_from_dialog}")
install(TARGETS qvtdialog RUNTIME)
install(FILES data/qvtdialog.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES data/qvtdialog.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES data/org.example.qvtdialog.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ../docs/man/qvtdialog.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
# The notices of the libraries that are compiled into the dialog.
install(FILES ../LICENSE ../docs/licences.md DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/qvtdialog)
