# make package: a Debian package of the installed layout (programs in /usr/bin, shared data in
# /usr/share). The libraries it needs are found by dpkg-shlibdeps (Qt's platform plugins come
# with them); named here is what the programs load without linking it: the fonts whose metrics
# the plans and reports are measured with.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME truhlar)
set(CPACK_PACKAGE_VENDOR "Truhlář")
set(CPACK_PACKAGE_CONTACT "Truhlář <truhlar@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Pracovní stůl truhlářské dílny: zakázky, nářezové plány, kalkulace")
set(CPACK_PACKAGE_DESCRIPTION
    "Zakázky, sestavy a desky, nářezové plány s prořezem a odřezky, štítky, soubor pro\n formátovací pilu, kalkulace a výpisy; ceník, sklad odřezků, zálohy.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-liberation2, fonts-dejavu-core")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "shared-mime-info, desktop-file-utils, hicolor-icon-theme")
set(CPACK_STRIP_FILES ON)
include(CPack)
