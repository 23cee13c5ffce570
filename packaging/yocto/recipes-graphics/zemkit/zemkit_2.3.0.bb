# SPDX-FileCopyrightText: 2026 The zemkit developers
# SPDX-License-Identifier: MIT

SUMMARY = "Qt widgets for household energy displays"
DESCRIPTION = "Charts, tiles, lists and an on-screen keyboard for a touch screen on the wall, and a display made of them"
SECTION = "libs"
LICENSE = "MIT"
LIC_FILES_CHKSUM = "file://LICENSE;md5=582f3811ca0eb725e0863a57808a4345"

DEPENDS = "mosquitto qtbase qtserialport qttools-native qwt-qt5"

# The archive that scripts/release makes.
SRC_URI = "file://${BP}.tar.gz"

inherit cmake_qt5 pkgconfig systemd useradd

EXTRA_OECMAKE = "\
    -DZEMKIT_BUILD_BENCHMARKS=OFF \
    -DZEMKIT_BUILD_DESIGNER=OFF \
    -DZEMKIT_BUILD_TESTS=OFF \
    -DZEMKIT_QT=5 \
"

do_install:append() {
    install -D -m 0644 ${S}/packaging/zemkit-display.default ${D}${sysconfdir}/default/zemkit-display
    rm ${D}${datadir}/zemkit/zemkit-display.default
}

PACKAGE_BEFORE_PN = "${PN}-data ${PN}-display ${PN}-gallery"

SYSTEMD_PACKAGES = "${PN}-display"
SYSTEMD_SERVICE:${PN}-display = "zemkit-display@.service"
# Its instance is the platform, which an image chooses.
SYSTEMD_AUTO_ENABLE:${PN}-display = "disable"

USERADD_PACKAGES = "${PN}-display"
USERADD_PARAM:${PN}-display = "--system --home-dir ${localstatedir}/lib/zemkit --no-create-home \
    --groups dialout,input,video --shell ${base_sbindir}/nologin zemkit-display"

FILES:${PN}-data = "${datadir}/zemkit"
FILES:${PN}-display = "\
    ${bindir}/zemkit-display \
    ${datadir}/applications/zemkit-display.desktop \
    ${datadir}/icons/hicolor/scalable/apps/zemkit-display.svg \
    ${datadir}/metainfo/zemkit-display.metainfo.xml \
    ${nonarch_libdir}/sysusers.d \
    ${nonarch_libdir}/udev/rules.d \
    ${sysconfdir}/default/zemkit-display \
    ${systemd_system_unitdir} \
"
FILES:${PN}-gallery = "\
    ${bindir}/zemkit-gallery \
    ${bindir}/zemkit-keyboard-preview \
    ${datadir}/applications/zemkit-gallery.desktop \
    ${datadir}/icons/hicolor/scalable/apps/zemkit-gallery.svg \
    ${datadir}/metainfo/zemkit-gallery.metainfo.xml \
"
CONFFILES:${PN}-display = "${sysconfdir}/default/zemkit-display"

RDEPENDS:${PN}-display = "${PN}-data qtbase-plugins tzdata"
RDEPENDS:${PN}-gallery = "${PN}-data qtbase-plugins"
