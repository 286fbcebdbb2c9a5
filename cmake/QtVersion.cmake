# SPDX-License-Identifier: MIT
# LUMETRA_QT chooses between Qt 5 and Qt 6. The libraries built with Qt 6 have names, headers and a CMake package of
# their own, so that both can be installed side by side.
if(LUMETRA_QT EQUAL 5)
    set(LUMETRA_QT_VERSION 5.15)
    set(LUMETRA_QT_SUFFIX "")
elseif(LUMETRA_QT EQUAL 6)
    set(LUMETRA_QT_VERSION 6.4)
    set(LUMETRA_QT_SUFFIX "Qt6")
else()
    message(FATAL_ERROR "LUMETRA_QT: expected 5 or 6, found \"${LUMETRA_QT}\"")
endif()
# The functions without a number in their name, such as qt_add_resources(), are those of this version.
set(QT_DEFAULT_MAJOR_VERSION ${LUMETRA_QT})
