# Declares this machine's Qt tools before Qt's own package files declare those of the target.
foreach(tool IN ITEMS moc rcc uic qmake lrelease lupdate lconvert)
  if(NOT TARGET Qt5::${tool})
    add_executable(Qt5::${tool} IMPORTED)
    set_target_properties(Qt5::${tool} PROPERTIES IMPORTED_LOCATION /usr/lib/qt5/bin/${tool})
  endif()
endforeach()
