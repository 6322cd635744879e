# The Debian package of a workstation: `make package` (or cpack in the
# build directory) writes haulix_<version>_amd64.deb from this build tree.
#
# The programs live in /usr/lib/haulix beside libhaulix_db and the Library
# folder, as they do in the build tree, so that they find the module and
# the sibling modules beside themselves; /usr/bin holds links to them.

set(HAULIX_PROGRAMS haulix haulix-admin haulix-print haulix-pricing)
set(HAULIX_LIBRARY_MODULES IncomingOrders Drivers Places Cities Vehicles Trailers Contractors
    RoadCards Scheduler)
set(HAULIX_LIB_DIR lib/haulix)

set_target_properties(${HAULIX_PROGRAMS} haulix_db PROPERTIES INSTALL_RPATH "$ORIGIN")
set_target_properties(${HAULIX_LIBRARY_MODULES} PROPERTIES INSTALL_RPATH "$ORIGIN/..")

install(TARGETS ${HAULIX_PROGRAMS} RUNTIME DESTINATION ${HAULIX_LIB_DIR})
install(TARGETS haulix_db LIBRARY DESTINATION ${HAULIX_LIB_DIR})
install(TARGETS ${HAULIX_LIBRARY_MODULES} LIBRARY DESTINATION ${HAULIX_LIB_DIR}/Library)

set(links_dir ${CMAKE_BINARY_DIR}/package-links)
file(MAKE_DIRECTORY ${links_dir})
foreach(program IN LISTS HAULIX_PROGRAMS)
  file(CREATE_LINK ../lib/haulix/${program} ${links_dir}/${program} SYMBOLIC)
  install(FILES ${links_dir}/${program} DESTINATION bin)
endforeach()

install(FILES src/tables/schema.sql DESTINATION share/haulix)
install(DIRECTORY data/ksef DESTINATION share/haulix)
install(FILES data/haulix.desktop DESTINATION share/applications)
install(FILES data/haulix.svg DESTINATION share/icons/hicolor/scalable/apps)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME haulix)
set(CPACK_PACKAGE_VENDOR Kelvaro)
set(CPACK_PACKAGE_CONTACT "Kelvaro <haulix@kelvaro.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY
    "Haulix Zlecenia: rejestr zleceń przychodzących spedycji drogowej")
set(CPACK_PACKAGE_DESCRIPTION
    "Zlecenia od klientów, ich wycena z cenników, przewoźnicy i ich faktury, faktury\n\
dla klientów i zestawienia, na bazie Firebird 3: wbudowanej na jednym stanowisku\n\
albo na serwerze wspólnym dla biura (haulix-admin server-setup).")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_BINARY_DIR}/bin)
# What the libraries linked do not tell: Qt's Firebird driver and its
# window-system plugins, the embedded engine and gbak, Qt's Polish texts
# and the fonts the forms and printouts are drawn with.
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "libqt6sql6-ibase, qt6-qpa-plugins, qt6-translations-l10n, firebird3.0-server-core, \
firebird3.0-utils, fonts-dejavu-core, fonts-wine")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "firebird3.0-server")
include(CPack)
