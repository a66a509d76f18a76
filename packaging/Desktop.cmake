# What makes the window known to the desktop: its entry, icon, file type, and its page in a software centre.
set(RQM5_HOMEPAGE "" CACHE STRING "Address of the project's home page, for the software centre")
set(RQM5_SCREENSHOTS "" CACHE STRING "Address of the folder that has docs/images, for the software centre")

set(metainfo_links "")
if(RQM5_HOMEPAGE)
  string(APPEND metainfo_links "\n  <url type=\"homepage\">${RQM5_HOMEPAGE}</url>")
endif()
if(RQM5_SCREENSHOTS)
  string(APPEND metainfo_links "\n  <screenshots>\n    <screenshot type=\"default\">\n"
         "      <caption>The channels of a bank</caption>\n"
         "      <image>${RQM5_SCREENSHOTS}/memory.png</image>\n    </screenshot>\n  </screenshots>")
endif()
configure_file(rq-m5-clone.metainfo.xml.in rq-m5-clone.metainfo.xml @ONLY)

rqm5_install(rq-m5-clone FILES ${CMAKE_CURRENT_BINARY_DIR}/rq-m5-clone.metainfo.xml
             DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
rqm5_install(rq-m5-clone FILES rq-m5-clone.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
rqm5_install(rq-m5-clone FILES rq-m5-clone-mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
rqm5_install(rq-m5-clone FILES icons/rq-m5-clone.svg
             DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
foreach(size 16 22 24 32 48 64 128 256)
  rqm5_install(rq-m5-clone FILES icons/${size}.png RENAME rq-m5-clone.png
               DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
endforeach()
