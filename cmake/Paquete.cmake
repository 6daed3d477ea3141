# Installation, and the Debian package that cpack makes of it: the program folder whole below lib, as the program
# expects to find what stands beside it, and what the desktop needs of it.
find_program(GZIP gzip)

set(privada "lib/trabex")
set(paquete "${CMAKE_CURRENT_SOURCE_DIR}/install/paquete")

install(TARGETS trabex trabex-lote trabex-jet RUNTIME DESTINATION ${privada})
install(DIRECTORY "${TRABEX_PROGRAMA}/Imagen" "${TRABEX_PROGRAMA}/Reportes" "${TRABEX_PROGRAMA}/Manual" DESTINATION ${privada}
    FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
foreach(programa trabex trabex-lote)
    install(CODE "
        set(bin \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/bin\")
        file(MAKE_DIRECTORY \"\${bin}\")
        file(CREATE_LINK ../${privada}/${programa} \"\${bin}/${programa}\" SYMBOLIC)")
endforeach()

install(FILES "${paquete}/com.nodara.trabex.desktop" DESTINATION share/applications)
install(FILES "${paquete}/com.nodara.trabex.metainfo.xml" DESTINATION share/metainfo)
install(FILES "${paquete}/trabex-los.xml" DESTINATION share/mime/packages)
set(iconos "share/icons/hicolor/scalable")
install(FILES install/iconos/trabex.svg DESTINATION ${iconos}/apps)
install(FILES install/iconos/trabex.svg DESTINATION ${iconos}/mimetypes RENAME application-x-trabex-los.svg)
install(FILES "${paquete}/copyright" DESTINATION share/doc/trabex)

# trabex_comprimido(<file> <folder> <name>): installs the file compressed, as Debian wants pages and histories.
function(trabex_comprimido archivo carpeta nombre)
    set(comprimido "${CMAKE_CURRENT_BINARY_DIR}/paquete/${nombre}.gz")
    add_custom_command(OUTPUT "${comprimido}"
        COMMAND ${CMAKE_COMMAND} -E make_directory "${CMAKE_CURRENT_BINARY_DIR}/paquete"
        COMMAND ${GZIP} -9nc "${archivo}" > "${comprimido}"
        DEPENDS "${archivo}"
        VERBATIM)
    set_property(GLOBAL APPEND PROPERTY TRABEX_COMPRIMIDOS "${comprimido}")
    install(FILES "${comprimido}" DESTINATION ${carpeta})
endfunction()

if(GZIP)
    trabex_comprimido("${paquete}/trabex.1" share/man/es/man1 trabex.1)
    trabex_comprimido("${paquete}/trabex-lote.1" share/man/es/man1 trabex-lote.1)
    trabex_comprimido("${paquete}/changelog" share/doc/trabex changelog)
    get_property(comprimidos GLOBAL PROPERTY TRABEX_COMPRIMIDOS)
    add_custom_target(paquete_textos ALL DEPENDS ${comprimidos})
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME trabex)
set(CPACK_PACKAGE_CONTACT "Nodara Software <soporte@nodara.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "análisis y diseño de losas y escaleras de concreto armado")
set(CPACK_PACKAGE_DESCRIPTION "Analiza y diseña las losas y escaleras de una edificación: losas armadas
en una dirección como pórticos planos, escaleras autoportantes y
helicoidales. Da dibujos, reportes y el intercambio con Planex.
Incluye trabex-lote, que calcula un proyecto sin ventanas.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL OFF)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What the linker does not see.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins, libqt6svg6, fonts-liberation")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n, fonts-dejavu-core")
include(CPack)
