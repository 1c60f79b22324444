# Builds for 64-bit ARM on another machine, against the Debian packages that skripte/gleichheit.sh lays
# out in WIRBELWERK_WURZEL, and runs what was built under user-mode emulation.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES WIRBELWERK_WURZEL)
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)
set(CMAKE_CXX_COMPILER_TARGET aarch64-linux-gnu)
set(CMAKE_LIBRARY_ARCHITECTURE aarch64-linux-gnu)
set(CMAKE_SYSROOT ${WIRBELWERK_WURZEL})
set(CMAKE_FIND_ROOT_PATH ${WIRBELWERK_WURZEL})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# The emulator does not redirect every question for a file that Qt asks on its way to the plugins.
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-aarch64-static -L ${WIRBELWERK_WURZEL}
  -E QT_PLUGIN_PATH=${WIRBELWERK_WURZEL}/usr/lib/aarch64-linux-gnu/qt6/plugins)
# Qt's code generators are this machine's own.
set(QT_HOST_PATH /usr)
