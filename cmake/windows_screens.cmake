# What knows Qt, compiled for Windows and never linked: Debian has no Qt for Windows, but its own
# Qt's headers know that system too. So no screen grows a habit that Windows lacks.
file(GLOB qt_headers /usr/include/*/qt6)
find_program(LUMBRIO_UIC uic PATHS /usr/lib/qt6/libexec REQUIRED NO_DEFAULT_PATH)

file(GLOB windows_sources CONFIGURE_DEPENDS platform/qt/*.cpp roles/*.cpp)
set(forms ${CMAKE_CURRENT_BINARY_DIR}/forms)
file(MAKE_DIRECTORY ${forms})
foreach(source IN LISTS screen_sources)
  if(source MATCHES "\\.cpp$")
    list(APPEND windows_sources ${source})
  elseif(source MATCHES "\\.ui$")
    get_filename_component(name ${source} NAME_WE)
    add_custom_command(OUTPUT ${forms}/ui_${name}.h DEPENDS ${source} VERBATIM
                       COMMAND ${LUMBRIO_UIC} -o ${forms}/ui_${name}.h ${source})
    list(APPEND windows_sources ${forms}/ui_${name}.h)
  endif()
endforeach()

add_library(windows_screens OBJECT EXCLUDE_FROM_ALL ${windows_sources})
target_compile_definitions(windows_screens PRIVATE QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII)
target_compile_options(windows_screens PRIVATE -O0)
target_include_directories(windows_screens PRIVATE ${forms})
target_include_directories(windows_screens SYSTEM PRIVATE ${qt_headers})
foreach(module IN ITEMS Core Gui Widgets PrintSupport Svg)
  target_include_directories(windows_screens SYSTEM PRIVATE ${qt_headers}/Qt${module})
endforeach()
target_link_libraries(windows_screens PRIVATE lumbrio_core)
