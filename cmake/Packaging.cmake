# What `cmake --install` puts on a machine, and the Debian package made of it by scripts/package.
# The translations and the database migrations are compiled into the programs, so the two programs,
# the desktop entry and the icon are all there is.
include(GNUInstallDirs)

# `cmake --install` and CPack copy what was built; scripts/package builds just the two programs
# first instead of every test.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)

install(TARGETS morvane morvane-server RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${PROJECT_SOURCE_DIR}/src/backend/morvane.desktop
    DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${PROJECT_SOURCE_DIR}/src/ui/icons/morvane.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME morvane)
set(CPACK_PACKAGE_VENDOR "Morvane")
set(CPACK_PACKAGE_CONTACT "Morvane developers <morvane@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Time tracking and invoices for freelancers and small teams")
set(CPACK_PACKAGE_DESCRIPTION
    "Morvane tracks working time on projects and tasks, prices it and writes invoices. It runs its own\nlocal backend (morvane-server on a private PostgreSQL cluster) or talks to a shared one.")
set(CPACK_PACKAGE_INSTALL_DIRECTORY morvane)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
# The libraries the programs link come from dpkg-shlibdeps; what they load at run time (QML modules,
# plugins, fonts, PostgreSQL) is not linked, so scripts/package passes it as
# CPACK_DEBIAN_PACKAGE_DEPENDS from the list of packages in scripts/lib/common.sh.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xdg-utils")
include(CPack)
