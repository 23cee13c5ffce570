################################################################################
#
# zemkit
#
################################################################################

ZEMKIT_VERSION = 2.3.0
# The clone that this external tree lies in.
ZEMKIT_SITE = $(BR2_EXTERNAL_ZEMKIT_PATH)/../..
ZEMKIT_SITE_METHOD = local
ZEMKIT_LICENSE = MIT
ZEMKIT_LICENSE_FILES = LICENSE
ZEMKIT_INSTALL_STAGING = YES
ZEMKIT_DEPENDENCIES = host-pkgconf qt5base qt5tools qwt
ZEMKIT_OVERRIDE_SRCDIR_RSYNC_EXCLUSIONS = --exclude build

ZEMKIT_CONF_OPTS = \
	-DZEMKIT_BUILD_BENCHMARKS=OFF \
	-DZEMKIT_BUILD_DESIGNER=OFF \
	-DZEMKIT_BUILD_TESTS=OFF \
	-DZEMKIT_QT=5

ifeq ($(BR2_PACKAGE_ZEMKIT_DISPLAY),y)
ZEMKIT_CONF_OPTS += -DZEMKIT_BUILD_EXAMPLES=ON
ZEMKIT_DEPENDENCIES += mosquitto qt5serialport

define ZEMKIT_INSTALL_OPTIONS
	$(INSTALL) -D -m 0644 $(@D)/packaging/zemkit-display.default \
		$(TARGET_DIR)/etc/default/zemkit-display
endef
ZEMKIT_POST_INSTALL_TARGET_HOOKS += ZEMKIT_INSTALL_OPTIONS

define ZEMKIT_USERS
	zemkit-display -1 zemkit-display -1 * /var/lib/zemkit - dialout,input,video Energy display
endef
else
ZEMKIT_CONF_OPTS += -DZEMKIT_BUILD_EXAMPLES=OFF
endif

$(eval $(cmake-package))
