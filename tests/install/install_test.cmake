# The program as a person installs it: `cmake --install` into an empty prefix, then the installed
# programs run from there and find their data files in PREFIX/share/varnelt, none of them lying in
# PREFIX/bin, nor anywhere the build put them.
#   -DBUILD=the build folder  -DPREFIX=a folder to install into (emptied first)
#   -DEXPECTED=the summary of the default project  -DPROJECT=a project file
#   -DVERSION=the project's version
cmake_minimum_required(VERSION 3.25)

function(run)
  cmake_parse_arguments(R "" "OUT;STATUS" "COMMAND" ${ARGN})
  execute_process(COMMAND ${R_COMMAND} OUTPUT_VARIABLE out ERROR_VARIABLE err RESULT_VARIABLE status)
  set(${R_OUT} "${out}${err}" PARENT_SCOPE)
  set(${R_STATUS} "${status}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE "${PREFIX}")
run(COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${PREFIX}" OUT out STATUS status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "cmake --install failed (${status}):\n${out}")
endif()

# What is installed, and where.
foreach(f bin/varnelt-cli share/varnelt/VarneltECmat.dat share/varnelt/VarneltEC3Setup.dat
          share/varnelt/hea.dat share/varnelt/upe.dat share/varnelt/varnelt.svg share/varnelt/help/index.html
          share/varnelt/help/pictures/p04.pic1.svg share/varnelt/help/pictures/PicLoadZ.svg
          share/applications/varnelt.desktop share/mime/packages/varnelt.xml
          share/icons/hicolor/scalable/apps/varnelt.svg
          share/icons/hicolor/scalable/mimetypes/application-x-varnelt-project.svg)
  if(NOT EXISTS "${PREFIX}/${f}")
    message(FATAL_ERROR "not installed: ${PREFIX}/${f}")
  endif()
endforeach()
file(GLOB stray "${PREFIX}/bin/*.dat" "${PREFIX}/share/varnelt/help/.*")
if(stray)
  message(FATAL_ERROR "installed where they do not belong: ${stray}")
endif()

# The installed command line prints the default project's summary from the installed data.
run(COMMAND "${PREFIX}/bin/varnelt-cli" --decimal-point --summary OUT out STATUS status)
file(READ "${EXPECTED}" expected)
if(NOT status EQUAL 0 OR NOT out STREQUAL expected)
  message(FATAL_ERROR "the installed varnelt-cli --summary gave (status ${status}):\n${out}\nexpected:\n${expected}")
endif()
run(COMMAND "${PREFIX}/bin/varnelt-cli" --version OUT out STATUS status)
if(NOT out STREQUAL "varnelt-cli ${VERSION}\n")
  message(FATAL_ERROR "the installed varnelt-cli --version gave: ${out}")
endif()

# The same program alone under another prefix finds no data: it reads nothing from the build folder,
# and the message names the folder it looked in.
file(MAKE_DIRECTORY "${PREFIX}/alone/bin")
file(COPY "${PREFIX}/bin/varnelt-cli" DESTINATION "${PREFIX}/alone/bin")
run(COMMAND "${PREFIX}/alone/bin/varnelt-cli" --summary OUT out STATUS status)
if(NOT status EQUAL 3 OR NOT out MATCHES "data file missing: ${PREFIX}/alone/bin/VarneltECmat.dat")
  message(FATAL_ERROR "varnelt-cli without its data files gave (status ${status}):\n${out}")
endif()

# The desktop program, where it is built: its version, and a project file opened from the
# command line as the desktop entry opens it (Exec=varnelt %f).
if(EXISTS "${PREFIX}/bin/varnelt")
  run(COMMAND "${PREFIX}/bin/varnelt" --version OUT out STATUS status)
  if(NOT out STREQUAL "varnelt ${VERSION}\n")
    message(FATAL_ERROR "the installed varnelt --version gave: ${out}")
  endif()
  set(ENV{QT_QPA_PLATFORM} offscreen)
  run(COMMAND "${PREFIX}/bin/varnelt" --screenshot "${PREFIX}/opened.png" "${PROJECT}" OUT out STATUS status)
  if(NOT status EQUAL 0 OR NOT EXISTS "${PREFIX}/opened.png")
    message(FATAL_ERROR "the installed varnelt did not open ${PROJECT} (status ${status}):\n${out}")
  endif()
endif()

# The file type: the shared MIME database built from the installed package file knows *.vnt, and the
# desktop entry is valid and claims that type.
find_program(UPDATE_MIME update-mime-database REQUIRED)
run(COMMAND "${UPDATE_MIME}" "${PREFIX}/share/mime" OUT out STATUS status)
file(READ "${PREFIX}/share/mime/globs2" globs)
if(NOT status EQUAL 0 OR NOT globs MATCHES "application/x-varnelt-project:\\*\\.vnt")
  message(FATAL_ERROR "the MIME database does not know *.vnt (status ${status}):\n${out}")
endif()
find_program(VALIDATE_DESKTOP desktop-file-validate REQUIRED)
run(COMMAND "${VALIDATE_DESKTOP}" "${PREFIX}/share/applications/varnelt.desktop" OUT out STATUS status)
file(READ "${PREFIX}/share/applications/varnelt.desktop" entry)
if(NOT status EQUAL 0 OR NOT entry MATCHES "\nMimeType=application/x-varnelt-project;\n" OR
   NOT entry MATCHES "\nExec=varnelt %f\n" OR NOT entry MATCHES "\nIcon=varnelt\n")
  message(FATAL_ERROR "the desktop entry is not valid (status ${status}):\n${out}")
endif()
