# What an application needs to build against an installed library: the headers,
# the CMake package and the pkg-config files.

include(CMakePackageConfigHelpers)

install(
  TARGETS mox_common_utils mox_common_theme
  EXPORT mox_common_theme_targets
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}")

set(MOX_INSTALL_INCLUDEDIR "${CMAKE_INSTALL_INCLUDEDIR}/mox_common_theme")

# Headers lie beside their sources; these are the public ones.
set(MOX_PUBLIC_HEADERS
    common_utils/Contrast.h
    common_utils/Helpers.h
    readers/BrushReader.h
    readers/LinearGradientBrushReader.h
    readers/QPaletteReader.h
    readers/SolidBrushReader.h
    readers/ThemeConfigurationReader.h
    readers/ThemeFont.h
    resources/LookUpObserver.h
    resources/ThemeColorHelper.h
    resources/ThemeResources.h
    style/BaseStyle.h
    style/ComboBoxDefaultItemDelegate.h
    style/ProxyStyle_p.h
    style/brushes/ButtonBrushes.h
    theme/BaseTheme.h
    theme/BaseThemeSettings.h
    theme/Theme.h
    theme/ThemeFactory.h
    theme/ThemeQApplication.h)
foreach(header IN LISTS MOX_PUBLIC_HEADERS)
  get_filename_component(folder "${header}" DIRECTORY)
  install(FILES "${PROJECT_SOURCE_DIR}/src/${header}"
          DESTINATION "${MOX_INSTALL_INCLUDEDIR}/${folder}")
endforeach()
install(FILES "${PROJECT_BINARY_DIR}/include/mox_common_utils_export.h"
              "${PROJECT_BINARY_DIR}/include/mox_common_theme_export.h"
        DESTINATION "${MOX_INSTALL_INCLUDEDIR}")

set(MOX_INSTALL_CMAKEDIR "${CMAKE_INSTALL_LIBDIR}/cmake/mox_common_theme")
install(
  EXPORT mox_common_theme_targets
  NAMESPACE mox::
  DESTINATION "${MOX_INSTALL_CMAKEDIR}")
configure_package_config_file(
  "${CMAKE_CURRENT_LIST_DIR}/mox_common_themeConfig.cmake.in"
  "${PROJECT_BINARY_DIR}/mox_common_themeConfig.cmake"
  INSTALL_DESTINATION "${MOX_INSTALL_CMAKEDIR}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/mox_common_themeConfigVersion.cmake"
                                 COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_BINARY_DIR}/mox_common_themeConfig.cmake"
              "${PROJECT_BINARY_DIR}/mox_common_themeConfigVersion.cmake"
        DESTINATION "${MOX_INSTALL_CMAKEDIR}")

# The prefix is told relative to the file, so that an installed tree can be moved.
file(RELATIVE_PATH MOX_PKGCONFIG_TO_PREFIX "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig"
     "${CMAKE_INSTALL_PREFIX}")
foreach(module IN ITEMS mox_common_utils mox_common_theme)
  configure_file("${CMAKE_CURRENT_LIST_DIR}/${module}.pc.in"
                 "${PROJECT_BINARY_DIR}/${module}.pc" @ONLY)
  install(FILES "${PROJECT_BINARY_DIR}/${module}.pc"
          DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
endforeach()
